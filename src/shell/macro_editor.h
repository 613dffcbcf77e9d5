#pragma once

// Writing and changing macros: the record under edit, and its way to and from the display's line.

#include <array>
#include <string>
#include <string_view>

#include "frontends/led_display.h"
#include "frontends/macro_list.h"

namespace quorix {

/// The letters that serve as names of parameters, in the order of their list.
inline constexpr std::u16string_view kParameterLetters = u"αβγεηθλμνρστυφψω";

class MacroEditor {
  public:
    /// Both outlive the editor.
    MacroEditor(MacroList& macros, CLedDisplay& display) : macros_(macros), display_(display) {}

    [[nodiscard]] const std::u16string& Name() const { return record_.name; }
    [[nodiscard]] const std::u16string& Remark() const { return record_.remark; }
    void SetName(std::u16string_view name);
    void SetRemark(std::u16string_view remark) { record_.remark = remark; }
    /// "name(p1,p2)".
    [[nodiscard]] std::u16string Header() const;

    /// Takes a macro's record into the fields and the display's line; a name without a macro starts an empty
    /// record.
    void Choose(std::u16string_view name);

    [[nodiscard]] bool Editing() const { return editing_; }
    /// Begins editing. userMode: the input mode that the user has chosen; the basic modes have no line to
    /// edit, which the result row then says.
    bool Begin(std::u16string_view userMode);
    /// Ends editing and stores the record: an empty line removes the macro. A record without a name is not
    /// stored; the result row asks for one and editing goes on. True when editing has ended.
    bool End();

    /// Enters a parameter's letter into the line; a new one joins the parameters.
    void InsertLetter(char16_t letter);
    /// Empties the line and the parameters.
    void Clear();
    /// Whether the line evaluates for some values of its parameters; the result row says "valid" or
    /// "invalid".
    bool Validate();

  private:
    [[nodiscard]] bool EvaluatesWith(std::u16string_view value) const;

    MacroList& macros_;
    CLedDisplay& display_;
    Macro record_;
    bool editing_ = false;
};

}  // namespace quorix

#include "manual/key_script.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "frontends/clipboard_commands.h"
#include "frontends/key_labels.h"
#include "support/fake_clipboard.h"

namespace quorix::testing {

namespace {

constexpr std::pair<char16_t, char16_t> kSuperscripts[] = {
    {u'2', u'\u00B2'}, {u'3', u'\u00B3'}, {u'x', u'\u02E3'}, {u'y', u'\u02B8'}};

constexpr std::pair<std::u16string_view, std::string_view> kDrawnLabels[] = {
    {kChooserMark, "chooser"}, {kDeleteMark, "delete"}, {kLeftMark, "left"}, {kRightMark, "right"}};

constexpr std::pair<int, std::u16string_view> kOrangeOfPad[] = {{KEY_STORE, LabelOfKey(KEY_NEXT_MEMORY)},
                                                                {KEY_RECALL, LabelOfKey(KEY_CLEAR_MEMORY)},
                                                                {KEY_EQUALS, LabelOfKey(KEY_ANSWER)}};

/// Words on the pad under the page of the user's macros, as its window paints them.
constexpr std::pair<int, std::string_view> kMacroPad[] = {
    {KEY_DIVIDE, "keys"}, {KEY_MULTIPLY, "αβγ"}, {KEY_STORE, "test"}, {KEY_RECALL, "×"}, {KEY_EQUALS, "÷"}};

constexpr std::pair<std::string_view, DisplayPart> kMarks[] = {
    {"line", DisplayPart::lineNumber},   {"memory", DisplayPart::memoryMark},
    {"base", DisplayPart::baseMark},     {"angle", DisplayPart::angleMark},
    {"format", DisplayPart::formatMark}, {"word size", DisplayPart::wordSizeMark}};

constexpr std::pair<std::string_view, char16_t> kNamedCharacters[] = {
    {"Enter", 13}, {"Tab", 9}, {"Esc", 27}, {"Backspace", 8}};
constexpr std::pair<std::string_view, HardKey> kNamedKeys[] = {{"Left", HardKey::left},
                                                               {"Right", HardKey::right},
                                                               {"Up", HardKey::up},
                                                               {"Down", HardKey::down},
                                                               {"Delete", HardKey::remove}};

/// The value beside a key of a table, or null.
template <class Key, class Value, std::size_t count>
const Value* LookUp(const std::pair<Key, Value> (&table)[count], const Key& key) {
    const auto* const row = std::ranges::find(table, key, &std::pair<Key, Value>::first);
    return row == std::end(table) ? nullptr : &row->second;
}

char16_t Raised(char16_t c) {
    const char16_t* const raised = LookUp(kSuperscripts, c);
    return raised != nullptr ? *raised : c;
}

std::string Print(std::u16string_view label) {
    if (const std::string_view* const word = LookUp(kDrawnLabels, label)) {
        return std::string(*word);
    }
    const std::size_t root = label.find(u'\u221A');
    std::u16string printed;
    bool raise = root != label.npos && root > 0;
    for (const char16_t c : label) {
        raise = raise && c != u'\u221A';
        if (c == u'^') {
            raise = true;
        } else if (c != u'\u25BE') {
            printed += raise ? Raised(c) : c;
        }
    }
    return ToUtf8(printed);
}

/// A digit key of this character, or KEY_NONE.
std::int32_t DigitKey(char c, bool hex) {
    if (c == '.') {
        return KEY_POINT;
    }
    for (std::int32_t code = KEY_7; code <= KEY_HEX_F; ++code) {
        const int digit = DigitOf(code);
        if (digit >= 0 && (digit < 10 ? c == '0' + digit : hex && c == 'A' + digit - 10)) {
            return code;
        }
    }
    return KEY_NONE;
}

class ScriptPlayer {
  public:
    explicit ScriptPlayer(FrameRig& rig) : rig_(rig) {}

    std::string Play(std::string_view script) {
        while (!script.empty() && fault_.empty()) {
            if (script.front() == ' ') {
                script.remove_prefix(1);
                continue;
            }
            const bool bracket = script.front() == '[';
            const std::size_t end =
                bracket ? EndOfCommand(script) : std::min(script.find(' '), script.size());
            bracket ? Command(script.substr(1, end - 1)) : Key(script.substr(0, end));
            script.remove_prefix(std::min(bracket ? end + 1 : end, script.size()));
        }
        return fault_;
    }

  private:
    /// The bracket that closes the first one: text to paste may hold brackets of its own.
    static std::size_t EndOfCommand(std::string_view script) {
        int depth = 0;
        for (std::size_t at = 0; at < script.size(); ++at) {
            depth += script[at] == '[' ? 1 : script[at] == ']' ? -1 : 0;
            if (depth == 0) {
                return at;
            }
        }
        return script.size();
    }

    [[nodiscard]] int Category() const { return rig_.frame.CurrentCategory(); }

    std::optional<PanelCell> Find(std::string_view label, bool orange) const {
        for (const Panel panel : {Panel::lower, Panel::upper}) {
            const int count = panel == Panel::lower ? kLowerCellCount : kUpperCellCount;
            for (int cell = 0; cell < count; ++cell) {
                if (PrintedLabel(Category(), {panel, cell}, orange) == label) {
                    return PanelCell{panel, cell};
                }
            }
        }
        return std::nullopt;
    }

    void Key(std::string_view label) {
        if (const auto cell = Find(label, rig_.frame.Display().GetShift())) {
            rig_.Tap(*cell);
        } else if (!Digits(label)) {
            fault_ = "no key \"" + std::string(label) + "\"";
        }
    }

    bool Digits(std::string_view number) {
        const bool hex = rig_.frame.Display().GetBase() == RADIX_HEX;
        if (std::ranges::any_of(number, [hex](char c) { return DigitKey(c, hex) == KEY_NONE; })) {
            return false;
        }
        for (const char c : number) {
            const std::int32_t code = DigitKey(c, hex);
            rig_.Tap(code < kLowerCellCount ? PanelCell{Panel::lower, code}
                                            : PanelCell{Panel::upper, code - KEY_HEX_A + kFirstHexCell});
        }
        return true;
    }

    void Command(std::string_view command) {
        const std::size_t blank = std::min(command.find(' '), command.size());
        const std::string_view verb = command.substr(0, blank);
        const std::string_view what = command.substr(std::min(blank + 1, command.size()));
        const bool known = verb == "hold"     ? Hold(what)
                           : verb == "choose" ? Choose(what)
                           : verb == "tap"    ? TapMark(what)
                           : verb == "press"  ? Press(what)
                           : verb == "type"   ? Type(what)
                           : verb == "paste"  ? Paste(what)
                           : verb == "name"   ? Name(what)
                           : verb == "edit"   ? ToggleMacro(false)
                           : verb == "save"   ? ToggleMacro(true)
                           : verb == "go"     ? Go(what)
                                              : false;
        if (!known) {
            fault_ = "cannot [" + std::string(command) + "]";
        }
    }

    bool Hold(std::string_view label) {
        const auto cell = Find(label, true);
        if (!cell) {
            return false;
        }
        rig_.frame.ButtonDown(rig_.CentreOf(*cell));
        const bool module = Category() == CATEGORY_MATRIX || Category() == CATEGORY_FINANCE;
        const int timer = module && cell->panel == Panel::upper ? TIMER_HOLD_MODULE : TIMER_HOLD;
        if (!rig_.timers.running.contains(timer)) {
            return false;
        }
        rig_.frame.OnTimer(timer);
        rig_.frame.ButtonUp(rig_.CentreOf(*cell));
        return true;
    }

    bool Choose(std::string_view item) {
        for (std::size_t row = 0; rig_.host.popup != 0 && row < rig_.host.popupItems.size(); ++row) {
            if (ToUtf8(rig_.host.popupItems[row]) == item) {
                rig_.frame.PopupChosen(static_cast<PopupId>(rig_.host.popup), static_cast<int>(row));
                return true;
            }
        }
        return false;
    }

    bool TapMark(std::string_view name) {
        const DisplayPart* const part = LookUp(kMarks, name);
        if (part != nullptr) {
            const Rect rect = DisplayPartRect(*part, rig_.frame.Scale());
            const Point at{(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2};
            rig_.frame.Display().PenDown(at, rig_.frame.Scale());
            rig_.frame.Display().PenUp(at, rig_.frame.Scale());
        }
        return part != nullptr;
    }

    bool Press(std::string_view name) {
        if (const char16_t* const character = LookUp(kNamedCharacters, name)) {
            rig_.frame.Character(*character);
        } else if (const HardKey* const key = LookUp(kNamedKeys, name)) {
            rig_.frame.KeyDown(*key);
            rig_.frame.KeyUp(*key);
        } else if (name == "Ctrl+Z") {
            rig_.frame.Undo();
        } else if (name == "Ctrl+Shift+Z") {
            rig_.frame.Redo();
        } else {
            return false;
        }
        return true;
    }

    bool Type(std::string_view text) {
        rig_.TypeText(FromUtf8(text));
        return true;
    }

    bool Paste(std::string_view text) {
        FakeClipboard clipboard;
        clipboard.content = FromUtf8(text);
        return PasteShortcut(rig_.frame.Display(), clipboard);
    }

    bool Name(std::string_view name) {
        rig_.frame.TheMacroEditor().SetName(FromUtf8(name));
        return Category() == CATEGORY_MACROS;
    }

    /// The key of the macro page says "edit" or, while a macro is being edited, "save".
    bool ToggleMacro(bool saying) {
        const bool fits = Category() == CATEGORY_MACROS && rig_.frame.MacroEditing() == saying;
        rig_.frame.ToggleMacroEditing();
        return fits && rig_.frame.MacroEditing() != saying;
    }

    bool Go(std::string_view categoryName) {
        for (int category = 0; category < kCategoryCount; ++category) {
            if (ToUtf8(kCategoryNames[static_cast<std::size_t>(category)]) == categoryName) {
                rig_.frame.SwitchCategory(category);
            }
        }
        return ToUtf8(kCategoryNames[static_cast<std::size_t>(Category())]) == categoryName;
    }

    /// Cell of the digit A in Base conversion.
    static constexpr int kFirstHexCell = 6;

    FrameRig& rig_;
    std::string fault_;
};

}  // namespace

std::string PressScript(FrameRig& rig, std::string_view script) {
    return ScriptPlayer(rig).Play(script);
}

std::string PrintedLabel(int category, PanelCell cell, bool orange) {
    if (cell.panel == Panel::lower) {
        const std::string_view* const word = LookUp(kMacroPad, cell.cell);
        if (word != nullptr && category == CATEGORY_MACROS) {
            return std::string(*word);
        }
        const std::u16string_view* const label = orange ? LookUp(kOrangeOfPad, cell.cell) : nullptr;
        return Print(label != nullptr ? *label : LabelOfKey(cell.cell));
    }
    if (const auto own = OwnLabelOfCell(category, cell.cell, orange); !own.empty()) {
        return Print(own);
    }
    // The digits A to F stand on their cells in every base.
    return Print(LabelOfKey(UpperAction(category, cell.cell, orange, RADIX_HEX).key));
}

}  // namespace quorix::testing

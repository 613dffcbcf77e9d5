#pragma once

// How the display and the expression boxes outlive the program: lines, memories, base and format. The display
// has "led.dat"; the owner of a box names its file.

#include <filesystem>

#include "frontends/expression_editor.h"

namespace quorix {

inline constexpr std::u16string_view kDisplayFileName = u"led.dat";

class DisplayFile {
  public:
    explicit DisplayFile(std::filesystem::path path) : path_(std::move(path)) {}

    /// Reads the file into the editor, whose undo history ends. An absent file changes nothing. A damaged one
    /// is kept as "NAME.bad"; lines and memories are then empty and the format is NORM.
    void Restore(ExpressionEditor& editor) const;
    /// Writes the file; false when the disk refuses (the old file then stands untouched).
    bool Save(const ExpressionEditor& editor) const;

  private:
    std::filesystem::path path_;
};

}  // namespace quorix

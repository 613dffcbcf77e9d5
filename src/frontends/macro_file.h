#pragma once

// The macro files of the program folder: "macro.mcr" and whatever else ends in ".mcr".

#include <filesystem>
#include <vector>

#include "frontends/macro_list.h"

namespace quorix {

inline constexpr std::u16string_view kMacroFileName = u"macro.mcr";

class MacroFiles {
  public:
    explicit MacroFiles(std::filesystem::path folder) : folder_(std::move(folder)) {}

    /// Adds the macros of every "*.mcr" file, by name of file. Files that cannot be read are skipped, and so
    /// are lines that are no record.
    void Load(MacroList& macros);

    /// Writes all macros to "macro.mcr" and then removes the other files that were loaded; those that held
    /// lines which could not be taken are kept as "NAME.bad". At every moment each macro stands in a whole
    /// file. False when the disk refuses: nothing is removed then.
    bool Save(const MacroList& macros);

  private:
    struct LoadedFile {
        std::filesystem::path path;
        bool whole = true;
    };
    std::filesystem::path folder_;
    std::vector<LoadedFile> loaded_;
};

/// One file's text to records and back; UTF-16 without a byte-order mark. `complete` turns false when a line
/// was no record.
std::vector<Macro> ParseMacroText(std::u16string_view text, bool& complete);
std::u16string MacroText(const MacroList& macros);

}  // namespace quorix

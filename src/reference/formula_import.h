#pragma once

// The text from which formulas are imported. A line "***" opens a formula, a line "*" a folder; lines
// "Tag = value" follow:
//   ForId, ForType, ForName, ForDes, ForMime   identifier, integer type, name, description, TeX
//   Para                                       one parameter: five quoted texts
//   For                                        the solved forms, quoted, in the order of the parameters
//   Image                                      pictures, quoted; ends the formula
// A folder is ForId and then ForName, which ends it. Tags are blind to case; other lines are comments.

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include "reference/formula_records.h"
#include "reference/formula_tree.h"

namespace quorix {

/// Longest line of an import text and largest such file, in bytes.
inline constexpr std::size_t kLongestImportLine = 1023;
inline constexpr std::size_t kLargestImport = 8U * 1024U * 1024U;

struct ImportedFormula {
    FormulaDescription description;
    FormulaDetail detail;
};

struct ImportProblem {
    /// From 1; 0 for a problem of the file or the folder as a whole.
    std::size_t line = 0;
    std::string_view message;
};

struct FormulaImport {
    /// Nodes of folders and formulas in the order of the text.
    std::vector<FormulaNode> nodes;
    std::vector<ImportedFormula> formulas;
    /// When set, the text is refused as a whole.
    std::optional<ImportProblem> problem;
};

/// A formula without its Image line is left out. Refused: overlong lines, NUL bytes, a parameter with fewer
/// than five quoted texts, a quoted text without its end, a formula or folder without identifier, more than
/// kMostFormulaEntries of something, and a name too long for a line of the tree.
FormulaImport ParseFormulaImport(std::span<const std::uint8_t> bytes);

}  // namespace quorix

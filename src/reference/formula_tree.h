#pragma once

// The tree of the formula library: a text of lines ".1.2 =Name= type", and the nodes that it means.

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "reference/formula_identifier.h"

namespace quorix {

/// The type of a folder; every other one is that of a formula.
inline constexpr int kFormulaFolderType = 2;
/// Longest line of the tree, its end included, in bytes.
inline constexpr std::size_t kLongestTreeLine = 255;
/// What a new library's tree starts with.
inline constexpr std::string_view kNewFormulaTree =
    ".1 =Mathematic= 2\r\n.2 =Physics= 2\r\n.3 =Electric Engineering= 2\r\n";

struct FormulaNode {
    FormulaId id = 0;
    std::string name;
    int type = kFormulaFolderType;
    [[nodiscard]] bool IsFolder() const { return type == kFormulaFolderType; }
    friend bool operator==(const FormulaNode&, const FormulaNode&) = default;
};

/// The node's line with its end.
std::string FormulaTreeLine(const FormulaNode& node);
/// The node of a line (without its end): the name stands between the first and the last "=". Nothing for a
/// line of another form, one with a NUL byte, or one that is too long.
std::optional<FormulaNode> ParseFormulaTreeLine(std::string_view line);
/// `tree` without the lines of the given identifiers (and empty ones), sorted by their bytes. Lines of
/// another form stay.
std::string RemoveFromFormulaTree(std::string_view tree, std::span<const FormulaId> ids);

/// The nodes by identifier, which is depth first. Where two lines bear one identifier the later one stands.
class FormulaTree {
  public:
    FormulaTree() = default;
    explicit FormulaTree(std::string_view text);

    [[nodiscard]] std::span<const FormulaNode> Nodes() const { return nodes_; }
    /// Null when there is none.
    [[nodiscard]] const FormulaNode* Find(FormulaId id) const;
    /// The nodes directly below `parent`; those below 0 are the roots. A node whose folder is missing hangs
    /// below the nearest one that is there.
    [[nodiscard]] std::vector<FormulaNode> ChildrenOf(FormulaId parent) const;
    /// The node and everything below it: what deleting it means.
    [[nodiscard]] std::vector<FormulaId> Branch(FormulaId id) const;
    /// The formulas whose name holds `text`, blind to the case of A to Z.
    [[nodiscard]] std::vector<FormulaNode> Search(std::string_view text) const;

  private:
    [[nodiscard]] FormulaId NearestFolder(FormulaId id) const;

    std::vector<FormulaNode> nodes_;
};

}  // namespace quorix

#include "reference/formula_tree.h"

#include <algorithm>

#include "platform/trim.h"
#include "reference/formula_lines.h"

namespace quorix {

std::string FormulaTreeLine(const FormulaNode& node) {
    return "." + FormulaIdText(node.id) + " =" + node.name + "= " + std::to_string(node.type) + "\r\n";
}

std::optional<FormulaNode> ParseFormulaTreeLine(std::string_view line) {
    line = Trimmed(line);
    const std::size_t first = line.find('=');
    const std::size_t last = line.rfind('=');
    if (!line.starts_with('.') || first == last || line.size() > kLongestTreeLine ||
        line.find('\0') != line.npos) {
        return std::nullopt;
    }
    FormulaNode node;
    node.id = ParseFormulaId(line.substr(1, first - 1));
    node.name = line.substr(first + 1, last - first - 1);
    node.type = LeadingFormulaInteger(Trimmed(line.substr(last + 1)));
    return node.id == 0 ? std::nullopt : std::optional(std::move(node));
}

std::string RemoveFromFormulaTree(std::string_view tree, std::span<const FormulaId> ids) {
    std::vector<FormulaId> removed(ids.begin(), ids.end());
    std::sort(removed.begin(), removed.end());
    std::vector<std::string_view> kept;
    while (!tree.empty()) {
        std::string_view line = TakeFormulaLine(tree);
        while (line.ends_with('\r')) {
            line.remove_suffix(1);
        }
        const auto node = ParseFormulaTreeLine(line);
        if (!line.empty() && !(node && std::binary_search(removed.begin(), removed.end(), node->id))) {
            kept.push_back(line);
        }
    }
    std::sort(kept.begin(), kept.end());
    std::string text;
    for (const std::string_view line : kept) {
        text.append(line).append("\r\n");
    }
    return text;
}

FormulaTree::FormulaTree(std::string_view text) {
    while (!text.empty()) {
        if (auto node = ParseFormulaTreeLine(TakeFormulaLine(text))) {
            nodes_.push_back(std::move(*node));
        }
    }
    const auto byId = [](const FormulaNode& a, const FormulaNode& b) { return a.id < b.id; };
    // Stable and backward, so that the later line of an identifier is the one that stays.
    std::reverse(nodes_.begin(), nodes_.end());
    std::stable_sort(nodes_.begin(), nodes_.end(), byId);
    const auto sameId = [](const FormulaNode& a, const FormulaNode& b) { return a.id == b.id; };
    nodes_.erase(std::unique(nodes_.begin(), nodes_.end(), sameId), nodes_.end());
}

const FormulaNode* FormulaTree::Find(FormulaId id) const {
    const auto at =
        std::lower_bound(nodes_.begin(), nodes_.end(), id,
                         [](const FormulaNode& node, FormulaId wanted) { return node.id < wanted; });
    return at != nodes_.end() && at->id == id ? &*at : nullptr;
}

FormulaId FormulaTree::NearestFolder(FormulaId id) const {
    do {
        id = ParentFormulaId(id);
    } while (id != 0 && Find(id) == nullptr);
    return id;
}

std::vector<FormulaNode> FormulaTree::ChildrenOf(FormulaId parent) const {
    std::vector<FormulaNode> children;
    for (const FormulaNode& node : nodes_) {
        if (NearestFolder(node.id) == parent) {
            children.push_back(node);
        }
    }
    return children;
}

std::vector<FormulaId> FormulaTree::Branch(FormulaId id) const {
    std::vector<FormulaId> branch;
    for (const FormulaNode& node : nodes_) {
        for (FormulaId above = node.id; above != 0; above = ParentFormulaId(above)) {
            if (above == id) {
                branch.push_back(node.id);
                break;
            }
        }
    }
    return branch;
}

std::vector<FormulaNode> FormulaTree::Search(std::string_view text) const {
    const auto sameLetter = [](char a, char b) { return FoldFormulaCase(a) == FoldFormulaCase(b); };
    std::vector<FormulaNode> found;
    for (const FormulaNode& node : nodes_) {
        const bool holds = std::search(node.name.begin(), node.name.end(), text.begin(), text.end(),
                                       sameLetter) != node.name.end();
        if (!node.IsFolder() && (holds || text.empty())) {
            found.push_back(node);
        }
    }
    return found;
}

}  // namespace quorix

#include "reference/formula_files.h"

#include <algorithm>

namespace quorix {

void AppendImport(FormulaFiles& files, const FormulaImport& import) {
    for (const ImportedFormula& formula : import.formulas) {
        FormulaIndexEntry entry{formula.description.id, 0, 0};
        entry.descriptionOffset = AppendFormulaDescription(files.descriptions, formula.description);
        entry.detailOffset = AppendFormulaDetail(files.details, formula.detail);
        files.index.push_back(entry);
    }
    if (!files.tree.empty() && !files.tree.ends_with('\n')) {
        files.tree += "\r\n";
    }
    for (const FormulaNode& node : import.nodes) {
        files.tree += FormulaTreeLine(node);
    }
}

std::size_t RemoveFormulas(FormulaFiles& files, std::span<const FormulaId> ids) {
    std::vector<FormulaId> removed(ids.begin(), ids.end());
    std::sort(removed.begin(), removed.end());
    FormulaFiles kept;
    std::size_t lost = 0;
    for (const FormulaIndexEntry& entry : files.index) {
        if (std::binary_search(removed.begin(), removed.end(), entry.id)) {
            continue;
        }
        const auto description =
            ParseFormulaDescription(files.descriptions, entry.id, entry.descriptionOffset);
        const auto detail = ParseFormulaDetail(files.details, entry.id, entry.detailOffset);
        if (!description || !detail) {
            ++lost;
            continue;
        }
        FormulaIndexEntry moved{entry.id, 0, 0};
        moved.descriptionOffset = AppendFormulaDescription(kept.descriptions, *description);
        moved.detailOffset = AppendFormulaDetail(kept.details, *detail);
        kept.index.push_back(moved);
    }
    kept.tree = RemoveFromFormulaTree(files.tree, ids);
    files = std::move(kept);
    return lost;
}

}  // namespace quorix

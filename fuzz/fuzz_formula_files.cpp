// Feeds bytes as index, descriptions, details and tree of a formula library at once. What a deletion writes
// must read back.

#include <cstddef>
#include <cstdint>
#include <string>

#include "reference/formula_files.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace quorix;
    FormulaFiles files;
    files.descriptions.assign(data, data + size);
    files.details = files.descriptions;
    files.tree.assign(data, data + size);
    files.index = ParseFormulaIndex(files.descriptions).value_or(std::vector<FormulaIndexEntry>());
    // Entries may name one large record again and again; a real library of this size would be refused.
    constexpr std::size_t kMostEntries = 64;
    if (files.index.size() > kMostEntries) {
        files.index.resize(kMostEntries);
    }
    const FormulaTree tree(files.tree);
    for (const FormulaNode& node : tree.Nodes()) {
        static_cast<void>(tree.Branch(node.id));
    }
    const FormulaId removed = files.index.empty() ? 0 : files.index.back().id;
    RemoveFormulas(files, std::span(&removed, 1));
    for (const FormulaIndexEntry& entry : files.index) {
        if (entry.id == removed ||
            !ParseFormulaDescription(files.descriptions, entry.id, entry.descriptionOffset) ||
            !ParseFormulaDetail(files.details, entry.id, entry.detailOffset)) {
            __builtin_trap();
        }
    }
    if (removed != 0 && FormulaTree(files.tree).Find(removed) != nullptr) {
        __builtin_trap();
    }
    return 0;
}

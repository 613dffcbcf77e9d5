// Feeds bytes as an import text of formulas. What is taken must read back from the library's files.

#include <cstddef>
#include <cstdint>

#include "platform/utf8.h"
#include "reference/formula_files.h"
#include "reference/formula_sheet.h"
#include "reference/formula_text.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace quorix;
    const FormulaImport import = ParseFormulaImport({data, size});
    if (import.problem && !(import.formulas.empty() && import.nodes.empty())) {
        __builtin_trap();
    }
    FormulaFiles files;
    AppendImport(files, import);
    const auto index = ParseFormulaIndex(FormulaIndexBytes(files.index));
    if (index != files.index) {
        __builtin_trap();
    }
    const FormulaTree tree(files.tree);
    for (std::size_t i = 0; i < import.formulas.size(); ++i) {
        const FormulaIndexEntry& entry = files.index[i];
        const auto description =
            ParseFormulaDescription(files.descriptions, entry.id, entry.descriptionOffset);
        const auto detail = ParseFormulaDetail(files.details, entry.id, entry.detailOffset);
        if (description != import.formulas[i].description || detail != import.formulas[i].detail ||
            tree.Find(entry.id) == nullptr) {
            __builtin_trap();
        }
        std::vector<std::u16string> symbols;
        for (const FormulaParameter& parameter : detail->parameters) {
            symbols.push_back(FromUtf8OrLatin1(parameter.symbol));
            static_cast<void>(PlainFormulaText(parameter.unit));
        }
        const std::vector<std::u16string> values(symbols.size(), u"2");
        for (const std::string& form : detail->solvedForms) {
            static_cast<void>(SubstituteSymbols(FromUtf8OrLatin1(form), symbols, values));
        }
    }
    return 0;
}

// Opening the formula library and showing one formula beside plain reads of its four files.

#include "platform/files.h"
#include "ratio_report.h"
#include "reference/formula_library.h"
#include "reference/formula_sheet.h"

namespace {

using namespace quorix;

const std::filesystem::path kFolder = std::filesystem::path(QUORIX_SOURCE_DIR) / "assets" / "Formulas";

void ShowFormula(benchmark::State& state) {
    std::size_t shown = 0;
    for (auto _ : state) {
        const FormulaLibrary library(kFolder);
        const auto index = library.ReadIndex();
        const FormulaTree tree = library.ReadTree();
        const FormulaIndexEntry& entry = index[shown++ % index.size()];
        benchmark::DoNotOptimize(library.ReadDescription(entry.id, entry.descriptionOffset));
        const FormulaSheet sheet(library.ReadDetail(entry.id, entry.detailOffset).value());
        benchmark::DoNotOptimize(sheet.MayChooseAngleUnit());
    }
}

void ReadFiles(benchmark::State& state) {
    for (auto _ : state) {
        for (const std::string_view name : {"indexfor.dat", "fordes.dat", "fordetail.dat", "fortree.dat"}) {
            benchmark::DoNotOptimize(ReadWholeFile(kFolder / name));
        }
    }
}

}  // namespace

int main(int argc, char** argv) {
    bench::RegisterPair("open library, show a formula", ShowFormula, ReadFiles, 5);
    return bench::RunPairs(argc, argv);
}

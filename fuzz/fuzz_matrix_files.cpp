// Feeds bytes as the data files of matrices and of the list. The first byte picks the file. What was read is
// written and must read well; written again, where values that the first text has rounded to whole ones are
// written as such, it must not change any more.

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

#include "matrix/matrix_store.h"
#include "matrix/statistics_list.h"

namespace {

using namespace quorix;

void Demand(bool isTrue) {
    if (!isTrue) __builtin_trap();
}

std::span<const std::uint8_t> Bytes(const std::string& text) {
    return {reinterpret_cast<const std::uint8_t*>(text.data()), text.size()};
}

// Numbers of more than about 60 digits may pass the width that a line is read in.
bool IsShort(const std::string& text) {
    return text.size() < 2000;
}

void FuzzMatrices(std::span<const std::uint8_t> bytes) {
    MatrixStore store;
    store.Read(bytes);
    Demand(store.Count() <= kMostMatrices);
    const std::string first = store.FileText();
    const MatrixLoad outcome = store.Read(Bytes(first));
    const std::string second = store.FileText();
    store.Read(Bytes(second));
    if (IsShort(first)) Demand(outcome == MatrixLoad::good && store.FileText() == second);
    store.DeleteAll();
}

void FuzzList(std::span<const std::uint8_t> bytes) {
    ClearItems();
    ReadStatistics(bytes);
    Demand(StatisticsItems().size() <= kMostItems);
    const std::string first = StatisticsFileText();
    if (!IsShort(first)) return;
    ClearItems();
    Demand(first.empty() || ReadStatistics(Bytes(first)) == StatisticsLoad::good);
    const std::string second = StatisticsFileText();
    ReadStatistics(Bytes(second));
    Demand(StatisticsFileText() == second);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0) return 0;
    if (data[0] % 2 == 0) {
        FuzzMatrices({data + 1, size - 1});
    } else {
        FuzzList({data + 1, size - 1});
    }
    return 0;
}

// Feeds bytes as the data files of matrices and of the list. The first byte picks the file. What was read is
// written and must read the same.

#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include "engine/variable_store.h"
#include "matrix/matrix_store.h"
#include "matrix/statistics_list.h"
#include "platform/files.h"

namespace {

using namespace quorix;

const std::filesystem::path& Folder() {
    static const std::filesystem::path folder = [] {
        auto path = std::filesystem::temp_directory_path() / ("quorix-fuzz-" + std::to_string(::getpid()));
        std::filesystem::create_directories(path);
        return path;
    }();
    return folder;
}

void Demand(bool isTrue) {
    if (!isTrue) __builtin_trap();
}

std::string Content(const std::filesystem::path& path) {
    const auto bytes = ReadWholeFile(path);
    return bytes ? std::string(bytes->begin(), bytes->end()) : std::string();
}

// Numbers of more than about 60 digits may pass the width that a line is read in.
bool IsShort(const std::string& text) {
    return text.size() < 2000;
}

void FuzzMatrices(const std::filesystem::path& path) {
    MatrixStore store;
    store.Load(path);
    Demand(store.Count() <= kMostMatrices);
    Demand(store.Save(path));
    const std::string first = Content(path);
    const MatrixLoad outcome = store.Load(path);
    if (!IsShort(first)) return;
    Demand(outcome == MatrixLoad::good);
    Demand(store.Save(path));
    Demand(Content(path) == first);
    store.DeleteAll();
}

void FuzzList(const std::filesystem::path& path) {
    ClearItems();
    LoadStatistics(path);
    Demand(StatisticsItems().size() <= kMostItems);
    Demand(SaveStatistics(path));
    const std::string first = Content(path);
    if (!IsShort(first)) return;
    ClearItems();
    LoadStatistics(path);
    Demand(SaveStatistics(path));
    Demand(Content(path) == first);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0) return 0;
    const std::filesystem::path path = Folder() / "data.dat";
    if (!WriteFileAtomically(path, {data + 1, size - 1})) return 0;
    if (data[0] % 2 == 0) {
        FuzzMatrices(path);
    } else {
        FuzzList(path);
    }
    return 0;
}

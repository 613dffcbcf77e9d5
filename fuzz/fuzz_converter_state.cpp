// Feeds bytes as "Converter.dat". What was read is written and must read the same.

#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>

#include "platform/files.h"
#include "reference/converter_state.h"

namespace {

const std::filesystem::path& Folder() {
    static const std::filesystem::path folder = [] {
        auto path = std::filesystem::temp_directory_path() / ("quorix-fuzz-" + std::to_string(::getpid()));
        std::filesystem::create_directories(path);
        return path;
    }();
    return folder;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace quorix;
    const std::filesystem::path path = Folder() / "Converter.dat";
    if (!WriteFileAtomically(path, {data, size})) {
        return 0;
    }
    ConverterState state;
    ReadConverterState(path, state);
    ConverterState again;
    if (!WriteConverterState(path, state)) {
        __builtin_trap();
    }
    ReadConverterState(path, again);
    if (again != state) {
        __builtin_trap();
    }
    return 0;
}

// Feeds bytes as "Converter.dat". What was read is written and must read the same.

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>

#include "platform/files.h"
#include "reference/converter_state.h"
#include "scratch_folder.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace quorix;
    const std::filesystem::path path = ScratchFolder() / "Converter.dat";
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

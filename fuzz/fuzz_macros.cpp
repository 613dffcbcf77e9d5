// Feeds bytes as a macro file, then calls its macros in a line of the same bytes. What was read is written
// and must read the same.

#include <cstddef>
#include <cstdint>
#include <string>

#include "frontends/macro_file.h"
#include "frontends/token_line.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace quorix;
    std::u16string text(size / 2, u'\0');
    for (std::size_t i = 0; i < text.size(); ++i) {
        text[i] = static_cast<char16_t>(data[2 * i] | data[2 * i + 1] << 8);
    }
    bool complete = true;
    MacroList macros;
    for (Macro& macro : ParseMacroText(text, complete)) {
        macros.Merge(std::move(macro));
    }
    MacroList again;
    for (Macro& macro : ParseMacroText(MacroText(macros), complete)) {
        again.Merge(std::move(macro));
    }
    if (again.All() != macros.All()) {
        __builtin_trap();
    }
    std::u16string line = text.substr(0, kLongestLine / 8);
    for (const Macro& macro : macros.All()) {
        line += CallTextOf(macro);
    }
    if (ExpandMacros(macros, line) && line.size() > 16 * kLongestLine) {
        __builtin_trap();
    }
    return 0;
}

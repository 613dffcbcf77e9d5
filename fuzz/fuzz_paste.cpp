// Pastes the bytes as UTF-16 text: whatever it is, tokens come out that make a line.

#include <cstddef>
#include <cstdint>
#include <string>

#include "frontends/function_hints.h"
#include "frontends/paste_text.h"
#include "frontends/token_line.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace quorix;
    if (size < 1) {
        return 0;
    }
    std::u16string text;
    for (std::size_t i = 1; i + 1 < size; i += 2) {
        text += static_cast<char16_t>(data[i] | data[i + 1] << 8U);
    }
    const bool european = (data[0] & 1U) != 0;
    const int radix = (data[0] & 2U) != 0 ? 16 : 10;
    const TokenText tokens = TranslatePaste(text, european ? u"European" : u"English (US)", radix);
    TokenLine line;
    line.InsertTokens(tokens.text, tokens.lengths);
    if (tokens.text.size() > kLongestLine || line.TokenLengths() != tokens.lengths) {
        __builtin_trap();
    }
    static_cast<void>(HintTable().FindHint(line.Text(), line.TokenLengths(), data[0] % 16));
    return 0;
}

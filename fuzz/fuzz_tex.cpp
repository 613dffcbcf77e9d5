// Lines in the engine's notation through all TeX passes. What was balanced stays balanced.

#include <cstddef>
#include <cstdint>
#include <string>

#include "engine/variable_store.h"
#include "equations/tex_translation.h"

namespace {

using namespace quorix;

bool AreBracesBalanced(const std::string& text) {
    int depth = 0;
    for (const char c : text) {
        depth += c == '{' ? 1 : c == '}' ? -1 : 0;
        if (depth < 0) return false;
    }
    return depth == 0;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const double kMatrix[] = {1, -2.5, 1e300, 0.00001};
    if (size > kTexSourceLimit + 2) return 0;
    std::u16string text;
    bool isPlain = true;
    for (std::size_t i = 0; i < size; ++i) {
        text.push_back(static_cast<char16_t>(data[i] < 0x80 ? data[i] : 0x0340 + data[i]));
        isPlain &= data[i] != '{' && data[i] != '}' && data[i] != '\\';
    }
    SetVariableMatrix(SLOT_FIRST_USER, 2, 2, kMatrix);
    const std::string tex = ExpressionToTeX(text);
    if (tex.size() >= kTexBufferSize || (isPlain && !AreBracesBalanced(tex))) __builtin_trap();
    return 0;
}

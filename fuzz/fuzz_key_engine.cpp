// Key sequences: every byte is some key, so that no input is wasted.

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "engine/calc_context.h"
#include "engine/identifiers.h"
#include "engine/key_engine.h"
#include "engine/repeat_registers.h"

namespace {

using namespace quorix;

constexpr auto kTokens = std::to_array<std::u16string_view>(
    {u"0",    u"1",      u"5",   u"9",    u"A",   u"F",    u"..",  u"NEG", u"Pop", u"DoNothing", u"=",
     u"+",    u"-",      u"*",   u"/",    u"^",   u"(",    u")",   u"%",   u"sin", u"ln",        u"exp",
     u"iexp", u"iroot",  u"mod", u"shl",  u"and", u"not",  u"!",   u"i",   u"PI",  u".",         u"\u2212",
     u"12.5", u"1e5100", u"",    u"junk", u"abs", u"sqrt", u"tan", u"log", u"or",  u"rtl",       u"3E-7"});

constexpr std::array kRadices = {RADIX_DEC, RADIX_BIN, RADIX_OCT, RADIX_HEX};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    ClearCalcError();
    KeyEngineReset();
    repeatRegisters().Clear();
    std::int32_t radixId = RADIX_DEC;
    bool polish = false;
    for (std::size_t i = 0; i < size; ++i) {
        const std::size_t key = data[i] % (kTokens.size() + 8);
        if (key < kTokens.size()) {
            polish ? KeyEngineRpn(kTokens[key], radixId) : KeyEngineStandard(kTokens[key], radixId);
        } else if (key < kTokens.size() + 4) {
            radixId = kRadices[key - kTokens.size()];
        } else if (key == kTokens.size() + 4) {
            polish = !polish;
        } else if (key == kTokens.size() + 5) {
            KeyEnginePush(KeyEngineTop());
        } else if (key == kTokens.size() + 6) {
            KeyEngineSetResult(KeyEngineTop());
        } else {
            ClearCalcError();
        }
    }
    return 0;
}

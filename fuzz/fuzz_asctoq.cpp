// Number text: the fast reader and writer against the plain ones, and the way out and in again.

#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "numerics/qcore.h"
#include "plain_core.h"

namespace {

void Require(bool condition) {
    if (!condition) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace quorix;
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    QReal number, plainNumber;
    ClearNumericError();
    const bool wellFormed = asctoq(text, number);
    const int code = NumericErrorFlag();
    ClearNumericError();
    Require(plain::FromText(text, plainNumber) == wellFormed);
    Require(NumericErrorFlag() == code);
    Require(plainNumber == number);
    Require(wellFormed || number == QReal{});

    const int digits = static_cast<int>(size % 100);
    const std::string written = qtoasc(number, digits);
    Require(written == plain::ToText(number, digits));
    Require(qtoplain(number, digits) == plain::ToPositionalText(number, digits));
    QReal again;
    Require(asctoq(written, again));
    Require(again.IsNegative() == number.IsNegative() || again.IsZero());
    // Rounding may carry the largest numbers out of range and the smallest ones to zero.
    if (!number.IsZero() && !again.IsZero()) Require(std::abs(again.words[1] - number.words[1]) <= 1);
    return 0;
}

#include "engine/decimal_rounding.h"

#include <bit>
#include <cmath>
#include <cstdint>

namespace quorix {
namespace {

// From here on neighbouring doubles lie more than one unit of the twelfth decimal apart: a value written with
// 12 decimals reads back as itself.
constexpr double kAlwaysExact = 8192.0;
constexpr std::uint64_t kScale = 1'000'000'000'000;

// Half a unit of the thirteenth decimal. It is no binary fraction, so that no value lies at it. Between whole
// numbers so large that it is lost, no doubles lie any more.
constexpr double kHalfOf13Decimals = 5e-14;

// value · 10^12 in whole numbers: the mantissa times 10^12 has at most 93 bits. Ties go to even.
double ScaleExactly(double value) {
    const auto bits = std::bit_cast<std::uint64_t>(value);
    const auto biased = static_cast<int>(bits >> 52U & 0x7FFU);
    constexpr std::uint64_t kHidden = std::uint64_t{1} << 52U;
    const std::uint64_t mantissa = biased == 0 ? bits & (kHidden - 1) : (bits & (kHidden - 1)) | kHidden;
    __extension__ using Wide = unsigned __int128;
    const Wide product = Wide{mantissa} * kScale;
    const int shift = 1075 - (biased == 0 ? 1 : biased);  // value is mantissa / 2^shift.
    if (shift > 100) return 0.0;
    const Wide whole = product >> shift;
    const Wide rest = product - (whole << shift);
    const Wide half = Wide{1} << (shift - 1);
    const bool up = rest > half || (rest == half && (whole & 1U) != 0);
    return static_cast<double>(static_cast<std::uint64_t>(whole) + (up ? 1U : 0U));
}

}  // namespace

double RoundTo12DecimalsExactly(double value) {
    const double magnitude = std::fabs(value);
    if (!(magnitude < kAlwaysExact)) return value;
    return std::copysign(ScaleExactly(magnitude) / static_cast<double>(kScale), value);
}

double WholeAt13Decimals(double value) {
    const double whole = std::nearbyint(value);
    return std::fabs(value - whole) < kHalfOf13Decimals ? whole : -1.0;
}

}  // namespace quorix

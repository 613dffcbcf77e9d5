#include <algorithm>

#include "numerics/constants.h"
#include "numerics/qcore.h"
#include "numerics/range.h"
#include "numerics/unpacked.h"

namespace quorix {
namespace {

using limbs::kLimbs;
using limbs::Limb;

constexpr int kBias = QReal::kExponentOfOne - 1;
constexpr int kMantissaBits = 336;

// Numbers below this exponent word are compared by their difference.
constexpr int kCompareByDifference = 337;

constexpr std::uint32_t kLargestInteger = 0x7FFFFFFF;

// The bit of weight 2^-(index + 1) of the mantissa.
bool MantissaBit(const QReal& a, int index) {
    return (a.words[static_cast<std::size_t>(3 + index / 16)] & 0x8000 >> index % 16) != 0;
}

}  // namespace

void qmov(const QReal& a, QReal& b) {
    b = a;
}

void qclear(QReal& a) {
    a = QReal{};
}

void qneg(QReal& a) {
    a.words[0] = static_cast<std::uint16_t>(~a.words[0]);
}

void qabs(QReal& a) {
    a.words[0] = 0;
}

void qinfin(QReal& a) {
    a.words[1] = QReal::kLargestExponent;
    a.words[2] = 0;
    std::fill(a.words.begin() + 3, a.words.end(), std::uint16_t{0xFFFF});
}

int qcmp(const QReal& a, const QReal& b) {
    if (a.words[1] < kCompareByDifference && b.words[1] < kCompareByDifference) {
        QReal difference;
        qsub(b, a, difference);
        return difference.IsZero() ? 0 : difference.IsNegative() ? -1 : 1;
    }
    const int sign = a.IsNegative() ? -1 : 1;
    if (a.words[0] != b.words[0]) return sign;
    const auto [first, second] = std::mismatch(a.words.begin() + 1, a.words.end(), b.words.begin() + 1);
    if (first == a.words.end()) return 0;
    return *first > *second ? sign : -sign;
}

void ltoq(std::int32_t n, QReal& a) {
    Unpacked result;
    result.sign = n < 0 ? QReal::kNegative : 0;
    result.exponent = kBias + 32;
    const std::uint32_t magnitude = n < 0 ? 0 - static_cast<std::uint32_t>(n) : static_cast<std::uint32_t>(n);
    result.mantissa[kLimbs - 1] = Limb{magnitude} << 32;
    if (n != 0) result.exponent -= limbs::Normalise(result.mantissa);
    StoreInRange(result, a);
}

void qifrac(const QReal& a, std::int32_t& n, QReal& fraction) {
    const int bits = a.words[1] - kBias;
    if (bits <= 0) {
        n = 0;
        fraction = a.IsZero() ? QReal{} : a;
        return;
    }
    Unpacked rest = Unpack(a);
    const Limb top = rest.mantissa[kLimbs - 1];
    const std::uint32_t integer =
        bits > 31 ? kLargestInteger : static_cast<std::uint32_t>(top >> (64 - bits));
    n = static_cast<std::int32_t>(integer);
    if (a.IsNegative()) n = -n;
    if (bits >= kMantissaBits) return qclear(fraction);
    for (int whole = bits / limbs::kLimbBits; whole > 0; --whole) {
        std::move_backward(rest.mantissa.begin(), rest.mantissa.end() - 1, rest.mantissa.end());
        rest.mantissa[0] = 0;
    }
    limbs::ShiftLeft(rest.mantissa, static_cast<unsigned>(bits % limbs::kLimbBits));
    if (limbs::IsZero(rest.mantissa)) return qclear(fraction);
    rest.sign = 0;
    rest.exponent = kBias - limbs::Normalise(rest.mantissa);
    StoreInRange(rest, fraction);
}

void qfrexp(const QReal& a, std::int32_t& n, QReal& mantissa) {
    if (a.IsZero()) {
        n = 0;
        return qclear(mantissa);
    }
    n = a.words[1] - kBias;
    mantissa = a;
    mantissa.words[1] = kBias;
}

void qldexp(const QReal& a, std::int32_t n, QReal& b) {
    const std::int64_t exponent = std::int64_t{a.words[1]} + n;
    if (a.IsZero() || exponent < 1) return qclear(b);
    if (exponent > QReal::kLargestExponent) return Overflow("qldexp", a.words[0], b);
    b = a;
    b.words[1] = static_cast<std::uint16_t>(exponent);
}

void qfloor(const QReal& a, QReal& b) {
    const int bits = a.words[1] - kBias;
    if (a.IsZero()) return qclear(b);
    if (bits >= kMantissaBits) return qmov(a, b);
    QReal floor;
    if (bits > 0) {
        floor = a;
        const auto last = static_cast<std::size_t>(3 + bits / 16);
        floor.words[last] &= static_cast<std::uint16_t>(~(0xFFFF >> bits % 16));
        std::fill(floor.words.begin() + static_cast<std::ptrdiff_t>(last) + 1, floor.words.end(),
                  std::uint16_t{0});
    }
    if (a.IsNegative() && floor != a) qsub(constants::kOne, floor, floor);
    b = floor;
}

void qround(const QReal& a, QReal& b) {
    QReal floor, rest;
    qfloor(a, floor);
    qsub(floor, a, rest);
    const int bits = floor.words[1] - kBias;
    const bool isOdd = bits > 0 && bits <= kMantissaBits && MantissaBit(floor, bits - 1);
    const int order = qcmp(rest, constants::kHalf);
    if (order > 0 || (order == 0 && isOdd)) qadd(floor, constants::kOne, floor);
    b = floor;
}

}  // namespace quorix

#include "numerics/qcore.h"
#include "numerics/quotient.h"
#include "numerics/range.h"
#include "numerics/unpacked.h"
#include "numerics/word_products.h"

namespace quorix {
namespace {

using limbs::AddWithCarry;
using limbs::Column;
using limbs::DoubleLimb;
using limbs::High;
using limbs::kLimbs;
using limbs::Limb;
using limbs::Low;
using limbs::Mantissa;
using limbs::Product;
using limbs::SubtractWithBorrow;

// Three limbs, the least significant first.
using ThreeLimbs = std::array<Limb, 3>;

DoubleLimb Join(Limb high, Limb low) {
    return DoubleLimb{high} << 64 | low;
}

// The upper three limbs of a product, too small by less than 4 units.
inline ThreeLimbs UpperProduct(const ThreeLimbs& a, const ThreeLimbs& b) {
    const DoubleLimb p12 = Product(a[1], b[2]), p21 = Product(a[2], b[1]), p22 = Product(a[2], b[2]);
    Column column;
    limbs::Unrolled<3>([&](auto i) { column.Add(High(Product(a[i], b[2 - i]))); });
    column.Add(Low(p12));
    column.Add(Low(p21));
    ThreeLimbs product;
    product[0] = column.Next();
    column.Add(High(p12));
    column.Add(High(p21));
    column.Add(Low(p22));
    product[1] = column.Next();
    product[2] = Low(column.sum) + High(p22);
    return product;
}

// 1/d in units of 2^-127 for d in [1/2, 1), too small by less than 2^-111. The start is a division of
// doubles, made too small by at most 7 units of 2^-52; with e = 1 - d x, x + x (e + e^2) follows.
inline DoubleLimb ReciprocalOfTwoLimbs(const Mantissa& d) {
    const double start = 0x1p53 / static_cast<double>(static_cast<std::int64_t>(d[5] >> 11));
    const Limb x = static_cast<Limb>(static_cast<std::int64_t>(start * 0x1p52)) - 4;
    const DoubleLimb dx = Product(x, d[5]) + High(Product(x, d[4]));
    const Limb e = Low(((DoubleLimb{1} << 116) - dx) >> 3);
    const Limb correction = e + (High(Product(e, e)) >> 49);
    // The cut product d x makes e too large by up to 2^-115; a little less keeps the next remainder above
    // zero.
    return (DoubleLimb{x} << 75) + (Product(x, correction) >> 38) - (1 << 14);
}

// 1/d in units of 2^-191, too small by less than 2^-189: one step x + x e with e = 1 - d x, of which only the
// limbs that the step before left are computed.
inline ThreeLimbs Reciprocal(const Mantissa& d) {
    const DoubleLimb x = ReciprocalOfTwoLimbs(d);
    const Limb upper = High(x), lower = Low(x);
    const DoubleLimb u3 = Product(upper, d[3]), u4 = Product(upper, d[4]);
    const DoubleLimb l4 = Product(lower, d[4]), l5 = Product(lower, d[5]);
    Column column;
    for (const Limb limb : {High(Product(upper, d[2])), High(Product(lower, d[3])), Low(u3), Low(l4)})
        column.Add(limb);
    const Limb dx2 = column.Next();
    for (const Limb limb : {High(u3), High(l4), Low(u4), Low(l5)}) column.Add(limb);
    const Limb dx3 = column.Next();
    const Limb dx4 = Low(column.sum) + High(u4) + High(l5) + upper * d[5];
    unsigned char borrow = 0;
    const Limb e2 = SubtractWithBorrow(0, dx2, borrow);
    const Limb e3 = SubtractWithBorrow(0, dx3, borrow);
    const Limb e4 = SubtractWithBorrow(0, dx4, borrow);
    const DoubleLimb e = Join(e4, e3) << 48 | e2 >> 16;
    // One unit less makes up for the limbs that are left out of d x.
    const DoubleLimb correction =
        ((Product(upper, High(e)) + High(Product(upper, Low(e))) + High(Product(lower, High(e)))) >> 47) - 1;
    unsigned char carry = 0;
    ThreeLimbs reciprocal;
    reciprocal[0] = Low(correction);
    reciprocal[1] = AddWithCarry(lower, High(correction), carry);
    reciprocal[2] = AddWithCarry(upper, 0, carry);
    return reciprocal;
}

// n/d in units of 2^-383 within 2^-375: three limbs by the reciprocal, three more from the remainder.
inline Mantissa Quotient(const Mantissa& n, const Mantissa& d) {
    const ThreeLimbs x = Reciprocal(d);
    const ThreeLimbs q = UpperProduct({n[3], n[4], n[5]}, x);
    // Limbs 3 to 6 of q d; the remainder n - q d is below 2^-187, so that nothing above counts.
    std::array<DoubleLimb, 4> columns{};
    limbs::Unrolled<3>([&](auto i) { columns[0] += High(Product(q[i], d[2 - i])); });
    limbs::Unrolled<3>([&](auto k) {
        limbs::Unrolled<3>([&](auto i) {
            const DoubleLimb p = Product(q[i], d[3 + k - i]);
            columns[k] += Low(p);
            columns[k + 1] += High(p);
        });
        columns[k + 1] += High(columns[k]);
    });
    const Limb qd3 = Low(columns[0]), qd4 = Low(columns[1]), qd5 = Low(columns[2]);
    const Limb qd6 = Low(columns[3]) + q[1] * d[5] + q[2] * d[4];
    unsigned char borrow = 0;
    const Limb r3 = SubtractWithBorrow(n[0] >> 1 | n[1] << 63, qd3, borrow);
    const Limb r4 = SubtractWithBorrow(n[1] >> 1 | n[2] << 63, qd4, borrow);
    const Limb r5 = SubtractWithBorrow(n[2] >> 1 | n[3] << 63, qd5, borrow);
    const Limb r6 = SubtractWithBorrow(n[3] >> 1 | n[4] << 63, qd6, borrow);
    const ThreeLimbs low = UpperProduct({r3 >> 4 | r4 << 60, r4 >> 4 | r5 << 60, r5 >> 4 | r6 << 60}, x);
    unsigned char carry = 0;
    Mantissa quotient;
    quotient[0] = low[0] << 5;
    quotient[1] = low[1] << 5 | low[0] >> 59;
    quotient[2] = low[2] << 5 | low[1] >> 59;
    quotient[3] = AddWithCarry(q[0], low[2] >> 59, carry);
    quotient[4] = AddWithCarry(q[1], 0, carry);
    quotient[5] = AddWithCarry(q[2], 0, carry);
    return quotient;
}

// The iteration by words leaves out word products, up to 10 of them in the square, 20 in each of the two
// products that follow, each below one unit of the guard word, and cuts each result. The square and the first
// product enter the reciprocal four times, so that a quarter of the quotient comes out between 22 units too
// small and 125 too large. That decides the rounding only where the guard word lies near the half; there the
// iteration itself is done.
constexpr int kQuotientDefect = 22;
constexpr int kQuotientExcess = 125;
constexpr Limb kLimbError = Limb{1} << 16;

inline bool RoundingIsClear(const Mantissa& normalised, int shift) {
    const Limb guardUnit = Limb{1} << (33 + shift);
    const Limb rest = (normalised[0] + limbs::kHalfUnit) & (limbs::kUnit - 1);
    return rest >= kQuotientDefect * guardUnit + kLimbError &&
           rest < limbs::kUnit - kQuotientExcess * guardUnit - kLimbError;
}

inline int ShiftQuotient(Mantissa& quotient) {
    if ((quotient[kLimbs - 1] & limbs::kTopBit) != 0) return 0;
    limbs::ShiftLeft(quotient, 1);
    return 1;
}

// For a divisor of one word nothing is left out, and the quotient is cut.
Mantissa QuotientByShortDivision(Mantissa dividend, Limb divisor) {
    const Limb top = dividend[kLimbs - 1] >> 49;
    limbs::ShiftLeft(dividend, 15);
    limbs::DivideShort(dividend, static_cast<std::uint32_t>(divisor), top);
    return dividend;
}

[[gnu::noinline]] int DivideByWords(const Mantissa& dividend, const Mantissa& divisor, Mantissa& quotient) {
    const bool hasOneWord = ((divisor[5] & (limbs::kUnit - 1)) | divisor[4] | divisor[3] | divisor[2] |
                             divisor[1] | divisor[0]) == 0;
    if (hasOneWord) {
        quotient = QuotientByShortDivision(dividend, divisor[5] >> 48);
    } else {
        quotient = QuarterQuotientByWords(dividend, divisor);
        limbs::ShiftLeft(quotient, 1);
    }
    return ShiftQuotient(quotient);
}

// Both operands are non-zero.
[[gnu::always_inline]] inline Unpacked DivideNonZero(const Unpacked& dividend, const Unpacked& divisor) {
    Unpacked result;
    result.sign = dividend.sign ^ divisor.sign;
    result.mantissa = Quotient(dividend.mantissa, divisor.mantissa);
    int shift = ShiftQuotient(result.mantissa);
    if (!RoundingIsClear(result.mantissa, shift)) [[unlikely]] {
        shift = DivideByWords(dividend.mantissa, divisor.mantissa, result.mantissa);
    }
    result.exponent = dividend.exponent - divisor.exponent + QReal::kExponentOfOne - shift +
                      limbs::RoundHalfUp(result.mantissa);
    return result;
}

}  // namespace

Mantissa MantissaQuotient(const Mantissa& dividend, const Mantissa& divisor) {
    return Quotient(dividend, divisor);
}

Unpacked Divide(const Unpacked& dividend, const Unpacked& divisor) {
    if (dividend.IsZero()) return {};
    return DivideNonZero(dividend, divisor);
}

void qdiv(const QReal& divisor, const QReal& dividend, QReal& quotient) {
    if (dividend.IsZero()) return qclear(quotient);
    const std::uint16_t sign = divisor.words[0] ^ dividend.words[0];
    if (divisor.IsZero()) {
        mtherr("qdiv", NUMERIC_SINGULARITY);
        quotient.words[0] = sign;
        return qinfin(quotient);
    }
    if (!StoreInRange(DivideNonZero(Unpack(dividend), Unpack(divisor)), quotient))
        Overflow("qdiv", sign, quotient);
}

}  // namespace quorix

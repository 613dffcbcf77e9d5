#include "plain_core.h"

#include <algorithm>
#include <array>
#include <bit>
#include <utility>

#include "numerics/constants.h"
#include "numerics/numeric_error.h"
#include "numerics/qcore.h"
#include "plain_register.h"

namespace quorix::plain {
namespace {

void AddOne(Register& r) {
    for (std::size_t i = 23; i >= 2 && ++r[i] == 0; --i) {
    }
}

void Raise(Register& r) {
    ShiftDownOne(r);
    if (r[1] == kLargest) {
        mtherr("mdnorm", NUMERIC_OVERFLOW);
    } else {
        ++r[1];
    }
}

void RoundAndNormalise(Register& r) {
    for (int i = 0; i < 3 && r[2] != 0; ++i) Raise(r);
    for (int i = 0; i < 3 && (r[3] & 0x8000) == 0; ++i) {
        if (r[1] == 0) {
            mtherr("mdnorm", NUMERIC_UNDERFLOW);
            continue;
        }
        ShiftUpOne(r);
        --r[1];
    }
    if (r[24] & 0x8000) AddOne(r);
    if (r[2] != 0) Raise(r);
    r[24] = 0;
}

void Overflow(const char* name, std::uint16_t sign, QReal& c) {
    mtherr(name, NUMERIC_OVERFLOW);
    c.words[0] = sign;
    qinfin(c);
}

// Bit i of the mantissa, from the top.
bool Bit(const QReal& a, int i) {
    return (a.words[static_cast<std::size_t>(3 + i / 16)] & 0x8000 >> i % 16) != 0;
}

bool HasOneWord(const QReal& a) {
    return std::all_of(a.words.begin() + 4, a.words.end(), [](int w) { return w == 0; });
}

void AddCore(Register a, Register b, QReal& c) {
    const int difference = a[1] - b[1];
    if (difference > 0) std::swap(a, b);
    if (std::abs(difference) > kBits + 1) return Store(b, c);
    ShiftDown(a, std::abs(difference));
    if (difference == 0) {
        const auto order =
            std::lexicographical_compare_three_way(a.begin() + 2, a.end(), b.begin() + 2, b.end());
        if (order == 0) {
            if (a[0] != b[0] || b[1] == 0) return qclear(c);
            if (b[1] >= kLargest) return Overflow("qadd", a[0], c);
            ++b[1];
            return Store(b, c);
        }
        if (order > 0) std::swap(a, b);
    }
    const bool isAddition = a[0] == b[0];
    std::int32_t carry = 0;
    for (std::size_t i = 24; i >= 2; --i) {
        carry += isAddition ? b[i] + a[i] : b[i] - a[i];
        b[i] = static_cast<std::uint16_t>(carry);
        carry >>= 16;
    }
    int exponent = b[1];
    for (bool rounded = !isAddition;; rounded = true) {
        const int count = Normalise(b);
        if (count == kNothingLeft) return qclear(c);
        exponent -= count;
        if (exponent > kLargest) return Overflow("qadd", a[0], c);
        if (exponent <= 0) return qclear(c);
        if (rounded || (b[24] & 0x8000) == 0) break;
        AddOne(b);
        b[24] = 0;
    }
    b[1] = static_cast<std::uint16_t>(exponent);
    Store(b, c);
}

// Sum of the word products whose upper half reaches the first `n` words, cut to `n` words from word 3 on.
Register MultiplyWords(const Register& a, const Register& b, std::size_t n) {
    std::array<std::uint64_t, 24> columns{};
    for (std::size_t i = 0; i < n; ++i) {
        for (std::size_t j = 0; i + j < n; ++j) {
            const std::uint32_t product = std::uint32_t{a[3 + i]} * b[3 + j];
            columns[i + j + 1] += product & 0xFFFF;
            columns[i + j] += product >> 16;
        }
    }
    Register c{};
    std::uint64_t carry = columns[n] >> 16;
    for (std::size_t k = n; k-- > 0; carry >>= 16) {
        carry += columns[k];
        c[3 + k] = static_cast<std::uint16_t>(carry);
    }
    return c;
}

Register MultiplyByWord(std::uint16_t factor, const Register& b) {
    Register c{};
    std::uint32_t carry = 0;
    for (std::size_t i = 23; i >= 3; --i) {
        carry += std::uint32_t{b[i]} * factor;
        c[i + 1] = static_cast<std::uint16_t>(carry);
        carry >>= 16;
    }
    c[3] = static_cast<std::uint16_t>(carry);
    return c;
}

void FinishProduct(Register& product, const char* name, const QReal& a, const QReal& b, QReal& c) {
    product[1] = kBias;
    RoundAndNormalise(product);
    const int exponent = a.words[1] + b.words[1] - 2 * kBias + product[1];
    if (exponent > kLargest) return Overflow(name, c.words[0], c);
    if (exponent <= 0) return qclear(c);
    product[0] = a.words[0] == b.words[0] ? 0 : QReal::kNegative;
    product[1] = static_cast<std::uint16_t>(exponent);
    Store(product, c);
}

Register ShortDivision(std::uint16_t divisor, Register b) {
    ShiftDown(b, 2);
    Register q{};
    std::uint32_t remainder = b[3];
    for (std::size_t i = 3; i <= 24; ++i) {
        remainder = remainder << 16 | (i < 24 ? b[i + 1] : 0);
        q[i] = static_cast<std::uint16_t>(remainder / divisor);
        remainder %= divisor;
    }
    return q;
}

// Newton's iteration x' = 2x - d x^2 on x/4, with the working length doubled from step to step.
Register NewtonDivision(const Register& divisor, const Register& dividend) {
    Register x{};
    x[3] = static_cast<std::uint16_t>((1u << 30) / divisor[3]);
    for (std::size_t n = 1; n < 22;) {
        n = std::min<std::size_t>(2 * n, 22);
        Register t = MultiplyWords(MultiplyWords(x, x, n), divisor, n);
        ShiftUpOne(t);
        ShiftUpOne(t);
        ShiftUpOne(x);
        std::int32_t borrow = 0;
        for (std::size_t i = 24; i >= 2; --i) {
            borrow += x[i] - t[i];
            x[i] = static_cast<std::uint16_t>(borrow);
            borrow >>= 16;
        }
    }
    return MultiplyWords(x, dividend, 22);
}

// A real number whose exponent may leave the range: `scaled` times 2^shift.
struct Scaled {
    QReal scaled;
    int shift = 0;
};

Scaled Scale(const QReal& a) {
    Scaled s{a, a.IsZero() ? 0 : a.words[1] - QReal::kExponentOfOne};
    if (!a.IsZero()) s.scaled.words[1] = QReal::kExponentOfOne;
    return s;
}

Scaled Product(const QReal& a, const QReal& b) {
    const Scaled x = Scale(a), y = Scale(b);
    Scaled c{{}, x.shift + y.shift};
    Multiply(x.scaled, y.scaled, c.scaled);
    return c;
}

Scaled Sum(Scaled a, Scaled b) {
    if (a.scaled.IsZero()) return b;
    if (b.scaled.IsZero()) return a;
    if (a.shift < b.shift) std::swap(a, b);
    const int exponent = b.scaled.words[1] + b.shift - a.shift;
    if (exponent <= 0) return a;
    b.scaled.words[1] = static_cast<std::uint16_t>(exponent);
    Add(a.scaled, b.scaled, a.scaled);
    return a;
}

Scaled Quotient(const Scaled& a, const Scaled& b) {
    Scaled c{{}, b.shift - a.shift};
    Divide(a.scaled, b.scaled, c.scaled);
    return c;
}

Scaled Negative(Scaled a) {
    qneg(a.scaled);
    return a;
}

void Restore(const Scaled& s, const char* name, QReal& c) {
    const int exponent = s.scaled.words[1] + s.shift;
    if (s.scaled.IsZero() || exponent <= 0) return qclear(c);
    if (exponent > kLargest) return Overflow(name, s.scaled.words[0], c);
    c = s.scaled;
    c.words[1] = static_cast<std::uint16_t>(exponent);
}

// One part of a product or quotient; `negate` turns its sign.
template <class Operation>
QReal Part(Operation operation, const QReal& a, const QReal& b, bool negate = false) {
    QReal c;
    c.words[0] = (a.words[0] != b.words[0]) != negate ? QReal::kNegative : 0;
    const std::uint16_t sign = c.words[0];
    operation(a, b, c);
    if (!c.IsZero()) c.words[0] = sign;
    return c;
}

}  // namespace

void Add(const QReal& a, const QReal& b, QReal& sum) {
    AddCore(Load(a), Load(b), sum);
}

void Subtract(const QReal& subtrahend, const QReal& minuend, QReal& difference) {
    Register a = Load(subtrahend);
    a[0] = static_cast<std::uint16_t>(~a[0]);
    AddCore(a, Load(minuend), difference);
}

void Multiply(const QReal& a, const QReal& b, QReal& product) {
    if (a.IsZero() || b.IsZero()) return qclear(product);
    Register c = HasOneWord(a)   ? MultiplyByWord(a.words[3], Load(b))
                 : HasOneWord(b) ? MultiplyByWord(b.words[3], Load(a))
                                 : MultiplyWords(Load(a), Load(b), 22);
    FinishProduct(c, "qmul", a, b, product);
}

void MultiplyShort(const QReal& a, const QReal& b, QReal& product) {
    if (a.IsZero() || b.IsZero()) return qclear(product);
    Register c = MultiplyByWord(a.words[3], Load(b));
    FinishProduct(c, "qmuli", a, b, product);
}

void Divide(const QReal& divisor, const QReal& dividend, QReal& quotient) {
    if (dividend.IsZero()) return qclear(quotient);
    const std::uint16_t sign = divisor.words[0] == dividend.words[0] ? 0 : QReal::kNegative;
    if (divisor.IsZero()) {
        mtherr("qdiv", NUMERIC_SINGULARITY);
        quotient.words[0] = sign;
        return qinfin(quotient);
    }
    Register q = HasOneWord(divisor) ? ShortDivision(divisor.words[3], Load(dividend))
                                     : NewtonDivision(Load(divisor), Load(dividend));
    q[1] = kBias;
    RoundAndNormalise(q);
    const int exponent = dividend.words[1] - divisor.words[1] + 2 + q[1];
    if (exponent < 1) return qclear(quotient);
    if (exponent > kLargest) return Overflow("qdiv", sign, quotient);
    q[0] = sign;
    q[1] = static_cast<std::uint16_t>(exponent);
    Store(q, quotient);
}

int Compare(const QReal& a, const QReal& b) {
    if (a.words[1] < 337 && b.words[1] < 337) {
        QReal difference;
        Subtract(b, a, difference);
        return difference.IsZero() ? 0 : difference.IsNegative() ? -1 : 1;
    }
    if (a.words[0] != b.words[0]) return a.IsNegative() ? -1 : 1;
    if (a == b) return 0;
    return (a.words > b.words) != a.IsNegative() ? 1 : -1;
}

void FromInteger(std::int32_t n, QReal& a) {
    Register r{};
    const std::uint32_t magnitude =
        n < 0 ? 0u - static_cast<std::uint32_t>(n) : static_cast<std::uint32_t>(n);
    r[3] = static_cast<std::uint16_t>(magnitude >> 16);
    r[4] = static_cast<std::uint16_t>(magnitude);
    const int count = Normalise(r);
    if (magnitude == 0) return qclear(a);
    r[0] = n < 0 ? QReal::kNegative : 0;
    r[1] = static_cast<std::uint16_t>(kBias + 32 - count);
    Store(r, a);
}

void SplitInteger(const QReal& a, std::int32_t& n, QReal& fraction) {
    const int bits = a.words[1] - kBias;
    std::uint64_t integer = 0;
    if (a.IsZero() || bits <= 0) {
        n = 0;
        fraction = a;
        if (a.IsZero()) qclear(fraction);
        return;
    }
    Register r = Load(a);
    for (int i = 0; i < std::min(bits, kBits); ++i) {
        integer = std::min<std::uint64_t>(integer << 1 | r[3] >> 15, 0x7FFFFFFF);
        ShiftUpOne(r);
        r[2] = 0;
    }
    if (bits > 31) integer = 0x7FFFFFFF;
    n = static_cast<std::int32_t>(a.IsNegative() ? 0 - integer : integer);
    const int count = Normalise(r);
    if (count == kNothingLeft) return qclear(fraction);
    r[0] = 0;
    r[1] = static_cast<std::uint16_t>(kBias - count);
    Store(r, fraction);
}

void Floor(const QReal& a, QReal& b) {
    const int bits = a.words[1] - kBias;
    if (a.IsZero()) return qclear(b);
    if (bits >= kBits) return qmov(a, b);
    QReal floor = a;
    for (auto i = static_cast<std::size_t>(std::max(bits, 0)); i < kBits; ++i)
        floor.words[3 + i / 16] &= static_cast<std::uint16_t>(~(0x8000 >> i % 16));
    if (bits <= 0) qclear(floor);
    if (a.IsNegative() && floor != a) Subtract(constants::kOne, floor, floor);
    b = floor;
}

void Round(const QReal& a, QReal& b) {
    QReal floor, rest;
    Floor(a, floor);
    Subtract(floor, a, rest);
    const int order = Compare(rest, constants::kHalf);
    const int bits = floor.words[1] - kBias;
    const bool isOdd = bits > 0 && bits <= kBits && Bit(floor, bits - 1);
    if (order > 0 || (order == 0 && isOdd)) Add(floor, constants::kOne, floor);
    b = floor;
}

void FromDouble(double d, QReal& a) {
    const auto bits = std::bit_cast<std::uint64_t>(d);
    const int biased = static_cast<int>(bits >> 52 & 0x7FF);
    const std::uint64_t mantissa = (bits & 0xFFFFFFFFFFFFF) | (biased ? 1ull << 52 : 0);
    Register r{};
    for (std::size_t i = 0; i < 4; ++i) r[3 + i] = static_cast<std::uint16_t>(mantissa >> (48 - 16 * i));
    const int count = Normalise(r);
    if (mantissa == 0) return qclear(a);
    r[0] = bits >> 63 ? QReal::kNegative : 0;
    r[1] = static_cast<std::uint16_t>(std::max(biased, 1) + 15617 + 11 - count);
    Store(r, a);
}

double ToDouble(const QReal& a) {
    const std::uint64_t sign = a.IsNegative() ? 1ull << 63 : 0;
    int exponent = a.words[1] - 15617;
    if (exponent < -52) return std::bit_cast<double>(sign);
    std::uint64_t kept = 0;
    const int digits = exponent > 0 ? 53 : 52 + exponent;
    bool round = false, sticky = false;
    for (int i = 0; i < kBits; ++i) {
        const bool bit = Bit(a, i);
        if (i < digits) kept = kept << 1 | bit;
        if (i == digits) round = bit;
        if (i > digits) sticky |= bit;
    }
    if (round && (sticky || (kept & 1))) ++kept;
    const std::uint64_t result =
        exponent > 0 ? (static_cast<std::uint64_t>(exponent - 1) << 52) + kept : kept;
    if (exponent > 0x7FF || result >= 0x7FFull << 52) {
        mtherr("qtoe", NUMERIC_OVERFLOW);
        return std::bit_cast<double>(sign | 0x7FEFFFFFFFFFFFFF);
    }
    return std::bit_cast<double>(sign | result);
}

void ComplexMultiply(const QComplex& a, const QComplex& b, QComplex& c) {
    const bool swap = !a.im.IsZero() && !a.re.IsZero();
    const QComplex x = swap ? b : a, y = swap ? a : b;
    if (x.im.IsZero()) {
        c = {Part(Multiply, x.re, y.re), Part(Multiply, x.re, y.im)};
    } else if (x.re.IsZero()) {
        c = {Part(Multiply, x.im, y.im, true), Part(Multiply, x.im, y.re)};
    } else {
        const Scaled re = Sum(Product(a.re, b.re), Negative(Product(a.im, b.im)));
        const Scaled im = Sum(Product(a.re, b.im), Product(a.im, b.re));
        Restore(re, "qcmul", c.re);
        Restore(im, "qcmul", c.im);
    }
}

void ComplexDivide(const QComplex& a, const QComplex& b, QComplex& c) {
    if (a.re.IsZero() && a.im.IsZero()) {
        mtherr("qcdiv", NUMERIC_OVERFLOW);
        c = {};
        qinfin(c.re);
    } else if (a.im.IsZero()) {
        c = {Part(Divide, a.re, b.re), Part(Divide, a.re, b.im)};
    } else if (a.re.IsZero()) {
        c = {Part(Divide, a.im, b.im), Part(Divide, a.im, b.re, true)};
    } else {
        const Scaled norm = Sum(Product(a.re, a.re), Product(a.im, a.im));
        const Scaled re = Sum(Product(b.re, a.re), Product(b.im, a.im));
        const Scaled im = Sum(Product(b.im, a.re), Negative(Product(b.re, a.im)));
        Restore(Quotient(norm, re), "qcdiv", c.re);
        Restore(Quotient(norm, im), "qcdiv", c.im);
    }
}

}  // namespace quorix::plain

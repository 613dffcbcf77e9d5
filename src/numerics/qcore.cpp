#include "numerics/qcore.h"

#include <algorithm>

#include "plain_core.h"

namespace quorix {

void qadd(const QReal& a, const QReal& b, QReal& sum) {
    plain::Add(a, b, sum);
}
void qsub(const QReal& subtrahend, const QReal& minuend, QReal& difference) {
    plain::Subtract(subtrahend, minuend, difference);
}
void qmul(const QReal& a, const QReal& b, QReal& product) {
    plain::Multiply(a, b, product);
}
void qmuli(const QReal& a, const QReal& b, QReal& product) {
    plain::MultiplyShort(a, b, product);
}
void qdiv(const QReal& divisor, const QReal& dividend, QReal& quotient) {
    plain::Divide(divisor, dividend, quotient);
}
int qcmp(const QReal& a, const QReal& b) {
    return plain::Compare(a, b);
}
void ltoq(std::int32_t n, QReal& a) {
    plain::FromInteger(n, a);
}
void qifrac(const QReal& a, std::int32_t& n, QReal& fraction) {
    plain::SplitInteger(a, n, fraction);
}
void qfloor(const QReal& a, QReal& b) {
    plain::Floor(a, b);
}
void qround(const QReal& a, QReal& b) {
    plain::Round(a, b);
}
void etoq(double d, QReal& a) {
    plain::FromDouble(d, a);
}
double qtoe(const QReal& a) {
    return plain::ToDouble(a);
}
bool asctoq(std::string_view text, QReal& a) {
    return plain::FromText(text, a);
}
std::string qtoasc(const QReal& a, int n) {
    return plain::ToText(a, n);
}
std::string qtoplain(const QReal& a, int n) {
    return plain::ToPositionalText(a, n);
}
void qcmul(const QComplex& a, const QComplex& b, QComplex& product) {
    plain::ComplexMultiply(a, b, product);
}
void qcdiv(const QComplex& divisor, const QComplex& dividend, QComplex& quotient) {
    plain::ComplexDivide(divisor, dividend, quotient);
}

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
    std::fill(a.words.begin() + 3, a.words.end(), std::uint16_t{0xFFFF});
    a.words[1] = QReal::kLargestExponent;
    a.words[2] = 0;
}

void qfrexp(const QReal& a, std::int32_t& n, QReal& mantissa) {
    n = a.IsZero() ? 0 : a.words[1] - (QReal::kExponentOfOne - 1);
    mantissa = a;
    if (a.IsZero()) return qclear(mantissa);
    mantissa.words[1] = QReal::kExponentOfOne - 1;
}

void qldexp(const QReal& a, std::int32_t n, QReal& b) {
    const std::int64_t exponent = std::int64_t{a.words[1]} + n;
    if (a.IsZero() || exponent < 1) return qclear(b);
    b = a;
    if (exponent > QReal::kLargestExponent) {
        mtherr("qldexp", NUMERIC_OVERFLOW);
        return qinfin(b);
    }
    b.words[1] = static_cast<std::uint16_t>(exponent);
}

void qcadd(const QComplex& a, const QComplex& b, QComplex& sum) {
    qadd(a.re, b.re, sum.re);
    qadd(a.im, b.im, sum.im);
}

void qcsub(const QComplex& subtrahend, const QComplex& minuend, QComplex& difference) {
    qsub(subtrahend.re, minuend.re, difference.re);
    qsub(subtrahend.im, minuend.im, difference.im);
}

}  // namespace quorix

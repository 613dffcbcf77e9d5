#include "numerics/qcore.h"
#include "numerics/range.h"
#include "numerics/unpacked.h"

namespace quorix {
namespace {

std::uint16_t ProductSign(const QReal& a, const QReal& b) {
    return a.words[0] ^ b.words[0];
}

// a * b, or -a * b, with the sign of an overflow right.
QReal PartProduct(const QReal& a, const QReal& b, bool negate = false) {
    QReal product;
    product.words[0] = ProductSign(a, b);
    qmul(a, b, product);
    if (negate && !product.IsZero()) qneg(product);
    return product;
}

QReal PartQuotient(const QReal& divisor, const QReal& dividend, bool negate = false) {
    QReal quotient;
    qdiv(divisor, dividend, quotient);
    if (negate && !quotient.IsZero()) qneg(quotient);
    return quotient;
}

}  // namespace

void Pack(const Unpacked& a, const char* name, QReal& result) {
    if (!StoreInRange(a, result)) Overflow(name, a.sign, result);
}

void qcadd(const QComplex& a, const QComplex& b, QComplex& sum) {
    qadd(a.re, b.re, sum.re);
    qadd(a.im, b.im, sum.im);
}

void qcsub(const QComplex& subtrahend, const QComplex& minuend, QComplex& difference) {
    qsub(subtrahend.re, minuend.re, difference.re);
    qsub(subtrahend.im, minuend.im, difference.im);
}

// The general case keeps the exponents aside, so that no product overflows or vanishes on the way.
void qcmul(const QComplex& a, const QComplex& b, QComplex& product) {
    if (a.im.IsZero()) {
        product = {PartProduct(a.re, b.re), PartProduct(a.re, b.im)};
    } else if (a.re.IsZero()) {
        product = {PartProduct(a.im, b.im, true), PartProduct(a.im, b.re)};
    } else if (b.im.IsZero()) {
        product = {PartProduct(a.re, b.re), PartProduct(a.im, b.re)};
    } else if (b.re.IsZero()) {
        product = {PartProduct(a.im, b.im, true), PartProduct(a.re, b.im)};
    } else {
        const Unpacked ar = Unpack(a.re), ai = Unpack(a.im), br = Unpack(b.re), bi = Unpack(b.im);
        Pack(Add(Multiply(ar, br), Negated(Multiply(ai, bi))), "qcmul", product.re);
        Pack(Add(Multiply(ar, bi), Multiply(ai, br)), "qcmul", product.im);
    }
}

void qcdiv(const QComplex& divisor, const QComplex& dividend, QComplex& quotient) {
    if (divisor.re.IsZero() && divisor.im.IsZero()) {
        mtherr("qcdiv", NUMERIC_OVERFLOW);
        quotient = {};
        qinfin(quotient.re);
    } else if (divisor.im.IsZero()) {
        quotient = {PartQuotient(divisor.re, dividend.re), PartQuotient(divisor.re, dividend.im)};
    } else if (divisor.re.IsZero()) {
        quotient = {PartQuotient(divisor.im, dividend.im), PartQuotient(divisor.im, dividend.re, true)};
    } else {
        const Unpacked ar = Unpack(divisor.re), ai = Unpack(divisor.im);
        const Unpacked br = Unpack(dividend.re), bi = Unpack(dividend.im);
        const Unpacked norm = Add(Multiply(ar, ar), Multiply(ai, ai));
        Pack(Divide(Add(Multiply(br, ar), Multiply(bi, ai)), norm), "qcdiv", quotient.re);
        Pack(Divide(Add(Multiply(bi, ar), Negated(Multiply(br, ai))), norm), "qcdiv", quotient.im);
    }
}

}  // namespace quorix

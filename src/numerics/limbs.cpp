#include "numerics/limbs.h"

namespace quorix::limbs {

Mantissa UpperProduct(const Mantissa& a, const Mantissa& b) {
    return InlineUpperProduct(a, b);
}

void AddProduct(Mantissa& m, const Mantissa& factor, const Mantissa& c) {
    Mantissa sum = InlineUpperProduct(m, factor);
    Add(sum, c);
    Unrolled<kLimbs>([&](auto i) { m[i] = sum[i]; });
}

void SubtractProduct(Mantissa& m, const Mantissa& factor, const Mantissa& c) {
    const Mantissa product = InlineUpperProduct(m, factor);
    unsigned char borrow = 0;
    Unrolled<kLimbs>([&](auto i) { m[i] = SubtractWithBorrow(c[i], product[i], borrow); });
}

void AddProduct(Mantissa& m, const Mantissa& factor, Limb whole, const Mantissa& n) {
    Mantissa sum = InlineUpperProduct(m, factor);
    DoubleLimb carry = 0;
    Unrolled<kLimbs>([&](auto i) {
        carry += Product(n[i], whole) + sum[i];
        m[i] = Low(carry);
        carry >>= kLimbBits;
    });
}

}  // namespace quorix::limbs

#pragma once

// Complex numbers of 384 bits, in which chains of complex functions stay. Internal to the number functions.

#include "numerics/wide_functions.h"

namespace quorix {

struct WideComplex {
    Wide re, im;

    [[nodiscard]] bool IsZero() const { return re.IsZero() && im.IsZero(); }
};

inline WideComplex Widen(const QComplex& z) {
    return {Widen(z.re), Widen(z.im)};
}

/// Rounds both parts; what overflows is reported under `name`.
inline void Narrow(const WideComplex& z, const char* name, QComplex& result) {
    Narrow(z.re, name, result.re);
    Narrow(z.im, name, result.im);
}

/// i * z and -i * z.
inline WideComplex TimesI(const WideComplex& z) {
    return {-z.im, z.re};
}
inline WideComplex TimesMinusI(const WideComplex& z) {
    return {z.im, -z.re};
}

Wide Magnitude(const WideComplex& z);
WideComplex Exp(const WideComplex& z);
/// z is not zero.
WideComplex Log(const WideComplex& z);
WideComplex SquareRoot(const WideComplex& z);

}  // namespace quorix

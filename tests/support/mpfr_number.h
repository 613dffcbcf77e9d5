#pragma once

// MPFR numbers beside those of the core, as an independent judge.

#include <mpfr.h>

#include "numerics/qcore.h"
#include "numerics/qreal.h"

namespace quorix {

class MpfrNumber {
  public:
    explicit MpfrNumber(mpfr_prec_t bits = 500) {
        mpfr_init2(value_, bits);
        mpfr_set_zero(value_, 1);
    }
    /// The value of a, exactly.
    explicit MpfrNumber(const QReal& a, mpfr_prec_t bits = 500) : MpfrNumber(bits) {
        for (std::size_t i = 3; i < QReal::kWords; ++i) {
            mpfr_mul_2ui(value_, value_, 16, MPFR_RNDN);
            mpfr_add_ui(value_, value_, a.words[i], MPFR_RNDN);
        }
        mpfr_mul_2si(value_, value_, a.words[1] - (QReal::kExponentOfOne - 1) - 336, MPFR_RNDN);
        if (a.IsNegative()) mpfr_neg(value_, value_, MPFR_RNDN);
    }
    MpfrNumber(const MpfrNumber&) = delete;
    MpfrNumber& operator=(const MpfrNumber&) = delete;
    ~MpfrNumber() { mpfr_clear(value_); }

    mpfr_ptr Get() { return value_; }

    /// The nearest number of 336 bits, which has to lie in the exponent range.
    QReal ToQReal() {
        QReal a;
        if (mpfr_zero_p(value_)) return a;
        mpfr_prec_round(value_, 336, MPFR_RNDN);
        a.words[0] = mpfr_signbit(value_) ? QReal::kNegative : 0;
        a.words[1] = static_cast<std::uint16_t>(mpfr_get_exp(value_) + (QReal::kExponentOfOne - 1));
        mpz_t mantissa;
        mpz_init(mantissa);
        mpfr_get_z_2exp(mantissa, value_);
        mpz_abs(mantissa, mantissa);
        for (std::size_t i = QReal::kWords; i-- > 3;) {
            a.words[i] = static_cast<std::uint16_t>(mpz_get_ui(mantissa) & 0xFFFF);
            mpz_fdiv_q_2exp(mantissa, mantissa, 16);
        }
        mpz_clear(mantissa);
        return a;
    }

  private:
    mpfr_t value_;
};

}  // namespace quorix

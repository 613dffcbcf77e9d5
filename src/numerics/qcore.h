#pragma once

// The arithmetic core on extended reals. Results go through the last reference; output may alias any input.
// Nothing here throws or stops: a failure records a code by mtherr and the result is a finite pattern.
// Not re-entrant across threads: the engine is single-threaded by design.

#include <cstdint>
#include <string>
#include <string_view>

#include "numerics/qreal.h"

namespace quorix {

/// Codes of mtherr. 0 means that no failure was recorded.
enum NumericError : int {
    NUMERIC_OK = 0,
    NUMERIC_DOMAIN = 1,
    NUMERIC_SINGULARITY = 2,
    NUMERIC_OVERFLOW = 3,
    NUMERIC_UNDERFLOW = 4,
    NUMERIC_TOTAL_LOSS = 5,
    NUMERIC_PARTIAL_LOSS = 6,
};

/// Records `code` in the numeric error flag (a later code replaces an earlier one) and, when debug output is
/// switched on (SetDebugStream), writes "\nNAME WORD error\n" to it.
void mtherr(const char* name, int code);
/// The last recorded code, 0 for none; it stays until ClearNumericError.
int NumericErrorFlag();
void ClearNumericError();
/// Where reports go: a function that takes one line, or null (the default) for silence.
using DebugSink = void (*)(std::string_view line);
void SetDebugStream(DebugSink sink);

void qmov(const QReal& a, QReal& b);
void qclear(QReal& a);
void qneg(QReal& a);
void qabs(QReal& a);
/// Writes the largest finite magnitude, leaving the sign word alone.
void qinfin(QReal& a);

void qadd(const QReal& a, const QReal& b, QReal& sum);
/// difference = minuend - subtrahend: the subtrahend comes first.
void qsub(const QReal& subtrahend, const QReal& minuend, QReal& difference);
void qmul(const QReal& a, const QReal& b, QReal& product);
/// product = b * a where a's mantissa has only its top word set.
void qmuli(const QReal& a, const QReal& b, QReal& product);
/// product = n!, rounded after each factor as qmul rounds it.
void qfactorial(std::uint16_t n, QReal& product);
/// quotient = dividend / divisor: the divisor comes first. 0/0 is 0 without report; x/0 reports singularity.
void qdiv(const QReal& divisor, const QReal& dividend, QReal& quotient);
/// 1, 0, -1 for a above, equal to, below b. Equal to zero at a - b = ±0.
int qcmp(const QReal& a, const QReal& b);

void ltoq(std::int32_t n, QReal& a);
/// n = integer part, saturating at ±2147483647; fraction = fractional part, non-negative for |a| >= 1, a
/// itself below.
void qifrac(const QReal& a, std::int32_t& n, QReal& fraction);
/// a = mantissa · 2^n with the mantissa's exponent word 16639 (magnitude in [1/2, 1)).
void qfrexp(const QReal& a, std::int32_t& n, QReal& mantissa);
/// b = a · 2^n.
void qldexp(const QReal& a, std::int32_t n, QReal& b);
void qfloor(const QReal& a, QReal& b);
/// Nearest integer; an exact half goes to the even neighbour.
void qround(const QReal& a, QReal& b);

/// Exact for every finite double, subnormals included. Callers keep infinities and not-a-numbers out.
void etoq(double d, QReal& a);
/// Round to nearest even; beyond the range the largest finite double with an overflow report.
double qtoe(const QReal& a);

/// Decimal text ("-12.5E+3", blanks skipped anywhere, at most 99 digits used) to number. Malformed text gives
/// 0 and a debug line; result tells whether the text was well formed. Out of range sets the numeric flag.
bool asctoq(std::string_view text, QReal& a);
/// Exponent form: sign or blank, digit, ".", n digits (0 to 99), "E" and the exponent: " 3.33E-1".
std::string qtoasc(const QReal& a, int n);
/// Positional form without trailing zeros; n + min(e, 0) digits behind the leading one, e the decimal
/// exponent. For magnitudes below 10^n. First character is "-" or a blank.
std::string qtoplain(const QReal& a, int n);

void qcadd(const QComplex& a, const QComplex& b, QComplex& sum);
/// difference = minuend - subtrahend.
void qcsub(const QComplex& subtrahend, const QComplex& minuend, QComplex& difference);
void qcmul(const QComplex& a, const QComplex& b, QComplex& product);
/// quotient = dividend / divisor.
void qcdiv(const QComplex& divisor, const QComplex& dividend, QComplex& quotient);

}  // namespace quorix

#include <array>

#include "numerics/numeric_error.h"
#include "numerics/powers_of_ten.h"
#include "numerics/qcore.h"
#include "numerics/range.h"
#include "numerics/unpacked.h"

namespace quorix {
namespace {

using limbs::kLimbs;
using limbs::Limb;

constexpr int kMostDigits = 99;
// Powers beyond the table.
constexpr int kExponentLimit = 8192;
// An exponent that has reached this before its next digit is out of range.
constexpr int kExponentBeforeDigit = 3276;
// Ten to a power beyond this one overflows although a quotient by it may not.
constexpr int kLargestDivisorPower = 5008;
constexpr int kLargestTablePower = 4096;

// Decimal digits as a binary integer, gathered in blocks of one limb.
class DigitAccumulator {
  public:
    void AddDigit(Limb digit) {
        block_ = block_ * 10 + digit;
        if (++blockDigits_ == kDigitsPerLimb) Flush(kLimbOfDigits);
    }

    /// The integer as a normalised number; zero for no digits or zeros alone.
    Unpacked Value() {
        Limb scale = 1;
        for (int i = 0; i < blockDigits_; ++i) scale *= 10;
        Flush(scale);
        Unpacked value;
        value.mantissa = integer_;
        if (limbs::IsZero(integer_)) return value;
        value.exponent = QReal::kExponentOfOne - 1 + static_cast<int>(kLimbs) * limbs::kLimbBits;
        value.exponent -= limbs::Normalise(value.mantissa);
        return value;
    }

  private:
    void Flush(Limb scale) {
        Limb carry = block_;
        for (std::size_t i = 0; i < used_; ++i) {
            const limbs::DoubleLimb product = limbs::Product(integer_[i], scale) + carry;
            integer_[i] = limbs::Low(product);
            carry = limbs::High(product);
        }
        if (carry != 0) integer_[used_++] = carry;
        block_ = 0;
        blockDigits_ = 0;
    }

    limbs::Mantissa integer_{};
    std::size_t used_ = 0;
    Limb block_ = 0;
    int blockDigits_ = 0;
};

enum class Outcome { kNumber, kMalformed, kOverflow, kUnderflow };

struct Parsed {
    Outcome outcome = Outcome::kNumber;
    Unpacked digits;
    bool negative = false;
    int exponent = 0;  // of ten, the fraction digits counted in
};

bool IsEnd(char c) {
    return c == '\0' || c == '\n' || c == '\r';
}

// Reads what follows the "e" into the parsed exponent.
Outcome ReadExponent(std::string_view text, Parsed& parsed) {
    int exponent = 0;
    bool hasSign = false, hasDigit = false, negative = false;
    for (const char c : text) {
        if (c >= '0' && c <= '9') {
            if (exponent >= kExponentBeforeDigit) return negative ? Outcome::kUnderflow : Outcome::kOverflow;
            exponent = exponent * 10 + (c - '0');
            hasDigit = true;
        } else if ((c == '-' || c == '+') && !hasSign && !hasDigit) {
            hasSign = true;
            negative = c == '-';
        } else if (IsEnd(c)) {
            break;
        } else if (c != ' ') {
            return Outcome::kMalformed;
        }
    }
    parsed.exponent += negative ? -exponent : exponent;
    return Outcome::kNumber;
}

// Digits beyond the 99th are skipped without being counted, in the integer part as well; that is intended.
Parsed Parse(std::string_view text) {
    Parsed parsed;
    DigitAccumulator accumulator;
    int digits = 0;
    bool hasSign = false, hasPoint = false;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        if (const unsigned digit = static_cast<unsigned>(c) - '0'; digit < 10) {
            if (digits == kMostDigits || (digits == 0 && digit == 0 && !hasPoint)) continue;
            accumulator.AddDigit(digit);
            ++digits;
            if (hasPoint) --parsed.exponent;
        } else if (c == '.' && !hasPoint) {
            hasPoint = true;
        } else if ((c == '-' || c == '+') && !hasSign) {
            hasSign = true;
            parsed.negative = c == '-';
        } else if (c == 'e' || c == 'E') {
            parsed.digits = accumulator.Value();
            parsed.outcome =
                parsed.digits.IsZero() ? Outcome::kUnderflow : ReadExponent(text.substr(i + 1), parsed);
            return parsed;
        } else if (IsEnd(c)) {
            break;
        } else if (c != ' ') {
            parsed.outcome = Outcome::kMalformed;
            return parsed;
        }
    }
    parsed.digits = accumulator.Value();
    return parsed;
}

Unpacked Scale(const Unpacked& number, int exponent) {
    if (exponent == 0) return number;
    if (exponent > 0) return Multiply(number, PowerOfTenFromLowest(exponent));
    if (-exponent <= kLargestDivisorPower) return Divide(number, PowerOfTenFromLowest(-exponent));
    const Unpacked quotient = Divide(number, PowerOfTenFromLowest(kLargestTablePower));
    return Divide(quotient, PowerOfTenFromLowest(-exponent - kLargestTablePower));
}

}  // namespace

bool asctoq(std::string_view text, QReal& a) {
    Parsed parsed = Parse(text);
    const std::uint16_t sign = parsed.negative ? QReal::kNegative : 0;
    if (parsed.outcome == Outcome::kNumber && !parsed.digits.IsZero()) {
        if (parsed.exponent >= kExponentLimit) parsed.outcome = Outcome::kOverflow;
        if (parsed.exponent <= -kExponentLimit) parsed.outcome = Outcome::kUnderflow;
    }
    switch (parsed.outcome) {
        case Outcome::kOverflow: Overflow("asctoq", sign, a); break;
        case Outcome::kUnderflow:
            mtherr("asctoq", NUMERIC_UNDERFLOW);
            qclear(a);
            break;
        case Outcome::kMalformed:
            WriteDebugLine("asctoq conversion error\n");
            qclear(a);
            return false;
        case Outcome::kNumber:
            if (parsed.digits.IsZero()) {
                qclear(a);
                break;
            }
            parsed.digits.sign = sign;
            Pack(Scale(parsed.digits, parsed.exponent), "qmul", a);
            break;
    }
    return true;
}

}  // namespace quorix

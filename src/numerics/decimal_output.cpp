#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstring>

#include "numerics/constants.h"
#include "numerics/powers_of_ten.h"
#include "numerics/qcore.h"
#include "numerics/unpacked.h"

namespace quorix {
namespace {

using limbs::kLimbs;
using limbs::Limb;
using limbs::Mantissa;

constexpr int kBias = QReal::kExponentOfOne - 1;
constexpr int kMostDigits = 99;

// A number scaled into [1, 10) and the exponent of ten that was taken out.
struct Scaled {
    Unpacked number;
    int exponent = 0;
};

// Divides by the table's powers that the running remainder reaches, or multiplies by those that it falls
// short of, as the comparisons tell.
Scaled ScaleByComparison(QReal number) {
    int exponent = 0;
    if (qcmp(number, constants::kOne) > 0) {
        QReal rest = number;
        QReal divisor = constants::kOne;
        for (std::size_t i = 0; i < kPowerTableSize && qcmp(rest, constants::kTen) >= 0; ++i) {
            const QReal& power = constants::kPowersOfTen[i];
            if (qcmp(power, rest) > 0) continue;
            qdiv(power, rest, rest);
            qmul(power, divisor, divisor);
            exponent += 1 << (kPowerTableSize - 1 - i);
        }
        // One division by the whole divisor, so that the errors of the loop do not reach the digits.
        qdiv(divisor, number, number);
    } else if (qcmp(number, constants::kOne) < 0) {
        const QReal& tenth = constants::kNegativePowersOfTen.back();
        for (std::size_t i = 0; i < kPowerTableSize && qcmp(number, tenth) < 0; ++i) {
            if (qcmp(constants::kNegativePowersOfTen[i], number) < 0) continue;
            qmul(constants::kPowersOfTen[i], number, number);
            exponent -= 1 << (kPowerTableSize - 1 - i);
        }
        qmuli(constants::kTen, number, number);
        --exponent;
    }
    return {Unpack(number), exponent};
}

// Away from powers of ten the comparisons take the binary digits of the decimal exponent, so that a logarithm
// tells them. `a` is positive.
Scaled Scale(const QReal& a) {
    const Unpacked number = Unpack(a);
    constexpr double kMargin = 1e-9;
    const double fraction = std::ldexp(static_cast<double>(number.mantissa[kLimbs - 1]), -limbs::kLimbBits);
    constexpr double kLog10Of2 = 0.30102999566398119521;
    const double logarithm = std::log10(fraction) + (number.exponent - kBias) * kLog10Of2;
    const double whole = std::floor(logarithm);
    if (logarithm - whole < kMargin || logarithm - whole > 1 - kMargin) return ScaleByComparison(a);
    const int exponent = static_cast<int>(whole);
    if (exponent == 0) return {number, 0};
    if (exponent > 0) return {Divide(number, PowerOfTenFromHighest(exponent)), exponent};
    Unpacked scaled = number;
    for (int bit = kPowerTableSize - 1; bit >= 0; --bit) {
        const auto entry = static_cast<std::size_t>(kPowerTableSize - 1 - bit);
        if (((-exponent - 1) >> bit & 1) != 0)
            scaled = Multiply(Unpack(constants::kPowersOfTen[entry]), scaled);
    }
    return {Multiply(ExactPowerOfTen(1), scaled), exponent};
}

// Gives the integer part, below 16, and leaves the fraction.
int TakeIntegerPart(const Unpacked& number, Mantissa& fraction) {
    const int bits = number.exponent - kBias;
    fraction = number.mantissa;
    if (bits <= 0) {
        fraction = limbs::ShiftedRight(fraction, static_cast<unsigned>(-bits));
        return 0;
    }
    limbs::ShiftLeft(fraction, static_cast<unsigned>(bits));
    return static_cast<int>(number.mantissa[kLimbs - 1] >> (limbs::kLimbBits - bits));
}

// The next digit of a fraction, with the product by ten rounded to 336 significant bits.
int NextRoundedDigit(Mantissa& fraction) {
    Limb digit = limbs::MultiplyShort(fraction, 10);
    if (digit == 0) return 0;
    const Limb unit = limbs::kUnit << std::bit_width(digit);
    unsigned char carry = 0;
    fraction[0] = limbs::AddWithCarry(fraction[0], unit / 2, carry) & ~(unit - 1);
    for (std::size_t i = 1; i < kLimbs; ++i) fraction[i] = limbs::AddWithCarry(fraction[i], 0, carry);
    return static_cast<int>(digit) + carry;
}

void WriteDigits(Limb value, int count, char* text) {
    while (count > 0) {
        text[--count] = static_cast<char>('0' + value % 10);
        value /= 10;
    }
}

// Writes `count` digits of the fraction and leaves the rest of it. A fraction of 336 bits loses one bit with
// every digit and its product by ten gains four, so that from the fourth digit on nothing is rounded and
// blocks are exact.
void TakeDigits(Mantissa& fraction, int count, char* text) {
    constexpr int kRoundedDigits = 3;
    int done = 0;
    for (; done < std::min(count, kRoundedDigits); ++done) {
        text[done] = static_cast<char>('0' + NextRoundedDigit(fraction));
    }
    while (done < count) {
        const int block = std::min(count - done, kDigitsPerLimb);
        Limb scale = kLimbOfDigits;
        for (int i = block; i < kDigitsPerLimb; ++i) scale /= 10;
        WriteDigits(limbs::MultiplyShort(fraction, scale), block, text + done);
        done += block;
    }
}

// A rounded decimal number: a leading digit, `behind` more digits, an exponent of ten.
struct Digits {
    bool negative = false;
    int exponent = 0;
    std::size_t count = 1;
    // One place in front for a number that rounds up into its first decimal, and one for the rounding digit.
    std::array<char, kMostDigits + 3> text{'0'};

    [[nodiscard]] std::string_view View() const { return {text.data(), count}; }
};

// Rounds by the last digit, which goes: halves of an exact rest go to the even neighbour. A carry past the
// leading digit leaves a 1 and raises the exponent.
void RoundByLastDigit(Digits& digits, bool restIsZero) {
    const char guard = digits.text[--digits.count];
    char* last = &digits.text[digits.count - 1];
    if (guard < '5' || (guard == '5' && restIsZero && (*last - '0') % 2 == 0)) return;
    char* const first = digits.text.data();
    while (last >= first && *last == '9') *last-- = '0';
    if (last >= first) {
        ++*last;
    } else {
        *first = '1';
        ++digits.exponent;
    }
}

enum class Form { kExponent, kPositional };

Digits DecimalDigits(const QReal& a, int behind, Form form) {
    behind = std::clamp(behind, 0, kMostDigits);
    Digits digits;
    if (a.IsZero()) {
        digits.count = static_cast<std::size_t>(behind) + 1;
        std::fill_n(digits.text.begin(), digits.count, '0');
        return digits;
    }
    QReal magnitude = a;
    qabs(magnitude);
    Scaled scaled = Scale(magnitude);
    Mantissa fraction;
    int leading = TakeIntegerPart(scaled.number, fraction);
    if (leading >= 10) {
        leading = TakeIntegerPart(Divide(scaled.number, ExactPowerOfTen(1)), fraction);
        ++scaled.exponent;
    }
    if (form == Form::kPositional) behind += std::min(scaled.exponent, 0);
    if (behind < -1) return digits;
    digits.negative = a.IsNegative();
    digits.exponent = scaled.exponent;
    std::size_t front = 0;
    if (behind == -1) {
        // The leading digit itself is the one that rounds.
        digits.text[front++] = '0';
        ++digits.exponent;
    }
    digits.text[front] = static_cast<char>('0' + leading);
    TakeDigits(fraction, behind + 1, &digits.text[front + 1]);
    digits.count = front + 1 + static_cast<std::size_t>(behind + 1);
    RoundByLastDigit(digits, limbs::IsZero(fraction));
    if (digits.View() == "0") digits = Digits{};
    return digits;
}

}  // namespace

std::string qtoasc(const QReal& a, int n) {
    const Digits digits = DecimalDigits(a, n, Form::kExponent);
    std::array<char, 8> exponent;
    char* const end = std::to_chars(exponent.data(), exponent.data() + exponent.size(), digits.exponent).ptr;
    std::string text;
    text.reserve(digits.count + 3 + exponent.size());
    text += digits.negative ? '-' : ' ';
    text += digits.text[0];
    text += '.';
    text.append(digits.View().substr(1));
    text += 'E';
    text.append(exponent.data(), static_cast<std::size_t>(end - exponent.data()));
    return text;
}

std::string qtoplain(const QReal& a, int n) {
    const Digits digits = DecimalDigits(a, n, Form::kPositional);
    const std::string_view view = digits.View();
    std::string text(1, digits.negative ? '-' : ' ');
    if (digits.exponent < 0) {
        text += "0.";
        text.append(static_cast<std::size_t>(-digits.exponent - 1), '0');
        text += view;
    } else {
        const auto whole = static_cast<std::size_t>(digits.exponent) + 1;
        text += view.substr(0, whole);
        if (whole > view.size()) text.append(whole - view.size(), '0');
        text += '.';
        if (whole < view.size()) text += view.substr(whole);
    }
    text.erase(text.find_last_not_of('0') + 1);
    if (text.back() == '.') text.pop_back();
    return text;
}

}  // namespace quorix

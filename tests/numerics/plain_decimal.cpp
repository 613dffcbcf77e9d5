// Decimal text of the plain core, digit by digit.

#include <algorithm>
#include <string>

#include "numerics/constants.h"
#include "numerics/numeric_error.h"
#include "numerics/qcore.h"
#include "plain_core.h"
#include "plain_register.h"

namespace quorix::plain {
namespace {

// Ten to the power e below 8192, the powers taken from 1 upward.
QReal PowerOfTen(int e) {
    QReal power = constants::kOne;
    for (std::size_t i = 0; i < 13; ++i) {
        if (e >> i & 1) Multiply(constants::kPowersOfTen[12 - i], power, power);
    }
    return power;
}

bool OutOfRange(int code, bool negative, QReal& a) {
    mtherr("asctoq", code);
    qclear(a);
    if (code == NUMERIC_OVERFLOW) {
        qinfin(a);
        if (negative) qneg(a);
    }
    return true;
}

bool Malformed(QReal& a) {
    WriteDebugLine("asctoq conversion error\n");
    qclear(a);
    return false;
}

bool IsEnd(char c) {
    return c == '\0' || c == '\n' || c == '\r';
}

}  // namespace

bool FromText(std::string_view text, QReal& a) {
    Register accumulator{};
    bool hasSign = false, negative = false, hasPoint = false, hasExponent = false;
    int digits = 0, fractionDigits = 0;
    std::size_t i = 0;
    for (; i < text.size() && !IsEnd(text[i]) && !hasExponent; ++i) {
        const char c = text[i];
        if (c >= '0' && c <= '9') {
            if (digits >= 99 || (digits == 0 && c == '0' && !hasPoint)) continue;
            std::uint32_t carry = static_cast<std::uint32_t>(c - '0');
            for (std::size_t k = 23; k >= 2; --k) {
                carry += accumulator[k] * 10u;
                accumulator[k] = static_cast<std::uint16_t>(carry);
                carry >>= 16;
            }
            ++digits;
            if (hasPoint) ++fractionDigits;
        } else if ((c == '+' || c == '-') && !hasSign) {
            hasSign = true;
            negative = c == '-';
        } else if (c == '.' && !hasPoint) {
            hasPoint = true;
        } else if (c == 'e' || c == 'E') {
            hasExponent = true;
        } else if (c != ' ') {
            return Malformed(a);
        }
    }
    const int count = Normalise(accumulator);
    if (hasExponent && count == kNothingLeft) return OutOfRange(NUMERIC_UNDERFLOW, negative, a);
    int exponent = 0;
    bool exponentNegative = false, exponentSign = false, exponentDigit = false;
    for (; hasExponent && i < text.size() && !IsEnd(text[i]); ++i) {
        const char c = text[i];
        if (c >= '0' && c <= '9') {
            if (exponent >= 3276)
                return OutOfRange(exponentNegative ? NUMERIC_UNDERFLOW : NUMERIC_OVERFLOW, negative, a);
            exponent = exponent * 10 + (c - '0');
            exponentDigit = true;
        } else if ((c == '+' || c == '-') && !exponentSign && !exponentDigit) {
            exponentSign = true;
            exponentNegative = c == '-';
        } else if (c != ' ') {
            return Malformed(a);
        }
    }
    if (count == kNothingLeft) return qclear(a), true;
    accumulator[0] = negative ? QReal::kNegative : 0;
    accumulator[1] = static_cast<std::uint16_t>(kBias + kBits - count);
    QReal number;
    Store(accumulator, number);
    const int e = (exponentNegative ? -exponent : exponent) - fractionDigits;
    if (e >= 8192) return OutOfRange(NUMERIC_OVERFLOW, negative, a);
    if (e <= -8192) return OutOfRange(NUMERIC_UNDERFLOW, negative, a);
    if (e > 0) Multiply(PowerOfTen(e), number, number);
    // Ten to a power beyond 5008 overflows although the quotient may not: such a power divides in two steps.
    if (e < -5008) Divide(PowerOfTen(4096), number, number);
    if (e < 0) Divide(PowerOfTen(e < -5008 ? -e - 4096 : -e), number, number);
    a = number;
    return true;
}

namespace {

struct Digits {
    bool negative = false;
    std::string text;  // the leading digit and the others, rounded
    int exponent = 0;
};

// `behind` digits behind the leading one, or with `positional` that many and the exponent if it is negative.
Digits DecimalDigits(const QReal& a, int behind, bool positional) {
    if (a.IsZero()) return {false, std::string(static_cast<std::size_t>(behind) + 1, '0'), 0};
    QReal number = a;
    number.words[0] = 0;
    int exponent = 0;
    if (Compare(number, constants::kOne) > 0) {
        QReal rest = number, divisor = constants::kOne;
        for (std::size_t i = 0; i < 13 && Compare(rest, constants::kTen) >= 0; ++i) {
            if (Compare(constants::kPowersOfTen[i], rest) > 0) continue;
            Divide(constants::kPowersOfTen[i], rest, rest);
            Multiply(constants::kPowersOfTen[i], divisor, divisor);
            exponent += 4096 >> i;
        }
        Divide(divisor, number, number);
    } else if (Compare(number, constants::kOne) < 0) {
        for (std::size_t i = 0; i < 13 && Compare(number, constants::kNegativePowersOfTen[12]) < 0; ++i) {
            if (Compare(constants::kNegativePowersOfTen[i], number) < 0) continue;
            Multiply(constants::kPowersOfTen[i], number, number);
            exponent -= 4096 >> i;
        }
        MultiplyShort(constants::kTen, number, number);
        --exponent;
    }
    std::int32_t digit;
    QReal rest;
    SplitInteger(number, digit, rest);
    if (digit >= 10) {
        Divide(constants::kTen, number, number);
        SplitInteger(number, digit, rest);
        ++exponent;
    }
    Digits d{a.IsNegative(), std::string(1, static_cast<char>('0' + digit)), exponent};
    if (positional) behind += std::min(exponent, 0);
    if (behind < -1) return {false, "0", 0};
    if (behind == -1) d.text.insert(0, 1, '0'), ++d.exponent;
    for (int i = 0; i <= behind; ++i) {
        MultiplyShort(constants::kTen, rest, rest);
        SplitInteger(QReal(rest), digit, rest);
        d.text += static_cast<char>('0' + digit);
    }
    const int guard = d.text.back() - '0';
    d.text.pop_back();
    if (guard < 5 || (guard == 5 && rest.IsZero() && (d.text.back() - '0') % 2 == 0)) {
        if (d.text == "0") return {false, "0", 0};
        return d;
    }
    std::size_t i = d.text.size();
    while (i > 0 && d.text[i - 1] == '9') d.text[--i] = '0';
    if (i > 0) {
        ++d.text[i - 1];
    } else {
        d.text.front() = '1';
        ++d.exponent;
    }
    return d;
}

}  // namespace

std::string ToText(const QReal& a, int n) {
    const Digits d = DecimalDigits(a, std::clamp(n, 0, 99), false);
    return (d.negative ? "-" : " ") + d.text.substr(0, 1) + "." + d.text.substr(1) + "E" +
           std::to_string(d.exponent);
}

std::string ToPositionalText(const QReal& a, int n) {
    Digits d = DecimalDigits(a, std::clamp(n, 0, 99), true);
    if (d.exponent < 0) {
        d.text.insert(0, static_cast<std::size_t>(-d.exponent), '0');
        d.exponent = 0;
    }
    const auto whole = static_cast<std::size_t>(d.exponent) + 1;
    if (d.text.size() < whole) d.text.append(whole - d.text.size(), '0');
    d.text.insert(whole, 1, '.');
    while (d.text.back() == '0') d.text.pop_back();
    if (d.text.back() == '.') d.text.pop_back();
    return (d.negative ? "-" : " ") + d.text;
}

}  // namespace quorix::plain

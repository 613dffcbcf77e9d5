#include "engine/key_machine.h"

#include <algorithm>

#include "engine/complex_function_operators.h"
#include "engine/complex_operands.h"
#include "engine/complex_operator_table.h"
#include "engine/identifiers.h"
#include "engine/radix_digits.h"
#include "numerics/constants.h"

namespace quorix {
namespace {

// 10^n for n from 0 to 8191 by the bits of n. The table runs from 10^4096 down to 10^1.
QReal PowerOfTen(int n) {
    QReal power = constants::kOne;
    int weight = 4096;
    for (const QReal& entry : constants::kPowersOfTen) {
        if ((n & weight) != 0) qmul(entry, power, power);
        weight /= 2;
    }
    return power;
}

bool ParseNumberToken(std::u16string_view token, QReal& value) {
    std::string narrow;
    for (const char16_t c : token) narrow.push_back(c < 0x80 ? static_cast<char>(c) : '?');
    return asctoq(narrow, value);
}

bool IsOverflowPattern(const QReal& part) {
    return part.words[1] == QReal::kLargestExponent &&
           std::all_of(part.words.begin() + 3, part.words.end(), [](std::uint16_t w) { return w == 0xFFFF; });
}

// Moves `part` away from zero by `amount`.
void ExtendMagnitude(QReal& part, const QReal& amount) {
    if (part.IsNegative()) {
        qsub(amount, part, part);
    } else {
        qadd(amount, part, part);
    }
}

}  // namespace

KeyMachine& keyMachine() {
    static KeyMachine machine;
    return machine;
}

bool HasOverflowed(const QComplex& value) {
    return IsOverflowPattern(value.re) || IsOverflowPattern(value.im);
}

bool IsBinaryKey(std::u16string_view token) {
    constexpr auto kTokens = std::to_array<std::u16string_view>({u"+", u"-", u"*", u"/", u"^", u"and", u"or",
                                                                 u"nand", u"nor", u"xor", u"iroot", u"iexp",
                                                                 u"mod", u"shl", u"shr", u"rtl", u"rtr"});
    return std::ranges::find(kTokens, token) != kTokens.end();
}

bool IsFunctionKey(std::u16string_view token) {
    constexpr auto kTokens = std::to_array<std::u16string_view>(
        {u"tanh", u"cosh",  u"sinh",  u"sin",  u"cos",   u"tan",   u"ctan",  u"sqrt",  u"asin",
         u"acos", u"atan",  u"actan", u"lg",   u"ln",    u"log",   u"exp",   u"sec",   u"csc",
         u"sech", u"csch",  u"ctanh", u"acot", u"asinh", u"acosh", u"atanh", u"acoth", u"asec",
         u"acsc", u"asech", u"acsch", u"inv",  u"trans", u"det",   u"rank",  u"eigl",  u"eigv",
         u"diag", u"orth",  u"tri",   u"%",    u"!",     u"not",   u"cpl",   u"abs"});
    return std::ranges::find(kTokens, token) != kTokens.end();
}

const OperatorRow<QComplex>* FindKeyOperator(std::u16string_view name) {
    static constexpr OperatorRow<QComplex> kExponential{u"exp", 1, ComplexExponential};
    return name == kExponential.name ? &kExponential : ComplexOperatorTable().Find(name);
}

void KeyMachine::ReplaceTop(const QComplex& value) {
    DropTop();
    Push(value);
}

void KeyMachine::Reset() {
    pending.clear();
    stack_.depth = 0;
    entryState = ENTRY_NONE;
    fractionDigits = 0;
    equalsBefore = false;
}

void KeyMachine::Apply(std::u16string_view name) {
    std::int32_t& error = calcContext().calcError;
    const std::int32_t standing = error;
    if (const OperatorRow<QComplex>* row = FindKeyOperator(name)) {
        repeatRegisters().lastOperator = row->name;
        if (!TakesOverflow(row->operands)) row->function(stack_, 0);
    } else {
        error = ERROR_SYNTAX;
    }
    if (standing != 0) error = standing;
}

// 1/0 - 3 is as little a number as 1/0, and 1/(1/0) too.
bool KeyMachine::TakesOverflow(std::int32_t operands) {
    if (stack_.depth < operands) return false;
    const auto taken = Operands().last(static_cast<std::size_t>(operands));
    const auto overflowed = std::ranges::find_if(taken, HasOverflowed);
    if (overflowed == taken.end()) return false;
    taken.front() = *overflowed;
    stack_.depth -= operands - 1;
    calcContext().calcError = ERROR_INVALID_PARAMETER;
    return true;
}

QComplex KeyMachine::Answer() const {
    std::int32_t& error = calcContext().calcError;
    const QComplex top = Top();
    if (error == 0 && HasOverflowed(top)) error = ERROR_INVALID_PARAMETER;
    return top;
}

std::optional<QComplex> KeyMachine::HandleShared(std::u16string_view token, std::int32_t radixId) {
    if (token == u"Pop") return Pop();
    if (token == u".") {
        Clear();
        return QComplex{};
    }
    if (token == u"NEG") {
        Negate();
    } else if (token == u"..") {
        EnterPoint(radixId);
    } else if (token == u"\u2212") {
        ClearEntry();
    } else if (token == u"PI") {
        EnterPi();
    } else {
        return std::nullopt;
    }
    return Answer();
}

// The entry state stays, so that digits may follow a change of sign.
void KeyMachine::Negate() {
    if (stack_.depth == 0) return;
    QComplex& top = stack_.Top();
    qsub(top.re, QReal{}, top.re);
    qsub(top.im, QReal{}, top.im);
}

QComplex KeyMachine::Pop() {
    entryState = ENTRY_NONE;
    const QComplex top = Answer();
    DropTop();
    return top;
}

void KeyMachine::EnterPoint(std::int32_t radixId) {
    if (entryState == ENTRY_FRACTION) return;
    if (entryState != ENTRY_INTEGER) EnterDigits(u"0", radixId);
    if (entryState != ENTRY_INTEGER) return;  // The stack is full.
    fractionDigits = 0;
    entryState = ENTRY_FRACTION;
}

void KeyMachine::ClearEntry() {
    entryState = ENTRY_NONE;
    if (stack_.depth > 0) qclear(stack_.Top().re);
}

void KeyMachine::Clear() {
    if (stack_.depth == 0) {
        repeatRegisters().Clear();
    } else if (entryState == ENTRY_INTEGER || entryState == ENTRY_FRACTION) {
        DropTop();
    } else if (entryState == ENTRY_NONE) {
        Reset();
        repeatRegisters().Clear();
    }
    entryState = ENTRY_NONE;
}

void KeyMachine::EnterPi() {
    if (Push({constants::kPi, QReal{}})) entryState = ENTRY_CONSTANT;
}

// A number that overflows is an error at once, as in the text evaluator.
void KeyMachine::EnterDigits(std::u16string_view token, std::int32_t radixId) {
    if (token == u"i") {  // The key engines have no imaginary entry.
        entryState = ENTRY_INTEGER;
        return;
    }
    const int radix = RadixOf(radixId);
    const bool isDigit = token.size() == 1 || radix != 10;
    const int digit = token.empty() ? 0 : DigitValue(token[0], radix);
    if (isDigit && digit < 0) {
        calcContext().calcError = ERROR_SYNTAX;
        return;
    }
    const bool isEntering = entryState == ENTRY_INTEGER || entryState == ENTRY_FRACTION;
    if (isDigit && isEntering && stack_.depth > 0) {
        entryState == ENTRY_INTEGER ? ExtendInteger(digit, radix) : ExtendFraction(digit);
    } else {
        QComplex number;
        if (isDigit) {
            ltoq(digit, number.re);
        } else if (!ParseNumberToken(token, number.re)) {
            calcContext().calcError = ERROR_SYNTAX;
            return;
        }
        StartNumber(number);
    }
    if (NumericErrorFlag() == NUMERIC_OVERFLOW) calcContext().calcError = ERROR_INVALID_PARAMETER;
}

// Typing behind pi replaces it, and so does a whole number while one is being typed.
void KeyMachine::StartNumber(const QComplex& number) {
    const bool replaces =
        entryState == ENTRY_CONSTANT || entryState == ENTRY_INTEGER || entryState == ENTRY_FRACTION;
    if (replaces) DropTop();
    if (Push(number)) entryState = ENTRY_INTEGER;
}

void KeyMachine::ExtendInteger(int digit, int radix) {
    QReal& part = stack_.Top().re;
    QReal operand;
    ltoq(radix, operand);
    qmul(operand, part, part);
    ltoq(digit, operand);
    ExtendMagnitude(part, operand);
}

// Digits beyond 10^-5000 lie below every number and change nothing.
void KeyMachine::ExtendFraction(int digit) {
    constexpr int kSmallestPlace = 5000;
    ++fractionDigits;
    if (fractionDigits > kSmallestPlace) return;
    QReal amount;
    ltoq(digit, amount);
    qdiv(PowerOfTen(fractionDigits), amount, amount);
    ExtendMagnitude(stack_.Top().re, amount);
}

}  // namespace quorix

#pragma once

// The integer operators on real numbers, without stacks: both operator tables call them.

#include <cstdint>

namespace quorix {

/// A whole number, or the error code of operands that are not allowed.
struct IntegerOutcome {
    double value = 0.0;
    std::int32_t error = 0;

    friend bool operator==(const IntegerOutcome&, const IntegerOutcome&) = default;
};

/// wordSize: 8, 16 or 32 bits; operators that do not read it ignore it. Operands that fail the row's test for
/// integers give -53.
using BinaryIntegerOperation = IntegerOutcome (*)(double left, double right, std::int32_t wordSize);
/// Any operand is allowed: its fraction is cut off, and what does not fit into 64 bits counts as 0.
using UnaryIntegerOperation = IntegerOutcome (*)(double operand, std::int32_t wordSize);

// On signed 32-bit integers; the word size is not looked at.
IntegerOutcome IntegerAnd(double left, double right, std::int32_t wordSize);
IntegerOutcome IntegerOr(double left, double right, std::int32_t wordSize);
IntegerOutcome IntegerXor(double left, double right, std::int32_t wordSize);
/// Remainder of the magnitudes of two signed 32-bit integers; -5 for a divisor of 0.
IntegerOutcome IntegerMod(double left, double right, std::int32_t wordSize);

// On the low 32 bits of signed 64-bit integers; the complement is cut to the word size.
IntegerOutcome IntegerNand(double left, double right, std::int32_t wordSize);
IntegerOutcome IntegerNor(double left, double right, std::int32_t wordSize);

// Shifts of the low 32 bits of a signed 64-bit integer; the result is cut to the word size. A negative count
// shifts the other way. Of the count's magnitude the low byte counts: from 32 on the result is 0. A word size
// other than 8, 16 or 32 gives 0.
IntegerOutcome IntegerShiftLeft(double value, double count, std::int32_t wordSize);
IntegerOutcome IntegerShiftRight(double value, double count, std::int32_t wordSize);

// Rotations of the low wordSize bits of a signed 64-bit integer. A negative count rotates the other way. A
// word size other than 8, 16 or 32 gives 0.
IntegerOutcome IntegerRotateLeft(double value, double count, std::int32_t wordSize);
IntegerOutcome IntegerRotateRight(double value, double count, std::int32_t wordSize);

/// Complement of the low 32 bits, cut to the word size.
IntegerOutcome IntegerNot(double operand, std::int32_t wordSize);
/// Negation of the low 32 bits, cut to the word size.
IntegerOutcome IntegerNegate(double operand, std::int32_t wordSize);

}  // namespace quorix

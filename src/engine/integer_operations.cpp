#include "engine/integer_operations.h"

#include <cmath>
#include <optional>

#include "engine/engine_errors.h"
#include "engine/radix_digits.h"

namespace quorix {
namespace {

// 2^31 and 2^63: the ends of the signed integers.
constexpr double kEndOf32 = 2147483648.0;
constexpr double kEndOf64 = 9223372036854775808.0;

constexpr IntegerOutcome kNotInteger{0.0, ERROR_INTEGER_TYPE};

std::optional<std::int32_t> Exact32(double value) {
    if (!(value >= -kEndOf32 && value < kEndOf32) || value != std::trunc(value)) return std::nullopt;
    return static_cast<std::int32_t>(value);
}

std::optional<std::int64_t> Exact64(double value) {
    if (!(value >= -kEndOf64 && value < kEndOf64) || value != std::trunc(value)) return std::nullopt;
    return static_cast<std::int64_t>(value);
}

std::uint32_t LowBits(std::int64_t value) {
    return static_cast<std::uint32_t>(value);
}

std::uint32_t LowBits(double value) {
    if (!(value >= -kEndOf64 && value < kEndOf64)) return 0;
    return LowBits(static_cast<std::int64_t>(value));
}

IntegerOutcome Signed(std::int32_t value) {
    return {static_cast<double>(value)};
}

IntegerOutcome CutToWord(std::uint32_t value, std::int32_t wordSize) {
    return {static_cast<double>(value & WordMask(wordSize))};
}

template <class Combine>
IntegerOutcome OnSigned32(double left, double right, Combine combine) {
    const auto a = Exact32(left);
    const auto b = Exact32(right);
    return a && b ? combine(*a, *b) : kNotInteger;
}

template <class Combine>
IntegerOutcome OnSigned64(double left, double right, Combine combine) {
    const auto a = Exact64(left);
    const auto b = Exact64(right);
    return a && b ? combine(*a, *b) : kNotInteger;
}

std::uint64_t Magnitude(std::int64_t value) {
    return value < 0 ? 0U - static_cast<std::uint64_t>(value) : static_cast<std::uint64_t>(value);
}

std::uint32_t Magnitude(std::int32_t value) {
    return static_cast<std::uint32_t>(Magnitude(std::int64_t{value}));
}

bool IsWordSize(std::int32_t bits) {
    return bits == 8 || bits == 16 || bits == 32;
}

enum class Direction : bool { left, right };

// Which way a count of either sign goes.
Direction Turn(Direction direction, std::int64_t count) {
    return (direction == Direction::left) == (count > 0) ? Direction::left : Direction::right;
}

IntegerOutcome Shift(double value, double count, std::int32_t wordSize, Direction direction) {
    return OnSigned64(value, count, [=](std::int64_t a, std::int64_t n) -> IntegerOutcome {
        if (!IsWordSize(wordSize)) return {0.0};
        const auto places = static_cast<std::uint32_t>(Magnitude(n) & 0xFFU);
        if (places >= 32) return {0.0};
        const std::uint32_t bits = LowBits(a);
        return CutToWord(Turn(direction, n) == Direction::left ? bits << places : bits >> places, wordSize);
    });
}

IntegerOutcome Rotate(double value, double count, std::int32_t wordSize, Direction direction) {
    return OnSigned64(value, count, [=](std::int64_t a, std::int64_t n) -> IntegerOutcome {
        if (!IsWordSize(wordSize)) return {0.0};
        const auto size = static_cast<std::uint32_t>(wordSize);
        const auto turns = static_cast<std::uint32_t>(Magnitude(n) % size);
        const std::uint32_t places = Turn(direction, n) == Direction::left ? turns : (size - turns) % size;
        const std::uint64_t word = LowBits(a) & WordMask(wordSize);
        return CutToWord(static_cast<std::uint32_t>(word << places | word >> (size - places)), wordSize);
    });
}

}  // namespace

IntegerOutcome IntegerAnd(double left, double right, std::int32_t /*wordSize*/) {
    return OnSigned32(left, right, [](std::int32_t a, std::int32_t b) { return Signed(a & b); });
}

IntegerOutcome IntegerOr(double left, double right, std::int32_t /*wordSize*/) {
    return OnSigned32(left, right, [](std::int32_t a, std::int32_t b) { return Signed(a | b); });
}

IntegerOutcome IntegerXor(double left, double right, std::int32_t /*wordSize*/) {
    return OnSigned32(left, right, [](std::int32_t a, std::int32_t b) { return Signed(a ^ b); });
}

// Both operands lose their signs first: -7 mod 3 is 1. This is intended.
IntegerOutcome IntegerMod(double left, double right, std::int32_t /*wordSize*/) {
    return OnSigned32(left, right, [](std::int32_t a, std::int32_t b) -> IntegerOutcome {
        if (b == 0) return {0.0, ERROR_DIVISION};
        return {static_cast<double>(Magnitude(a) % Magnitude(b))};
    });
}

// Unlike "and" and "or" these respect the word size; this is intended.
IntegerOutcome IntegerNand(double left, double right, std::int32_t wordSize) {
    return OnSigned64(left, right, [=](std::int64_t a, std::int64_t b) {
        return CutToWord(~(LowBits(a) & LowBits(b)), wordSize);
    });
}

IntegerOutcome IntegerNor(double left, double right, std::int32_t wordSize) {
    return OnSigned64(left, right, [=](std::int64_t a, std::int64_t b) {
        return CutToWord(~(LowBits(a) | LowBits(b)), wordSize);
    });
}

IntegerOutcome IntegerShiftLeft(double value, double count, std::int32_t wordSize) {
    return Shift(value, count, wordSize, Direction::left);
}

IntegerOutcome IntegerShiftRight(double value, double count, std::int32_t wordSize) {
    return Shift(value, count, wordSize, Direction::right);
}

IntegerOutcome IntegerRotateLeft(double value, double count, std::int32_t wordSize) {
    return Rotate(value, count, wordSize, Direction::left);
}

IntegerOutcome IntegerRotateRight(double value, double count, std::int32_t wordSize) {
    return Rotate(value, count, wordSize, Direction::right);
}

IntegerOutcome IntegerNot(double operand, std::int32_t wordSize) {
    return CutToWord(~LowBits(operand), wordSize);
}

IntegerOutcome IntegerNegate(double operand, std::int32_t wordSize) {
    return CutToWord(0U - LowBits(operand), wordSize);
}

}  // namespace quorix

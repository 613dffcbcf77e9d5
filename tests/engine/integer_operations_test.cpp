#include "engine/integer_operations.h"

#include <cmath>
#include <limits>
#include <random>

#include "support/engine_fixture.h"

namespace quorix {
namespace {

constexpr double kNotANumber = std::numeric_limits<double>::quiet_NaN();

struct BinaryCase {
    BinaryIntegerOperation operation;
    double left, right;
    std::int32_t wordSize;
    double value;
    std::int32_t error = 0;
};

TEST(IntegerOperationsTest, BinaryOperations) {
    const BinaryCase rows[] = {{IntegerAnd, 5, 3, 8, 1},
                               {IntegerAnd, -1, 1000, 8, 1000},  // The word size is not looked at.
                               {IntegerOr, -256, 3, 8, -253},
                               {IntegerXor, -1, 5, 16, -6},
                               {IntegerAnd, 5.5, 3, 8, 0, -53},
                               {IntegerAnd, 3, 5.5, 8, 0, -53},
                               {IntegerOr, 2147483647, -2147483648.0, 32, -1},
                               {IntegerOr, 2147483648.0, 0, 32, 0, -53},
                               {IntegerXor, 0, -2147483649.0, 32, 0, -53},
                               {IntegerXor, kNotANumber, 0, 32, 0, -53},
                               {IntegerMod, 7, 3, 8, 1},
                               {IntegerMod, -7, 3, 8, 1},
                               {IntegerMod, 7, -3, 8, 1},
                               {IntegerMod, -2147483648.0, 1000, 8, 648},
                               {IntegerMod, 7, 0, 8, 0, -5},
                               {IntegerMod, 7.5, 0, 8, 0, -53},
                               {IntegerNand, 12, 10, 8, 247},
                               {IntegerNand, 12, 10, 16, 65527},
                               {IntegerNand, 12, 10, 32, 4294967287.0},
                               {IntegerNand, 12, 10, 24, 4294967287.0},
                               {IntegerNand, -1, -1, 32, 0},
                               {IntegerNand, 4294967296.0, 1, 8, 255},  // Of 64 bits the low 32 are taken.
                               {IntegerNor, 12, 10, 8, 241},
                               {IntegerNor, 0, 0, 32, 4294967295.0},
                               {IntegerNor, 9223372036854775808.0, 0, 32, 0, -53},
                               {IntegerNor, -9223372036854775808.0, 0, 32, 4294967295.0},
                               {IntegerNor, 0.5, 0, 32, 0, -53},
                               {IntegerShiftLeft, 1, 40, 32, 0},
                               {IntegerShiftLeft, 1, 31, 32, 2147483648.0},
                               {IntegerShiftLeft, 1, 32, 32, 0},
                               {IntegerShiftLeft, 1, 9, 8, 0},
                               {IntegerShiftLeft, 1, 9, 16, 512},
                               {IntegerShiftLeft, 129, 1, 8, 2},
                               {IntegerShiftLeft, 1, -1, 8, 0},
                               {IntegerShiftLeft, 8, -1, 8, 4},
                               {IntegerShiftLeft, 300, 0, 8, 44},
                               {IntegerShiftLeft, 3, 257, 8, 6},  // The low byte of the count is 1.
                               {IntegerShiftLeft, 3, 255, 8, 0},
                               {IntegerShiftLeft, 8, -257, 8, 4},
                               {IntegerShiftLeft, 8, -9223372036854775808.0, 8, 8},
                               {IntegerShiftLeft, 3, 1, 12, 0},
                               {IntegerShiftLeft, 3.5, 1, 8, 0, -53},
                               {IntegerShiftLeft, 3, 0.5, 12, 0, -53},
                               {IntegerShiftRight, 8, 1, 8, 4},
                               {IntegerShiftRight, 8, -1, 8, 16},
                               {IntegerShiftRight, 256, 1, 8, 128},  // Cut to the word behind the shift.
                               {IntegerShiftRight, -1, 31, 32, 1},
                               {IntegerShiftRight, -1, 32, 32, 0},
                               {IntegerShiftRight, 3, 0, 8, 3},
                               {IntegerShiftRight, 3, 1, 64, 0},
                               {IntegerRotateLeft, 129, 1, 8, 3},
                               {IntegerRotateLeft, 129, 8, 8, 129},
                               {IntegerRotateLeft, 129, -1, 8, 192},
                               {IntegerRotateLeft, 511, 0, 8, 255},
                               {IntegerRotateLeft, 1, 9007199254740992.0, 8, 1},
                               {IntegerRotateLeft, 32769, 1, 16, 3},
                               {IntegerRotateLeft, 2147483649.0, 1, 32, 3},
                               {IntegerRotateLeft, 1, 1, 0, 0},
                               {IntegerRotateRight, 1, 1, 8, 128},
                               {IntegerRotateRight, 1, 1, 16, 32768},
                               {IntegerRotateRight, 1, 33, 32, 2147483648.0},
                               {IntegerRotateRight, 1, -1, 8, 2},
                               {IntegerRotateRight, 511, 0, 8, 255},
                               {IntegerRotateRight, 1, -9223372036854775808.0, 8, 1},
                               {IntegerRotateRight, 1.5, 1, 8, 0, -53}};
    for (std::size_t i = 0; i < std::size(rows); ++i) {
        const BinaryCase& row = rows[i];
        const IntegerOutcome outcome = row.operation(row.left, row.right, row.wordSize);
        EXPECT_EQ(outcome.value, row.value) << "row " << i;
        EXPECT_EQ(outcome.error, row.error) << "row " << i;
    }
}

TEST(IntegerOperationsTest, ComplementsTakeAnyNumber) {
    const struct {
        double operand;
        std::int32_t wordSize;
        double complement, negation;
    } rows[] = {{0, 8, 255, 0},
                {0, 16, 65535, 0},
                {0, 32, 4294967295.0, 0},
                {1, 8, 254, 255},
                {5.9, 8, 250, 251},
                {-5.9, 8, 4, 5},
                {4294967297.0, 16, 65534, 65535},
                {1e300, 8, 255, 0},
                {-HUGE_VAL, 32, 4294967295.0, 0},
                {kNotANumber, 16, 65535, 0},
                {1, 12, 4294967294.0, 4294967295.0}};
    for (const auto& row : rows) {
        EXPECT_EQ(IntegerNot(row.operand, row.wordSize), IntegerOutcome{row.complement}) << row.operand;
        EXPECT_EQ(IntegerNegate(row.operand, row.wordSize), IntegerOutcome{row.negation}) << row.operand;
    }
}

// One place at a time, as the rotations are told.
std::uint32_t RotateRightByOne(std::uint32_t word, std::uint32_t bits) {
    return word >> 1U | (word & 1U) << (bits - 1U);
}

TEST(IntegerOperationsTest, RotationsEqualSingleSteps) {
    std::mt19937 random(7);
    for (const std::uint32_t bits : {8U, 16U, 32U}) {
        for (int round = 0; round < 200; ++round) {
            const auto value = static_cast<std::uint32_t>(random());
            const auto count = random() % 100;
            const std::uint32_t word = bits == 32 ? value : value & ((1U << bits) - 1U);
            std::uint32_t right = word;
            for (unsigned i = 0; i < count; ++i) right = RotateRightByOne(right, bits);
            std::uint32_t left = word;
            for (unsigned i = 0; i < count * (bits - 1); ++i) left = RotateRightByOne(left, bits);
            const auto size = static_cast<std::int32_t>(bits);
            EXPECT_EQ(IntegerRotateRight(value, static_cast<double>(count), size).value, right);
            EXPECT_EQ(IntegerRotateLeft(value, static_cast<double>(count), size).value, left);
            EXPECT_EQ(IntegerRotateLeft(value, -static_cast<double>(count), size).value, right);
        }
    }
}

}  // namespace
}  // namespace quorix

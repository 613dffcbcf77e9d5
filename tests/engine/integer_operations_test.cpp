#include "engine/integer_operations.h"

#include <cmath>
#include <cstdlib>
#include <limits>
#include <random>

#include "support/engine_fixture.h"

namespace quorix {
namespace {

constexpr double kNotANumber = std::numeric_limits<double>::quiet_NaN();

/// Rows of "left right wordSize -> value".
void ExpectAll(BinaryIntegerOperation operation, std::string_view table) {
    for (const auto& [operands, expected] : Rows(table)) {
        char* end = nullptr;
        const double left = std::strtod(operands.c_str(), &end);
        const double right = std::strtod(end, &end);
        const IntegerOutcome outcome =
            operation(left, right, static_cast<std::int32_t>(std::strtol(end, nullptr, 10)));
        const IntegerOutcome wanted = expected.starts_with("error ")
                                          ? IntegerOutcome{0, std::atoi(expected.c_str() + 6)}
                                          : IntegerOutcome{std::strtod(expected.c_str(), nullptr)};
        EXPECT_EQ(outcome, wanted) << operands;
    }
}

// "and", "or", "xor" and "mod" do not look at the word size; "nand" and "nor" take the low 32 bits of 64;
// shifts take the low byte of their count and cut to the word behind the shift.
TEST(IntegerOperationsTest, BinaryOperations) {
    ExpectAll(IntegerAnd, "5 3 8 -> 1; -1 1000 8 -> 1000; 5.5 3 8 -> error -53");
    ExpectAll(IntegerXor, "-1 5 16 -> -6; nan 0 32 -> error -53");
    ExpectAll(IntegerOr, "2147483647 -2147483648 32 -> -1; 2147483648 0 32 -> error -53");
    ExpectAll(IntegerMod, "-7 3 8 -> 1; 7 -3 8 -> 1; 7 0 8 -> error -5; 7.5 0 8 -> error -53");
    ExpectAll(IntegerNand,
              "12 10 8 -> 247; 12 10 16 -> 65527; 12 10 32 -> 4294967287; 12 10 24 -> 4294967287; "
              "4294967296 1 8 -> 255");
    ExpectAll(IntegerNor,
              "0 0 32 -> 4294967295; 9223372036854775808 0 32 -> error -53; "
              "-9223372036854775808 0 32 -> 4294967295; 0.5 0 32 -> error -53");
    ExpectAll(IntegerShiftLeft,
              "1 40 32 -> 0; 1 32 32 -> 0; 1 9 16 -> 512; 129 1 8 -> 2; 8 -1 8 -> 4; 300 0 8 -> 44; "
              "3 257 8 -> 6; 3 255 8 -> 0; 8 -257 8 -> 4; 8 -9223372036854775808 8 -> 8; 3 1 12 -> 0; "
              "3.5 1 8 -> error -53; 3 0.5 12 -> error -53");
    ExpectAll(IntegerShiftRight, "8 -1 8 -> 16; 256 1 8 -> 128; -1 31 32 -> 1; -1 32 32 -> 0; 3 1 64 -> 0");
    ExpectAll(IntegerRotateLeft, "129 8 8 -> 129; 511 0 8 -> 255; 1 9007199254740992 8 -> 1; 1 1 0 -> 0");
    ExpectAll(IntegerRotateRight, "511 0 8 -> 255; 1 -9223372036854775808 8 -> 1; 1.5 1 8 -> error -53");
}

TEST(IntegerOperationsTest, ComplementsTakeAnyNumber) {
    const auto expectAll = [](IntegerOutcome (*operation)(double, std::int32_t), std::int32_t wordSize,
                              std::initializer_list<std::pair<double, double>> rows) {
        for (const auto& [operand, value] : rows) {
            EXPECT_EQ(operation(operand, wordSize), IntegerOutcome{value}) << operand;
        }
    };
    expectAll(IntegerNot, 8, {{0, 255}, {1, 254}, {5.9, 250}, {-5.9, 4}, {1e300, 255}});
    expectAll(IntegerNot, 16, {{0, 65535}, {4294967297.0, 65534}, {kNotANumber, 65535}});
    expectAll(IntegerNot, 32, {{0, 4294967295.0}, {-HUGE_VAL, 4294967295.0}});
    expectAll(IntegerNot, 12, {{1, 4294967294.0}});
    expectAll(IntegerNegate, 8, {{0, 0}, {1, 255}, {5.9, 251}, {-5.9, 5}, {1e300, 0}});
    expectAll(IntegerNegate, 16, {{4294967297.0, 65535}, {kNotANumber, 0}});
    expectAll(IntegerNegate, 12, {{1, 4294967295.0}});
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

#include "numerics/powers_of_ten.h"

#include <array>

#include "numerics/constants.h"

namespace quorix {
namespace {

// Powers with an exponent below this one are products of table entries that are all exact.
constexpr int kFirstInexactProduct = 128;
constexpr int kHighestTableBit = kPowerTableSize - 1;

Unpacked TablePower(int bit) {
    return Unpack(constants::kPowersOfTen[static_cast<std::size_t>(kHighestTableBit - bit)]);
}

std::array<Unpacked, kLargestExactPower + 1> BuildExactPowers() {
    std::array<Unpacked, kLargestExactPower + 1> powers;
    powers[0] = Unpack(constants::kOne);
    for (std::size_t e = 1; e < powers.size(); ++e) powers[e] = Multiply(powers[e - 1], TablePower(0));
    return powers;
}

}  // namespace

const Unpacked& ExactPowerOfTen(int e) {
    static const auto powers = BuildExactPowers();
    return powers[static_cast<std::size_t>(e)];
}

Unpacked PowerOfTenFromLowest(int e) {
    if (e <= kLargestExactPower) return ExactPowerOfTen(e);
    Unpacked power = ExactPowerOfTen(e % kFirstInexactProduct);
    for (int bit = 7; bit < kPowerTableSize; ++bit) {
        if ((e >> bit & 1) != 0) power = Multiply(TablePower(bit), power);
    }
    return power;
}

Unpacked PowerOfTenFromHighest(int e) {
    if (e <= kLargestExactPower) return ExactPowerOfTen(e);
    Unpacked power = ExactPowerOfTen(0);
    for (int bit = kHighestTableBit; bit >= 0; --bit) {
        if ((e >> bit & 1) != 0) power = Multiply(TablePower(bit), power);
    }
    return power;
}

}  // namespace quorix

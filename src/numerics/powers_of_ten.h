#pragma once

// Powers of ten as the text conversions use them. Internal to the number core.

#include "numerics/unpacked.h"

namespace quorix {

/// Powers of ten up to this one fit 336 bits, whatever the order of their multiplication.
inline constexpr int kLargestExactPower = 144;
/// Exponents of the table of powers are 2^12 to 2^0.
inline constexpr int kPowerTableSize = 13;
/// The largest number of decimal digits that every 64-bit limb holds, and ten to it.
inline constexpr int kDigitsPerLimb = 19;
inline constexpr limbs::Limb kLimbOfDigits = 10'000'000'000'000'000'000u;

/// Ten to the power e, 0 <= e <= kLargestExactPower, exact.
const Unpacked& ExactPowerOfTen(int e);

/// Ten to the power e, 0 <= e < 8192, multiplied from the table's powers with the lowest first. The exponent
/// may lie beyond the range.
Unpacked PowerOfTenFromLowest(int e);

/// The same, multiplied with the highest power first.
Unpacked PowerOfTenFromHighest(int e);

}  // namespace quorix

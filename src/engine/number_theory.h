#pragma once

#include <cstdint>
#include <functional>

#include "engine/named_arguments.h"
#include "numerics/qreal.h"

namespace quorix {

/// gcd of two or more 32-bit integers by magnitude; -11 for what is none.
QReal CallGcd(NamedArguments& arguments);
/// lcm of two or more, folded in doubles; lcm(0,0) is 0; -35 for what is no 32-bit integer.
QReal CallLcm(NamedArguments& arguments);
/// Fibonacci number in doubles; -53 for what is no non-negative integer, -7 from 1024 on.
QReal CallFibonacci(NamedArguments& arguments);
/// A number between two bounds, seeded by the clock at each call.
QReal CallRandom(NamedArguments& arguments);
/// n over r and n!/(n-r)!: -11 unless both are 32-bit integers and n is above r, then -50 unless r is above
/// 0.
QReal CallCombinations(NamedArguments& arguments);
QReal CallPermutations(NamedArguments& arguments);

enum class Complement : std::uint8_t { ones, twos };
/// not and cpl: complement or negation of the unsigned 32-bit value at the word size; -53 for what is no
/// 64-bit integer. The argument is read in the caller's radix.
QReal CallComplement(NamedArguments& arguments, int radix, Complement complement);

/// Milliseconds that seed `ran`; tests hand in their own.
void SetRandomClock(std::function<std::uint64_t()> clock);

}  // namespace quorix

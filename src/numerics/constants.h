#pragma once

// The named constants of the core, each exact to the full 336 bits where it is irrational.

#include <array>

#include "numerics/qreal.h"

namespace quorix::constants {

extern const QReal kZero, kHalf, kOne, kTwo, kThree, kNine, kTen, kThirtyTwo;
/// 10^4096, 10^2048, ..., 10^1.
extern const std::array<QReal, 13> kPowersOfTen;
/// 10^-4096, 10^-2048, ..., 10^-1.
extern const std::array<QReal, 13> kNegativePowersOfTen;
extern const QReal kLn2, kLn2High, kLn2Low, kSqrt2, kSqrt2Plus1, kSqrt2Minus1, kPi, kTwoOverSqrtPi, kEuler;
extern const QComplex kComplexOne;

}  // namespace quorix::constants

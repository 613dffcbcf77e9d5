#pragma once

// New moons and the sun's longitude, as Jean Meeus gives them ("Astronomical Formulae for Calculators",
// chapters 18 and 32), in 64-bit floating point. Good to some minutes of time in the centuries about 2000.

#include <cstdint>

namespace quorix {

/// Days from one mean new moon to the next.
inline constexpr double kSynodicMonth = 29.530588853;
/// Julian day of the new moon with lunation number 0: 1 January 1900.
inline constexpr double kReferenceNewMoon = 2415021.076998695;

/// Julian day, universal time, of new moon number `k`.
double NewMoon(std::int64_t k);

/// The sun's apparent longitude at a Julian day: radians, from 0 to below 2 pi.
double SunLongitude(double julianDay);

}  // namespace quorix

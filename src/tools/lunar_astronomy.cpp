#include "tools/lunar_astronomy.h"

#include <cmath>
#include <numbers>

namespace quorix {

namespace {

constexpr double kRadians = std::numbers::pi / 180.0;
constexpr double kTurn = 2.0 * std::numbers::pi;
constexpr double kLunationsPerCentury = 1236.85;
constexpr double kDaysPerCentury = 36525.0;
constexpr double kEpoch2000 = 2451545.0;

/// Dynamical minus universal time, in days, at t centuries from 1900.
double DeltaT(double t) {
    const double t2 = t * t;
    if (t < -11.0) {
        const double t3 = t2 * t;
        return 0.001 + 0.000839 * t + 0.0002261 * t2 - 0.00000845 * t3 - 0.000000081 * t * t3;
    }
    return -0.000278 + 0.000265 * t + 0.000262 * t2;
}

/// The periodic terms of a new moon, in days. Angles in radians: the anomalies of sun and moon, and the
/// moon's argument of latitude.
double PeriodicTerms(double t, double sun, double moon, double latitude) {
    using std::sin;
    return (0.1734 - 0.000393 * t) * sin(sun) + 0.0021 * sin(2.0 * sun) - 0.4068 * sin(moon) +
           0.0161 * sin(2.0 * moon) - 0.0004 * sin(3.0 * moon) + 0.0104 * sin(2.0 * latitude) -
           0.0051 * sin(sun + moon) - 0.0074 * sin(sun - moon) + 0.0004 * sin(2.0 * latitude + sun) -
           0.0004 * sin(2.0 * latitude - sun) - 0.0006 * sin(2.0 * latitude + moon) +
           0.0010 * sin(2.0 * latitude - moon) + 0.0005 * sin(2.0 * moon + sun);
}

}  // namespace

double NewMoon(std::int64_t k) {
    const auto n = static_cast<double>(k);
    const double t = n / kLunationsPerCentury;
    const double t2 = t * t;
    const double t3 = t2 * t;
    const double mean = 2415020.75933 + 29.53058868 * n + 0.0001178 * t2 - 0.000000155 * t3 +
                        0.00033 * std::sin((166.56 + 132.87 * t - 0.009173 * t2) * kRadians);
    const double sun = 359.2242 + 29.10535608 * n - 0.0000333 * t2 - 0.00000347 * t3;
    const double moon = 306.0253 + 385.81691806 * n + 0.0107306 * t2 + 0.00001236 * t3;
    const double latitude = 21.2964 + 390.67050646 * n - 0.0016528 * t2 - 0.00000239 * t3;
    return mean + PeriodicTerms(t, sun * kRadians, moon * kRadians, latitude * kRadians) - DeltaT(t);
}

double SunLongitude(double julianDay) {
    const double t = (julianDay - kEpoch2000) / kDaysPerCentury;
    const double t2 = t * t;
    const double anomaly = (357.5291 + 35999.0503 * t - 0.0001559 * t2 - 0.00000048 * t * t2) * kRadians;
    const double mean = 280.46645 + 36000.76983 * t + 0.0003032 * t2;
    const double centre = (1.9146 - 0.004817 * t - 0.000014 * t2) * std::sin(anomaly) +
                          (0.019993 - 0.000101 * t) * std::sin(2.0 * anomaly) +
                          0.00029 * std::sin(3.0 * anomaly);
    double longitude = (mean + centre) * kRadians;
    longitude -= kTurn * std::trunc(longitude / kTurn);
    while (longitude < 0.0) {
        longitude += kTurn;
    }
    while (longitude >= kTurn) {
        longitude -= kTurn;
    }
    return longitude;
}

}  // namespace quorix

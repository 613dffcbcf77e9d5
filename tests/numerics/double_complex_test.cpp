// Values that are settled; the rows of the operator table are compared with the library elsewhere.

#include "numerics/double_complex.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

namespace quorix {
namespace {

using Function = DComplex (*)(DComplex);

TEST(DoubleComplex, RealArgumentsInTheDomainStayReal) {
    for (const double x : {-0.9, -0.25, 0.0, 0.5, 1.0}) {
        for (const Function function : {dcomplex::asin, dcomplex::acos, dcomplex::atan, dcomplex::asinh,
                                        dcomplex::sin, dcomplex::cosh, dcomplex::exp, dcomplex::tanh}) {
            EXPECT_EQ(function({x, 0.0}).im, 0.0) << x;
        }
    }
    EXPECT_EQ(dcomplex::acosh({2.0, 0.0}).im, 0.0);
    EXPECT_EQ(dcomplex::divide({1.0, 0.0}, {4.0, 0.0}).re, 0.25);
}

TEST(DoubleComplex, SettledValues) {
    const DComplex root = dcomplex::sqrt({-4.0, 0.0});
    EXPECT_EQ(root.re, 0.0);
    EXPECT_EQ(root.im, 2.0);
    EXPECT_EQ(dcomplex::sqrt({0.0, 0.0}).re, 0.0);
    EXPECT_EQ(dcomplex::pow({0.0, 0.0}, {0.0, 0.0}).re, 0.0);
    EXPECT_EQ(dcomplex::ln({-1.0, 0.0}).im, std::numbers::pi);
    EXPECT_NEAR(dcomplex::asin({2.0, 0.0}).re, std::numbers::pi / 2, 1e-15);
    EXPECT_NEAR(std::fabs(dcomplex::asin({2.0, 0.0}).im), 1.3169578969248167, 1e-14);
    const DComplex power = dcomplex::pow({0.0, 1.0}, {0.0, 1.0});
    EXPECT_NEAR(power.re, std::exp(-std::numbers::pi / 2), 1e-15);
    // Large imaginary parts neither overflow nor lose the sign.
    EXPECT_NEAR(dcomplex::tan({1.0, 800.0}).im, 1.0, 1e-15);
    EXPECT_NEAR(dcomplex::tan({1.0, -800.0}).im, -1.0, 1e-15);
    EXPECT_NEAR(dcomplex::tanh({800.0, 1.0}).re, 1.0, 1e-15);
    EXPECT_TRUE(std::isinf(dcomplex::reciprocal({0.0, 0.0}).re));
}

}  // namespace
}  // namespace quorix

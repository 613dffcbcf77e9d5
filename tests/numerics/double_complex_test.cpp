#include "numerics/double_complex.h"

#include <gtest/gtest.h>

#include <complex>
#include <limits>
#include <numbers>
#include <random>

namespace quorix {
namespace {

using Complex = std::complex<double>;
using Function = DComplex (*)(DComplex);
using Peer = Complex (*)(const Complex&);

struct Row {
    const char* name;
    Function function;
    Peer peer;
};

constexpr Complex kUnit{0.0, 1.0};

const Row kRows[] = {
    {"sqrt", dcomplex::sqrt, [](const Complex& z) { return std::sqrt(z); }},
    {"exp", dcomplex::exp, [](const Complex& z) { return std::exp(z); }},
    {"ln", dcomplex::ln, [](const Complex& z) { return std::log(z); }},
    {"log10", dcomplex::log10, [](const Complex& z) { return std::log10(z); }},
    {"sin", dcomplex::sin, [](const Complex& z) { return std::sin(z); }},
    {"cos", dcomplex::cos, [](const Complex& z) { return std::cos(z); }},
    {"tan", dcomplex::tan, [](const Complex& z) { return std::tan(z); }},
    {"cot", dcomplex::cot, [](const Complex& z) { return 1.0 / std::tan(z); }},
    {"sec", dcomplex::sec, [](const Complex& z) { return 1.0 / std::cos(z); }},
    {"csc", dcomplex::csc, [](const Complex& z) { return 1.0 / std::sin(z); }},
    {"sinh", dcomplex::sinh, [](const Complex& z) { return std::sinh(z); }},
    {"cosh", dcomplex::cosh, [](const Complex& z) { return std::cosh(z); }},
    {"tanh", dcomplex::tanh, [](const Complex& z) { return std::tanh(z); }},
    {"coth", dcomplex::coth, [](const Complex& z) { return 1.0 / std::tanh(z); }},
    {"asin", dcomplex::asin, [](const Complex& z) { return std::asin(z); }},
    {"acos", dcomplex::acos, [](const Complex& z) { return std::acos(z); }},
    {"atan", dcomplex::atan, [](const Complex& z) { return std::atan(z); }},
    {"asinh", dcomplex::asinh, [](const Complex& z) { return std::asinh(z); }},
    {"acosh", dcomplex::acosh, [](const Complex& z) { return std::acosh(z); }},
    {"atanh", dcomplex::atanh, [](const Complex& z) { return std::atanh(z); }},
    {"acot", dcomplex::acot, [](const Complex& z) { return std::atan(1.0 / z); }},
    {"asec", dcomplex::asec, [](const Complex& z) { return std::acos(1.0 / z); }},
    {"acsch", dcomplex::acsch, [](const Complex& z) { return std::asinh(1.0 / z); }},
};

TEST(DoubleComplex, AgreesWithTheStandardLibraryOffTheCuts) {
    std::mt19937 random(9);
    std::uniform_real_distribution<double> part(-3.0, 3.0);
    for (const Row& row : kRows) {
        for (int round = 0; round < 2000; ++round) {
            const Complex z(part(random), part(random));
            const DComplex found = row.function({z.real(), z.imag()});
            const Complex expected = row.peer(z);
            EXPECT_LT(std::abs(Complex(found.re, found.im) - expected), 1e-12 * (1.0 + std::abs(expected)))
                << row.name << " of " << z;
        }
    }
}

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

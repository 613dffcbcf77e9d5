#pragma once

// The closed forms of cubic and quartic roots as texts of the engine's notation. a to e stand for the
// coefficients, highest power first; A1 to A5, B1 to B8 and C1 for intermediate values.

#include <array>
#include <string_view>

namespace quorix::closed_form {

// a X^3 + b X^2 + c X + d.
inline constexpr std::array<std::u16string_view, 5> kCubicValues = {
    u"(-b)/(3*a)",
    u"((-2)*b^3 + 9*a*c*b - 27*a^2*d + (4*(3*a*c-b^2)^3+((-2)*b^3+9*a*c*b-27*a^2*d)^2)^(1/2))^(1/3)",
    u"a",
    u"(3*a*c-b^2)",
    u"1/(6*2^(1/3)*a)",
};
inline constexpr std::array<std::u16string_view, 3> kCubicRoots = {
    u"A1 + A2/(3*2^(1/3)*A3) - (2^(1/3)*A4)/(3*A3*A2)",
    u"A1 - A5*((1-i*sqrt(3))*A2) + ((1+i*sqrt(3))*A4/(3*2^(2/3)*A3*A2))",
    u"A1 - A5*((1+i*sqrt(3))*A2) + ((1-i*sqrt(3))*A4/(3*2^(2/3)*A3*A2))",
};
inline constexpr std::u16string_view kCubicTripleRoot = u"(-d/a)^(1/3)";
/// The real root where A2 and A4 vanish: (a X + b/3)^3 is then a number.
inline constexpr std::u16string_view kCubicShiftedRoot = u"(-b+((-2)*b^3+9*a*b*c-27*a^2*d)^(1/3))/(3*a)";

// a X^4 + b X^3 + c X^2 + d X + e. The seventh value is carried along and used by none of the others.
inline constexpr std::array<std::u16string_view, 8> kQuarticValues = {
    u"(2*c^3-9*b*c*d-72*a*e*c+27*a*d^2+sqrt((2*c^3-9*b*d*c-72*a*e*c+27*a*d^2+27*b^2*e)^2-4*(c^2-3*b*d+12*a*e)"
    u"^3) + 27*b^2*e)^(1/3)",
    u"(c^2-3*b*d+12*a*e)",
    u"(b^2/(4*a^2) - 2*c/(3*a))",
    u"(-b)/(4*a)",
    u"((-b^3)/a^3+4*c*b/a^2-8*d/a)",
    u"1/(3*2^(1/3)*a)",
    u"",
    u"2^(1/3)*(c^2-3*b*d+12*a*e)/(3*a*(2*c^3-9*b*c*d-72*a*e*c+27*a*d^2+sqrt((2*c^3-9*b*d*c-72*a*e*c+27*a*d^2"
    u"+27*b^2*e)^2-4*(c^2-3*b*d+12*a*e)^3) + 27*b^2*e)^(1/3))",
};
/// The first value with the other square root, for a sum that cancels to nothing.
inline constexpr std::u16string_view kQuarticOtherB1 =
    u"(2*c^3-9*b*c*d-72*a*e*c+27*a*d^2-sqrt((2*c^3-9*b*d*c-72*a*e*c+27*a*d^2+27*b^2*e)^2-4*(c^2-3*b*d+12*a*e)"
    u"^3) + 27*b^2*e)^(1/3)";
inline constexpr std::u16string_view kQuarticC1 = u"B3+B6*B1+B8";
inline constexpr std::array<std::u16string_view, 4> kQuarticRoots = {
    u"B4-(1/2)*sqrt(C1)-(1/2)*sqrt(2*B3-B6*B1-B8-B5/(4*sqrt(C1)))",
    u"B4-(1/2)*sqrt(C1)+(1/2)*sqrt(2*B3-B6*B1-B8-B5/(4*sqrt(C1)))",
    u"B4+(1/2)*sqrt(C1)-(1/2)*sqrt(2*B3-B6*B1-B8+B5/(4*sqrt(C1)))",
    u"B4+(1/2)*sqrt(C1)+(1/2)*sqrt(2*B3-B6*B1-B8+B5/(4*sqrt(C1)))",
};
inline constexpr std::array<std::u16string_view, 2> kQuarticPureRoots = {u"(-e/a)^(1/4)", u"-(-e/a)^(1/4)"};
inline constexpr std::array<std::u16string_view, 4> kBiquadraticRoots = {
    u"sqrt((-c+sqrt(c^2-4*a*e))/(2*a))",
    u"sqrt((-c-sqrt(c^2-4*a*e))/(2*a))",
    u"-sqrt((-c+sqrt(c^2-4*a*e))/(2*a))",
    u"-sqrt((-c-sqrt(c^2-4*a*e))/(2*a))",
};
/// The quadratic and the constant coefficient about the centre -b/(4a).
inline constexpr std::u16string_view kCentredC = u"c-3*b^2/(8*a)";
inline constexpr std::u16string_view kCentredE = u"e-b*d/(4*a)+b^2*c/(16*a^2)-3*b^4/(256*a^3)";
inline constexpr std::u16string_view kQuadrupleRootTest = u"e/d";
inline constexpr std::u16string_view kQuadrupleRootPositive = u"(e/a)^(1/4)";
inline constexpr std::u16string_view kQuadrupleRootNegative = u"-(e/a)^(1/4)";

}  // namespace quorix::closed_form

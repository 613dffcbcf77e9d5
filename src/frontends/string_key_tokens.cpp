#include "frontends/string_key_tokens.h"

#include <algorithm>

#include "frontends/key_codes.h"
#include "frontends/key_table.h"

namespace quorix {

namespace {

// In the order of the codes.
constexpr StringKeyTokens kTokens[] = {
    {KEY_7, u"7", u""},
    {KEY_8, u"8", u""},
    {KEY_9, u"9", u""},
    {KEY_DIVIDE, u"\u00F7", u""},
    {KEY_4, u"4", u""},
    {KEY_5, u"5", u""},
    {KEY_6, u"6", u""},
    {KEY_MULTIPLY, u"\u00D7", u""},
    {KEY_1, u"1", u""},
    {KEY_2, u"2", u""},
    {KEY_3, u"3", u""},
    {KEY_MINUS, u"\u2212", u""},
    {KEY_0, u"0", u""},
    {KEY_SIGN, u"(-", u""},
    {KEY_PLUS, u"+", u""},
    {KEY_ANSWER, u"[ans]", u""},
    {KEY_I, u"i", u""},
    {KEY_GCD, u"gcd(", u""},
    {KEY_EXP, u"exp", u""},
    {KEY_LOG, u"log(", u""},
    {KEY_LN, u"ln(", u""},
    {KEY_POWER, u"^", u""},
    {KEY_SQUARE, u"^", u"2"},
    {KEY_CUBE, u"^", u"3"},
    {KEY_FACTORIAL, u"!", u""},
    {KEY_X, u"x", u""},
    {KEY_RAN, u"ran(", u""},
    {KEY_LCM, u"lcm(", u""},
    {KEY_MOD, u" mod ", u""},
    {KEY_TEN_POWER, u"10", u"^"},
    {KEY_E_POWER, u"e", u"^"},
    {KEY_ROOT, u"\u221A(", u""},
    {KEY_SQUARE_ROOT, u"2", u"\u221A("},
    {KEY_CUBE_ROOT, u"3", u"\u221A("},
    {KEY_PERCENT, u"%", u""},
    {KEY_OPEN, u"(", u""},
    {KEY_CLOSE, u")", u""},
    {KEY_COMMA, u",", u""},
    {KEY_SINH, u"sinh(", u""},
    {KEY_COSH, u"cosh(", u""},
    {KEY_TANH, u"tanh(", u""},
    {KEY_SIN, u"sin(", u""},
    {KEY_COS, u"cos(", u""},
    {KEY_TAN, u"tan(", u""},
    {KEY_CSC, u"csc(", u""},
    {KEY_SEC, u"sec(", u""},
    {KEY_PI, u"pi", u""},
    {KEY_ASINH, u"asinh(", u""},
    {KEY_ACOSH, u"acosh(", u""},
    {KEY_ATANH, u"atanh(", u""},
    {KEY_ASIN, u"asin(", u""},
    {KEY_ACOS, u"acos(", u""},
    {KEY_ATAN, u"atan(", u""},
    {KEY_ACSC, u"acsc(", u""},
    {KEY_ASEC, u"asec(", u""},
    {KEY_AND, u" and ", u""},
    {KEY_OR, u" or ", u""},
    {KEY_XOR, u" xor ", u""},
    {KEY_HEX_A, u"A", u""},
    {KEY_HEX_B, u"B", u""},
    {KEY_HEX_C, u"C", u""},
    {KEY_HEX_D, u"D", u""},
    {KEY_HEX_E, u"E", u""},
    {KEY_HEX_F, u"F", u""},
    {KEY_NAND, u" nand ", u""},
    {KEY_NOR, u" nor ", u""},
    {KEY_SHL, u" shl ", u""},
    {KEY_SHR, u" shr ", u""},
    {KEY_RTL, u" rtl ", u""},
    {KEY_RTR, u" rtr ", u""},
    {KEY_NOT, u"not(", u""},
    {KEY_CPL, u"cpl(", u""},
    {KEY_N, u"N(X)", u""},
    {KEY_NCR, u"ncr(", u""},
    {KEY_SUM, u"sum(X)", u""},
    {KEY_SDV, u"sdv(X)", u""},
    {KEY_AVG, u"avg(X)", u""},
    {KEY_AVD, u"avd(X)", u""},
    {KEY_DSQ, u"dsq(X)", u""},
    {KEY_MIN, u"min(X)", u""},
    {KEY_NPR, u"npr(", u""},
    {KEY_SSQ, u"ssq(X)", u""},
    {KEY_SSD, u"ssd(X)", u""},
    {KEY_MEDIAN, u"median(X)", u""},
    {KEY_MD, u"md(X)", u""},
    {KEY_GM, u"gm(X)", u""},
    {KEY_MAX, u"max(X)", u""},
    {KEY_DET, u"det(", u""},
    {KEY_INV, u"inv(", u""},
    {KEY_EIGV, u"eigv(", u""},
    {KEY_EIGL, u"eigl(", u""},
    {KEY_ORTH, u"orth(", u""},
    {KEY_RANK, u"rank(", u""},
    {KEY_TRANS, u"trans(", u""},
    {KEY_DIAG, u"diag(", u""},
    {KEY_TRI, u"tri(", u""},
    {KEY_SOLVE, u"solve(", u""},
    {KEY_SYD, u"syd(", u""},
    {KEY_SLN, u"sln(", u""},
    {KEY_FV, u"fv(", u""},
    {KEY_PV, u"pv(", u""},
    {KEY_NPER, u"nper(", u""},
    {KEY_PMT, u"pmt(", u""},
    {KEY_RATE, u"rate(", u""},
    {KEY_DB, u"db(", u""},
    {KEY_INTEGRAL, u"\u222B(", u""},
    {KEY_DERIVATIVE, u"\u03B4(", u""},
    {KEY_EVALUATE, u"\u0192(", u""},
    {KEY_FN_ROOT, u"fnRoot(", u""},
    {KEY_PRODUCT, u"\u220F(", u""},
    {KEY_SUMMATION, u"\u2211(", u""},
    {KEY_FIBONACCI, u"fib(", u""},
    {KEY_RECIPROCAL, u"1", u"\u00F7"},
};

static_assert(IsSortedByCode(kTokens));
static_assert(std::all_of(std::begin(kTokens), std::end(kTokens),
                          [](const StringKeyTokens& row) { return row.first.size() <= 9; }),
              "a token's length is one decimal digit");

}  // namespace

const StringKeyTokens* FindStringKeyTokens(std::int32_t code) {
    return FindRowOfKey(kTokens, code);
}

std::span<const StringKeyTokens> AllStringKeyTokens() {
    return kTokens;
}

}  // namespace quorix

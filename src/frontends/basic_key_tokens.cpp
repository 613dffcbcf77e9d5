#include "frontends/basic_key_tokens.h"

#include <algorithm>

#include "frontends/key_codes.h"
#include "frontends/key_table.h"

namespace quorix {

namespace {

constexpr BasicKeyTokens Same(std::int32_t code, std::u16string_view token) {
    return {code, {token}, {token}};
}

// In the order of the codes.
constexpr BasicKeyTokens kTokens[] = {
    Same(KEY_7, u"7"),
    Same(KEY_8, u"8"),
    Same(KEY_9, u"9"),
    Same(KEY_DIVIDE, u"/"),
    {KEY_CLEAR, {u".", u".", u"0"}, {u"."}},
    Same(KEY_4, u"4"),
    Same(KEY_5, u"5"),
    Same(KEY_6, u"6"),
    Same(KEY_MULTIPLY, u"*"),
    Same(KEY_1, u"1"),
    Same(KEY_2, u"2"),
    Same(KEY_3, u"3"),
    Same(KEY_MINUS, u"-"),
    Same(KEY_0, u"0"),
    Same(KEY_POINT, u".."),
    Same(KEY_SIGN, u"NEG"),
    Same(KEY_PLUS, u"+"),
    {KEY_EQUALS, {u"="}, {}},
    Same(KEY_EXP, u"iexp"),
    Same(KEY_LOG, u"log"),
    Same(KEY_LN, u"ln"),
    Same(KEY_POWER, u"^"),
    {KEY_SQUARE, {u"^", u"2", u"DoNothing"}, {u"(", u"2", u"^"}},
    {KEY_CUBE, {u"^", u"3", u"DoNothing"}, {u"(", u"3", u"^"}},
    Same(KEY_FACTORIAL, u"!"),
    Same(KEY_MOD, u"mod"),
    {KEY_TEN_POWER,
     {u"Pop", u"10", u"^", kPoppedValue, u"DoNothing"},
     {u"Pop", u"10", u"(", kPoppedValue, u"^"}},
    Same(KEY_E_POWER, u"exp"),
    Same(KEY_ROOT, u"iroot"),
    Same(KEY_SQUARE_ROOT, u"sqrt"),
    {KEY_CUBE_ROOT, {u"^", u"(", u"1", u"/", u"3", u")", u"DoNothing"}, {u"(", u"1", u"(", u"3", u"/", u"^"}},
    Same(KEY_PERCENT, u"%"),
    Same(KEY_OPEN, u"("),
    Same(KEY_CLOSE, u")"),
    {KEY_DELETE, {u".", u"0"}, {}},
    Same(KEY_SINH, u"sinh"),
    Same(KEY_COSH, u"cosh"),
    Same(KEY_TANH, u"tanh"),
    Same(KEY_SIN, u"sin"),
    Same(KEY_COS, u"cos"),
    Same(KEY_TAN, u"tan"),
    Same(KEY_CSC, u"csc"),
    Same(KEY_SEC, u"sec"),
    Same(KEY_PI, u"PI"),
    Same(KEY_ASINH, u"asinh"),
    Same(KEY_ACOSH, u"acosh"),
    Same(KEY_ATANH, u"atanh"),
    Same(KEY_ASIN, u"asin"),
    Same(KEY_ACOS, u"acos"),
    Same(KEY_ATAN, u"atan"),
    Same(KEY_ACSC, u"acsc"),
    Same(KEY_ASEC, u"asec"),
    Same(KEY_AND, u"and"),
    Same(KEY_OR, u"or"),
    Same(KEY_XOR, u"xor"),
    Same(KEY_HEX_A, u"A"),
    Same(KEY_HEX_B, u"B"),
    Same(KEY_HEX_C, u"C"),
    Same(KEY_HEX_D, u"D"),
    Same(KEY_HEX_E, u"E"),
    Same(KEY_HEX_F, u"F"),
    Same(KEY_NAND, u"nand"),
    Same(KEY_NOR, u"nor"),
    Same(KEY_SHL, u"shl"),
    Same(KEY_SHR, u"shr"),
    Same(KEY_RTL, u"rtl"),
    Same(KEY_RTR, u"rtr"),
    Same(KEY_NOT, u"not"),
    Same(KEY_CPL, u"cpl"),
    {KEY_RECIPROCAL,
     {u"Pop", u"1", u"/", kPoppedValue, u"DoNothing"},
     {u"Pop", u"1", u"(", kPoppedValue, u"/"}},
};

static_assert(IsSortedByCode(kTokens));

}  // namespace

const BasicKeyTokens* FindBasicKeyTokens(std::int32_t code) {
    return FindRowOfKey(kTokens, code);
}

}  // namespace quorix

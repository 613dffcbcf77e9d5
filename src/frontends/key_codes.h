#pragma once

// The vocabulary between panels and display: one small integer for each key of the calculator.
// Codes 0 to 19 are the cells of the lower panel in portrait, so their order is that of the pad.

#include <cstdint>

namespace quorix {

enum KeyCode : std::int32_t {
    KEY_NONE = -1,
    KEY_7 = 0,
    KEY_8,
    KEY_9,
    KEY_DIVIDE,
    KEY_CLEAR,
    KEY_4 = 5,
    KEY_5,
    KEY_6,
    KEY_MULTIPLY,
    KEY_STORE,
    KEY_1 = 10,
    KEY_2,
    KEY_3,
    KEY_MINUS,
    KEY_RECALL,
    KEY_0 = 15,
    KEY_POINT,
    KEY_SIGN,
    KEY_PLUS,
    KEY_EQUALS,

    KEY_NEXT_MEMORY = 20,
    KEY_CLEAR_MEMORY,
    KEY_ANSWER,
    KEY_SHIFT,

    KEY_I = 25,
    KEY_GCD,
    KEY_EXP,
    KEY_LOG,
    KEY_LN,
    KEY_POWER,
    KEY_SQUARE,
    KEY_CUBE,
    KEY_FACTORIAL,
    KEY_X = 34,
    KEY_RAN,
    KEY_LCM,
    KEY_MOD,
    KEY_TEN_POWER,
    KEY_E_POWER,
    KEY_ROOT,
    KEY_SQUARE_ROOT,
    KEY_CUBE_ROOT,
    KEY_PERCENT = 43,

    KEY_OPEN = 44,
    KEY_CLOSE,
    KEY_COMMA,
    KEY_DELETE,
    KEY_LEFT,
    KEY_RIGHT,

    KEY_ANGLE = 50,
    KEY_SINH,
    KEY_COSH,
    KEY_TANH,
    KEY_SIN,
    KEY_COS,
    KEY_TAN,
    KEY_CSC,
    KEY_SEC,
    KEY_PI,
    KEY_ASINH = 60,
    KEY_ACOSH,
    KEY_ATANH,
    KEY_ASIN,
    KEY_ACOS,
    KEY_ATAN,
    KEY_ACSC,
    KEY_ASEC,

    KEY_BASE = 68,
    KEY_AND,
    KEY_OR,
    KEY_XOR,
    KEY_HEX_A = 72,
    KEY_HEX_B,
    KEY_HEX_C,
    KEY_HEX_D,
    KEY_HEX_E,
    KEY_HEX_F,
    KEY_NAND = 78,
    KEY_NOR,
    KEY_SHL,
    KEY_SHR,
    KEY_RTL,
    KEY_RTR,
    KEY_NOT,
    KEY_CPL,

    KEY_N = 86,
    KEY_NCR,
    KEY_SUM,
    KEY_SDV,
    KEY_AVG,
    KEY_AVD,
    KEY_DSQ,
    KEY_MIN,
    KEY_NPR = 94,
    KEY_SSQ,
    KEY_SSD,
    KEY_MEDIAN,
    KEY_MD,
    KEY_GM,
    KEY_MAX,
    KEY_DET = 101,
    KEY_INV,
    KEY_EIGV,
    KEY_EIGL,
    KEY_ORTH,
    KEY_RANK,
    KEY_TRANS,
    KEY_DIAG,
    KEY_TRI,
    KEY_SOLVE,
    KEY_SYD = 111,
    KEY_SLN,
    KEY_FV,
    KEY_PV,
    KEY_NPER,
    KEY_PMT,
    KEY_RATE,
    KEY_DB,
    KEY_INTEGRAL = 119,
    KEY_DERIVATIVE,
    KEY_EVALUATE,
    KEY_FN_ROOT,
    KEY_PRODUCT,
    KEY_SUMMATION,
    KEY_FIBONACCI,

    KEY_M1 = 126,
    KEY_M2,
    KEY_M3,
    KEY_M4,
    KEY_M5,
    KEY_RECIPROCAL = 131,
    KEY_FORMAT = 133,
    KEY_FIX,
    KEY_NORM,
    KEY_SCI,
    KEY_WORD_SIZE = 137,
    KEY_8_BIT,
    KEY_16_BIT,
    KEY_32_BIT,
    KEY_DEG = 142,
    KEY_RAD,
    KEY_GRAD,
    KEY_BIN = 145,
    KEY_OCT,
    KEY_DEC,
    KEY_HEX,
    KEY_NEXT_LINE = 149,
    KEY_PREVIOUS_LINE,
    KEY_LINE_1,
    KEY_LINE_2,
    KEY_LINE_3,
    KEY_LINE_4,
    KEY_LINE_5,
    KEY_LEFT_10 = 156,
    KEY_RIGHT_10,
    KEY_FRAC = 159,
};

/// Value of a digit key ("0" to "9", "A" to "F"), or -1.
constexpr int DigitOf(std::int32_t code) {
    switch (code) {
        case KEY_0:
            return 0;
        case KEY_1:
        case KEY_2:
        case KEY_3:
            return code - KEY_1 + 1;
        case KEY_4:
        case KEY_5:
        case KEY_6:
            return code - KEY_4 + 4;
        case KEY_7:
        case KEY_8:
        case KEY_9:
            return code - KEY_7 + 7;
        default:
            return code >= KEY_HEX_A && code <= KEY_HEX_F ? code - KEY_HEX_A + 10 : -1;
    }
}

}  // namespace quorix

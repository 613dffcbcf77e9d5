#include "frontends/spoken_names.h"

#include <algorithm>
#include <iterator>

namespace quorix {

namespace {

struct SpokenName {
    std::int32_t code;
    std::u16string_view name;
};

/// Sorted by key code.
constexpr SpokenName kNames[] = {
    {KEY_7, u"7"},
    {KEY_8, u"8"},
    {KEY_9, u"9"},
    {KEY_DIVIDE, u"divide"},
    {KEY_CLEAR, u"clear"},
    {KEY_4, u"4"},
    {KEY_5, u"5"},
    {KEY_6, u"6"},
    {KEY_MULTIPLY, u"multiply"},
    {KEY_STORE, u"store in memory"},
    {KEY_1, u"1"},
    {KEY_2, u"2"},
    {KEY_3, u"3"},
    {KEY_MINUS, u"minus"},
    {KEY_RECALL, u"recall memory"},
    {KEY_0, u"0"},
    {KEY_POINT, u"decimal sign"},
    {KEY_SIGN, u"change sign"},
    {KEY_PLUS, u"plus"},
    {KEY_EQUALS, u"equals"},
    {KEY_NEXT_MEMORY, u"next memory"},
    {KEY_CLEAR_MEMORY, u"clear memory"},
    {KEY_ANSWER, u"last answer"},
    {KEY_SHIFT, u"shift"},
    {KEY_I, u"imaginary unit"},
    {KEY_GCD, u"greatest common divisor"},
    {KEY_EXP, u"times ten to the power"},
    {KEY_LOG, u"common logarithm"},
    {KEY_LN, u"natural logarithm"},
    {KEY_POWER, u"power"},
    {KEY_SQUARE, u"square"},
    {KEY_CUBE, u"cube"},
    {KEY_FACTORIAL, u"factorial"},
    {KEY_X, u"variable x"},
    {KEY_RAN, u"random number"},
    {KEY_LCM, u"least common multiple"},
    {KEY_MOD, u"modulo"},
    {KEY_TEN_POWER, u"ten to the power"},
    {KEY_E_POWER, u"e to the power"},
    {KEY_ROOT, u"root"},
    {KEY_SQUARE_ROOT, u"square root"},
    {KEY_CUBE_ROOT, u"cube root"},
    {KEY_PERCENT, u"percent"},
    {KEY_OPEN, u"open parenthesis"},
    {KEY_CLOSE, u"close parenthesis"},
    {KEY_COMMA, u"comma"},
    {KEY_DELETE, u"delete"},
    {KEY_LEFT, u"cursor left"},
    {KEY_RIGHT, u"cursor right"},
    {KEY_ANGLE, u"angle unit"},
    {KEY_SINH, u"hyperbolic sine"},
    {KEY_COSH, u"hyperbolic cosine"},
    {KEY_TANH, u"hyperbolic tangent"},
    {KEY_SIN, u"sine"},
    {KEY_COS, u"cosine"},
    {KEY_TAN, u"tangent"},
    {KEY_CSC, u"cosecant"},
    {KEY_SEC, u"secant"},
    {KEY_PI, u"pi"},
    {KEY_ASINH, u"inverse hyperbolic sine"},
    {KEY_ACOSH, u"inverse hyperbolic cosine"},
    {KEY_ATANH, u"inverse hyperbolic tangent"},
    {KEY_ASIN, u"arc sine"},
    {KEY_ACOS, u"arc cosine"},
    {KEY_ATAN, u"arc tangent"},
    {KEY_ACSC, u"arc cosecant"},
    {KEY_ASEC, u"arc secant"},
    {KEY_BASE, u"base"},
    {KEY_AND, u"and"},
    {KEY_OR, u"or"},
    {KEY_XOR, u"exclusive or"},
    {KEY_HEX_A, u"hexadecimal A"},
    {KEY_HEX_B, u"hexadecimal B"},
    {KEY_HEX_C, u"hexadecimal C"},
    {KEY_HEX_D, u"hexadecimal D"},
    {KEY_HEX_E, u"hexadecimal E"},
    {KEY_HEX_F, u"hexadecimal F"},
    {KEY_NAND, u"not and"},
    {KEY_NOR, u"not or"},
    {KEY_SHL, u"shift left"},
    {KEY_SHR, u"shift right"},
    {KEY_RTL, u"rotate left"},
    {KEY_RTR, u"rotate right"},
    {KEY_NOT, u"not"},
    {KEY_CPL, u"complement"},
    {KEY_N, u"number of values"},
    {KEY_NCR, u"combinations"},
    {KEY_SUM, u"sum of values"},
    {KEY_SDV, u"standard deviation"},
    {KEY_AVG, u"average"},
    {KEY_AVD, u"average deviation"},
    {KEY_DSQ, u"sum of squared deviations"},
    {KEY_MIN, u"minimum"},
    {KEY_NPR, u"permutations"},
    {KEY_SSQ, u"sum of squares"},
    {KEY_SSD, u"sample standard deviation"},
    {KEY_MEDIAN, u"median"},
    {KEY_MD, u"mode of values"},
    {KEY_GM, u"geometric mean"},
    {KEY_MAX, u"maximum"},
    {KEY_DET, u"determinant"},
    {KEY_INV, u"inverse matrix"},
    {KEY_EIGV, u"eigenvectors"},
    {KEY_EIGL, u"eigenvalues"},
    {KEY_ORTH, u"orthonormal basis"},
    {KEY_RANK, u"rank"},
    {KEY_TRANS, u"transpose"},
    {KEY_DIAG, u"diagonal"},
    {KEY_TRI, u"triangular form"},
    {KEY_SOLVE, u"solve equations"},
    {KEY_SYD, u"sum of years digits depreciation"},
    {KEY_SLN, u"straight line depreciation"},
    {KEY_FV, u"future value"},
    {KEY_PV, u"present value"},
    {KEY_NPER, u"number of periods"},
    {KEY_PMT, u"payment"},
    {KEY_RATE, u"interest rate"},
    {KEY_DB, u"declining balance depreciation"},
    {KEY_RECIPROCAL, u"reciprocal"},
};
static_assert(std::is_sorted(std::begin(kNames), std::end(kNames),
                             [](const SpokenName& a, const SpokenName& b) { return a.code < b.code; }));

}  // namespace

std::u16string_view SpokenNameOfKey(std::int32_t code) {
    const auto* const found =
        std::lower_bound(std::begin(kNames), std::end(kNames), code,
                         [](const SpokenName& name, std::int32_t wanted) { return name.code < wanted; });
    return found != std::end(kNames) && found->code == code ? found->name : std::u16string_view{};
}

std::u16string_view SpokenNameOfCommand(PanelCommand command) {
    switch (command) {
        case PanelCommand::none: break;
        case PanelCommand::chooser: return u"categories";
        case PanelCommand::functionList: return u"function list";
        case PanelCommand::cycleBase: return u"next base";
        case PanelCommand::cycleWordSize: return u"next word size";
        case PanelCommand::statisticsKeyboard: return u"statistics data";
        case PanelCommand::statisticsSummary: return u"statistics summary";
        case PanelCommand::editMatrix: return u"edit matrix";
        case PanelCommand::timeValueDialog: return u"time value of money";
        case PanelCommand::loanCalculator: return u"loan calculator";
        case PanelCommand::mortgageCalculator: return u"mortgage calculator";
    }
    return {};
}

std::u16string_view SpokenNameOfCell(PanelCell cell, int category, bool orange, std::int32_t radixId) {
    if (cell.panel == Panel::lower) {
        constexpr std::pair<std::int32_t, std::int32_t> kOrange[] = {
            {KEY_STORE, KEY_NEXT_MEMORY}, {KEY_RECALL, KEY_CLEAR_MEMORY}, {KEY_EQUALS, KEY_ANSWER}};
        for (const auto& [plain, shifted] : kOrange) {
            if (orange && cell.cell == plain) {
                return SpokenNameOfKey(shifted);
            }
        }
        return SpokenNameOfKey(cell.cell);
    }
    const PanelAction action = UpperAction(category, cell.cell, orange, radixId);
    return action.command != PanelCommand::none ? SpokenNameOfCommand(action.command)
                                                : SpokenNameOfKey(action.key);
}

}  // namespace quorix

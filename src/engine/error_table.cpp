#include "engine/error_table.h"

#include <array>

namespace quorix {
namespace {

constexpr std::int32_t kErrorCount = 57;

// Rows in the order of the codes from -57 to -1, so that code + 57 is the index. Repeated words and the
// spellings "Sumation", "Logarit" and "symetric" are intended; rows that nothing raises keep the numbering
// fixed.
constexpr std::array<std::u16string_view, kErrorCount> ErrorMessages = {
    u"Absolute error",                // -57
    u"Invalid parameter(s)",          // -56
    u"Infinite result",               // -55
    u"Complex's not been supported",  // -54
    u"Invalid type error",            // -53
    u"Invalid macro",                 // -52
    u"Invalid parameters",            // -51
    u"Invalid parameters",            // -50
    u"No list available",             // -49
    u"Linear independent error",      // -48
    u"Eigenvector error",             // -47
    u"Matrix subtraction error",      // -46
    u"Matrix transformation error",   // -45
    u"Det evaluation error",          // -44
    u"Rank calculation error",        // -43
    u"Non-symetric Matrix",           // -42
    u"Sumation(Product) step error",  // -41
    u"Radix conversion error",        // -40
    u"Matrix inversion error",        // -39
    u"Matrix multiplication error",   // -38
    u"Fibonacci index error",         // -37
    u"MOD error",                     // -36
    u"LCM error",                     // -35
    u"ArcCsch error",                 // -34
    u"ArcSech error",                 // -33
    u"ArcCsc error",                  // -32
    u"ArcSec error",                  // -31
    u"Csch error",                    // -30
    u"Sech error",                    // -29
    u"Csc error",                     // -28
    u"Sec error",                     // -27
    u"Cotanh error",                  // -26
    u"Tanh error",                    // -25
    u"Cosh error",                    // -24
    u"Sinh error",                    // -23
    u"Cotan error",                   // -22
    u"Tan error",                     // -21
    u"Cos error",                     // -20
    u"Sin error",                     // -19
    u"Arccot error",                  // -18
    u"Arctan error",                  // -17
    u"Arccoth error",                 // -16
    u"Arctanh error",                 // -15
    u"Arccosh error",                 // -14
    u"Arcsinh error",                 // -13
    u"Root not found",                // -12
    u"Invalid type error",            // -11
    u"Matrix addition error",         // -10
    u"Integration error",             // -9
    u"Syntax error",                  // -8
    u"Out of range error",            // -7
    u"Logarit error",                 // -6
    u"Division error",                // -5
    u"(Square) root error",           // -4
    u"Arcsin error",                  // -3
    u"Arccos error",                  // -2
    u"Syntax error",                  // -1
};

}  // namespace

std::u16string_view ErrorMessageFor(std::int32_t code) {
    if (code < -kErrorCount || code > -1) return u"Unknown error";
    return ErrorMessages[static_cast<std::size_t>(code + kErrorCount)];
}

}  // namespace quorix

// Solver lines: equations part at ";", as on the command line; a line without one is a polynomial.

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "engine/calc_context.h"
#include "equations/coefficient_line.h"
#include "equations/equation_page.h"
#include "equations/equation_solver.h"
#include "equations/simultaneous.h"

namespace {

using namespace quorix;

constexpr std::size_t kLongestText = 160;

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size > kLongestText) return 0;
    std::u16string text;
    for (std::size_t i = 0; i < size; ++i) {
        text.push_back(static_cast<char16_t>(data[i] < 0x80 ? data[i] : 0x0340 + data[i]));
    }
    // Sums of many terms are slow by design.
    if (text.find(u"fn") != text.npos || text.find(u"fib") != text.npos) return 0;
    ClearCalcError();
    calcContext() = {};
    std::vector<std::u16string> equations(1);
    for (const char16_t c : text) {
        if (c == u';') {
            equations.emplace_back();
        } else {
            equations.back().push_back(c);
        }
    }
    if (equations.size() > 1) {
        SolveSimultaneous(equations);
        ComposeSimultaneousRow(equations[0]);
        return 0;
    }
    const std::vector<std::string> lines = SolveEquationCommand(text);
    if (lines.empty() || calcContext().calcError != 0) __builtin_trap();
    ComposeEquationPage(text, lines);
    return 0;
}

// Named functions: the first byte picks the row, the second the radix, the rest is the text between the
// parentheses. A sum of millions of terms is slow by design, so series run only when they have few terms.

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <string>

#include "engine/calc_context.h"
#include "engine/named_arguments.h"
#include "engine/named_functions.h"
#include "engine/variable_store.h"
#include "numerics/qcore.h"

namespace {

using namespace quorix;

constexpr std::size_t kLongestText = 48;
constexpr double kMostTerms = 100;

bool HoldsSeries(const std::u16string& text) {
    return text.find(u"fnSum") != std::u16string::npos || text.find(u"fnProduct") != std::u16string::npos;
}

// Span over step of a series.
double TermsOf(const std::u16string& text) {
    std::size_t position = 0;
    double bounds[] = {0.0, 0.0, 1.0};
    NextArgument(text, position);
    NextArgument(text, position);
    for (double& bound : bounds) {
        const auto argument = NextArgument(text, position);
        if (!argument) break;
        ClearCalcError();
        bound = qtoe(EvaluateRealText(*argument, 10));
    }
    return std::fabs((bounds[1] - bounds[0]) / bounds[2]);
}

// A term that calls other functions costs as much as a thousand that do not.
bool RunsLong(int row, const std::u16string& text) {
    if (HoldsSeries(text)) return true;
    if (row != NAMED_FN_SUM && row != NAMED_FN_PRODUCT) return false;
    const bool isNested = text.find(u"fn") != std::u16string::npos;
    return !(TermsOf(text) < (isNested ? 5 : kMostTerms));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const double kList[] = {3, 1, 2, 2, -5.5};
    if (size < 2 || size > kLongestText + 2) return 0;
    const int row = data[0] % NAMED_FUNCTION_COUNT;
    constexpr int kRadices[] = {10, 16, 2, 8};
    const int radix = kRadices[data[1] % 4];
    std::u16string text;
    for (std::size_t i = 2; i < size; ++i)
        text.push_back(static_cast<char16_t>(data[i] < 0x80 ? data[i] : 0x0340 + data[i]));
    ClearCalcError();
    calcContext() = {};
    ClearAllVariables();
    SetVariableMatrix(SLOT_LIST, 5, 1, kList);
    if (RunsLong(row, text)) return 0;
    ClearCalcError();
    CallNamedFunction(row, text, radix);
    ClearCalcError();
    if (row == NAMED_RT) ExpandNamedFunctions(text.insert(0, u"RT(").append(u")"), radix);
    return 0;
}

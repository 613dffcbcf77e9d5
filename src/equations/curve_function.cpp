#include "equations/curve_function.h"

#include <cmath>

#include "engine/calc_context.h"
#include "engine/named_functions.h"

namespace quorix {
namespace {

constexpr double kImaginaryTolerance = 1e-8;

// Empty when a named function fails; the sampler refuses an empty text.
std::u16string Prepared(std::u16string_view text) {
    ClearCalcError();
    std::u16string prepared(text);
    if (!ExpandNamedFunctions(prepared, 10)) prepared.clear();
    ClearCalcError();
    return prepared;
}

}  // namespace

CurveFunction::CurveFunction(std::u16string_view text, std::u16string_view variableName)
    : text_(Prepared(text)), sampler_(text_, variableName, 10) {
    ClearCalcError();
}

std::optional<double> CurveFunction::At(double x) {
    ++evaluations_;
    const std::optional<DComplex> value = sampler_.At(x);
    if (!value) {
        ClearCalcError();
        return std::nullopt;
    }
    if (std::fabs(value->im) > kImaginaryTolerance) return std::nullopt;
    return value->re;
}

}  // namespace quorix

#include "equations/curve_function.h"

#include "engine/calc_context.h"
#include "engine/named_functions.h"

namespace quorix {
namespace {

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

void CurveFunction::ClearError(bool hasValue) {
    if (!hasValue) ClearCalcError();
}

}  // namespace quorix

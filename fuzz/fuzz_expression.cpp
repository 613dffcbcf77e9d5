// Expressions: tokeniser, postfix compiler and both modes of evaluation in every radix.

#include <cstddef>
#include <cstdint>
#include <string>

#include "engine/calc_context.h"
#include "engine/eval_complex.h"
#include "engine/eval_double.h"
#include "engine/evaluate.h"
#include "engine/postfix_compiler.h"
#include "engine/radix_conversion.h"
#include "engine/result_text.h"
#include "engine/rewrite_solve.h"
#include "engine/tokeniser.h"
#include "numerics/constants.h"

namespace {

using namespace quorix;

// A byte from 128 on stands for a letter beyond ASCII, so that 8-bit input reaches every class of character.
std::u16string TextOf(const std::uint8_t* data, std::size_t size) {
    std::u16string text;
    for (std::size_t i = 0; i < size; ++i) {
        text.push_back(static_cast<char16_t>(data[i] < 0x80 ? data[i] : 0x0340 + data[i]));
    }
    return text;
}

// A series of millions of terms is slow by design; series have a target of their own, which bounds them.
bool HoldsSeries(const std::u16string& text) {
    return text.find(u"fnSum") != std::u16string::npos || text.find(u"fnProduct") != std::u16string::npos;
}

void EvaluateIn(int radix, EvaluationMode mode, const std::u16string& text) {
    ClearCalcError();
    const CalcValue value = EvaluateExpression(text, mode, radix);
    for (const std::int32_t radixId : {RADIX_BIN, RADIX_OCT, RADIX_DEC, RADIX_HEX}) {
        for (const std::int32_t formatId : {FORMAT_NORM, FORMAT_FIX, FORMAT_SCI, FORMAT_FRAC}) {
            ComposeResult(value, {.radixId = radixId, .formatId = formatId, .numberLocale = u"European"});
        }
    }
}

void CompileIn(int radix, std::u16string text) {
    ClearCalcError();
    if (TokeniseExpression(text, radix, u"x")) CompileToPostfix(text);
    CompileToPostfix(text);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::u16string text = TextOf(data, size);
    if (HoldsSeries(text)) return 0;
    for (const int radix : {2, 8, 10, 16, 3}) {
        CompileIn(radix, text);
        EvaluateIn(radix, EvaluationMode::number, text);
        ConvertExpressionRadix(text, radix, 16);
    }
    EvaluateIn(10, EvaluationMode::matrix, text);
    ClearCalcError();
    EvalToComplex(text, u"x", &constants::kPi, 10);
    ClearCalcError();
    EvalToDouble(text, u"x", 0.5, 10);
    std::u16string rewritten = text;
    RewriteSolve(rewritten);
    return 0;
}

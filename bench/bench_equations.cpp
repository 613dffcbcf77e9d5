// The solvers beside single evaluations of the texts that they work with.

#include <array>
#include <string>

#include "engine/bound_expression.h"
#include "engine/calc_context.h"
#include "equations/closed_form.h"
#include "equations/closed_form_texts.h"
#include "equations/exact_root.h"
#include "equations/tex_translation.h"
#include "ratio_report.h"

namespace {

using namespace quorix;

/// Runs `body` once per iteration and keeps its result alive.
template <class Body>
bench::Body Loop(Body body) {
    return [body](benchmark::State& state) {
        for (auto _ : state) {
            benchmark::DoNotOptimize(body());
        }
    };
}

/// The longest formula of a quartic filled with the coefficients 1 to 5.
std::u16string LongestFormula() {
    std::u16string text;
    for (const char16_t c : closed_form::kQuarticValues.back()) {
        if (c >= u'a' && c <= u'e') {
            text.append(u"((").append(1, static_cast<char16_t>(u'1' + (c - u'a'))).append(u"))");
        } else {
            text.push_back(c);
        }
    }
    // The letters of the function "sqrt" are none of the coefficients.
    return text;
}

QComplex Evaluated(const std::u16string& text) {
    ClearCalcError();
    const BoundExpressionScope bound({text, {}});
    return EvalBoundComplexClean(QReal{});
}

}  // namespace

int main(int argc, char** argv) {
    bench::RegisterPair("quartic by all its formulas", Loop([] {
                            std::array<std::u16string, 4> texts;
                            return QuarticRoots(u"1 2 3 4 -5", texts);
                        }),
                        Loop([text = LongestFormula()] { return Evaluated(text); }), 60);
    bench::RegisterPair("exact root", Loop([] {
                            int count = 0;
                            return ExactRootText(u"1 -3 1", 0, count)->size();
                        }),
                        Loop([text = std::u16string(u"(3-sqrt(5))/(2)")] { return Evaluated(text); }), 10);
    bench::RegisterPair("expression to TeX",
                        Loop([] { return ExpressionToTeX(u"fnSum(RT(3,k^2+1)/(k+1),k,1,10)+x^2/3").size(); }),
                        Loop([text = std::u16string(u"(3-sqrt(5))/(2)")] { return Evaluated(text); }), 0);
    return bench::RunPairs(argc, argv);
}

#include "equations/closed_form.h"

#include <algorithm>
#include <optional>
#include <vector>

#include "engine/calc_context.h"
#include "engine/format_value.h"
#include "engine/identifiers.h"
#include "equations/coefficient_line.h"
#include "equations/formula_roots.h"
#include "equations/root_groups.h"
#include "numerics/qcore.h"

namespace quorix {
namespace {

using std::u16string;
using std::u16string_view;

u16string ShownText(const QReal& value) {
    constexpr int kDecimals = 10;
    return FormatValuePlain(
        value,
        {.radixId = RADIX_DEC, .formatId = FORMAT_FIX, .digits = kRootDigits, .fixedDecimals = kDecimals});
}

/// The real roots by the formulas as they stand, or, where these lose some of them, group by group.
template <std::size_t Count>
int RootTexts(const std::vector<u16string>& coefficients, std::array<u16string, Count>& texts) {
    const std::optional<ExtendedPolynomial> polynomial = MakePolynomial(coefficients);
    if (!polynomial || CoefficientValue(coefficients[0]) == 0.0) return 0;
    RootSet roots = FormulaRoots(coefficients, *polynomial);
    if (!IsSettled(*polynomial, roots)) roots = GroupedRoots(*polynomial);
    for (std::size_t i = 0; i < roots.values.size() && i < Count; ++i) {
        texts[i] = ShownText(roots.values[i].re);
    }
    return roots.goodMask;
}

}  // namespace

int QuadraticRootsNumeric(u16string_view line, double& root1, double& root2) {
    const std::vector<u16string> coefficients = CoefficientTexts(line);
    if (coefficients.size() != 3) return 0;
    for (const u16string& text : coefficients) {
        CoefficientValue(text);
        if (calcContext().calcError != 0) return 0;
    }
    const std::optional<ExtendedPolynomial> polynomial = MakePolynomial(coefficients);
    if (!polynomial || (*polynomial)[0].IsZero()) return 0;
    const std::array<QComplex, 2> roots = QuadraticRoots(*polynomial);
    if (!roots[0].im.IsZero()) return 0;
    root1 = qtoe(roots[0].re);
    root2 = qtoe(roots[1].re);
    ClearNumericError();
    return 1;
}

int CubicRoots(u16string_view line, std::array<u16string, 3>& texts) {
    constexpr std::size_t kCount = 4;
    const std::vector<u16string> coefficients = CoefficientTexts(line, kCount);
    if (coefficients.size() < kCount) return 0;
    const int mask = RootTexts(coefficients, texts);
    ClearCalcError();
    return mask;
}

int QuarticRoots(u16string_view line, std::array<u16string, 4>& texts) {
    constexpr std::size_t kCount = 5;
    const std::vector<u16string> coefficients = CoefficientTexts(line, kCount);
    if (coefficients.size() < kCount || CoefficientValue(coefficients[0]) == 0.0) return 0;
    int mask = 0;
    if (CoefficientValue(coefficients.back()) == 0.0) {
        texts[0] = ShownText(QReal{});
        std::array<u16string, 3> others;
        mask = 1 | CubicRoots(line, others) << 1;
        std::ranges::move(others, texts.begin() + 1);
    } else {
        mask = RootTexts(coefficients, texts);
    }
    ClearCalcError();
    return mask;
}

}  // namespace quorix

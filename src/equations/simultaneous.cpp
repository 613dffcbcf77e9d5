#include "equations/simultaneous.h"

#include <algorithm>
#include <cmath>

#include "engine/calc_context.h"
#include "engine/text_fold.h"
#include "equations/coefficient_line.h"
#include "equations/equation_display.h"
#include "equations/rational.h"
#include "equations/tex_translation.h"
#include "matrix/inversion.h"
#include "matrix/matrix_algebra.h"

namespace quorix {
namespace {

constexpr int kDecimals = 6;

std::size_t CountBlanks(std::u16string_view equation) {
    const std::u16string collapsed = CollapseBlanks(equation);
    return static_cast<std::size_t>(std::ranges::count(TrimBlanks(collapsed), u' '));
}

std::string SolutionLine(std::size_t index, double value) {
    std::u16string fraction = DoubleToMixedFraction(value, kLargestDenominator);
    WrapQuotients(fraction);
    std::string tex(fraction.begin(), fraction.end());
    TranslateToTeX(tex);
    std::erase(tex, '(');
    std::erase(tex, ')');
    std::string line = VariableTeX(index + 1) + "=" + tex + "=" + FixedDecimal(value, kDecimals);
    TrimDecimalLine(line);
    return line;
}

/// Whether the inverse is one of rounding: a singular matrix whose determinant is not quite 0. The diagonal
/// of |A^-1| |A| tells, whatever the scales of rows and columns are; beyond 1e13 no three digits would be
/// right.
bool IsRounding(const CalcValue& matrix, const CalcValue& inverse, std::size_t size) {
    constexpr double kLargestGrowth = 1e13;
    for (std::size_t i = 0; i < size; ++i) {
        double growth = 0.0;
        for (std::size_t k = 0; k < size; ++k) {
            growth += std::fabs(inverse.data[i * size + k] * matrix.data[k * size + i]);
        }
        if (!(growth <= kLargestGrowth)) return true;
    }
    return false;
}

}  // namespace

std::vector<double> ParseCoefficients(std::u16string_view line) {
    std::vector<double> values;
    for (const std::u16string& text : CoefficientTexts(line)) {
        values.push_back(CoefficientValue(text));
    }
    ClearCalcError();
    return values;
}

SystemSolution SolveSimultaneous(const std::vector<std::u16string>& equations) {
    const std::size_t count = equations.size();
    for (const std::u16string& equation : equations) {
        if (CountBlanks(equation) != CountBlanks(equations[0])) return {kUnequalEquations, {}};
    }
    if (count == 0 || CountBlanks(equations[0]) != count || count > UINT16_MAX) return {kUnequalCounts, {}};
    const auto size = static_cast<int>(count);
    CalcValue matrix = MakeMatrix(size, size);
    CalcValue right = MakeMatrix(size, 1);
    for (std::size_t row = 0; row < count; ++row) {
        const std::vector<double> values = ParseCoefficients(equations[row]);
        std::copy_n(values.begin(), count, matrix.data.begin() + static_cast<std::ptrdiff_t>(row * count));
        right.data[row] = values[count];
    }
    ClearCalcError();
    CalcValue inverse = matrix;
    CalcValue solution;
    if (InvertInPlace(inverse) && !IsRounding(matrix, inverse, count)) {
        MatrixMultiply(inverse, right, solution);
    }
    const bool failed = calcContext().calcError != 0 || solution.data.size() != count ||
                        !std::ranges::all_of(solution.data, [](double x) { return std::isfinite(x); });
    ClearCalcError();
    if (failed) return {{}, {std::string(kNotSolved)}};
    SystemSolution result;
    for (std::size_t i = 0; i < count; ++i) result.lines.push_back(SolutionLine(i, solution.data[i]));
    return result;
}

}  // namespace quorix

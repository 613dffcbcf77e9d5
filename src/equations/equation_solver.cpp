#include "equations/equation_solver.h"

#include <array>
#include <optional>

#include "engine/calc_context.h"
#include "equations/closed_form.h"
#include "equations/coefficient_line.h"
#include "equations/equation_display.h"
#include "equations/exact_root.h"

namespace quorix {
namespace {

constexpr int kDecimals = 12;

using Lines = std::vector<std::string>;

std::string ExactLine(std::string_view name, std::u16string_view exactText) {
    std::string line(name);
    line += "=" + ExactTextToTeX(exactText) + "=" + FixedDecimal(CoefficientValue(exactText), kDecimals);
    TrimDecimalLine(line);
    return line;
}

std::string RootName(int number) {
    return "X_" + std::to_string(number);
}

Lines SolveLinear(std::u16string_view line) {
    int count = 0;
    const std::optional<std::u16string> text = ExactRootText(line, 0, count);
    if (!text) return {std::string(kNoQuadraticRoot)};
    return {ExactLine("X", *text)};
}

/// The exact and the decimal way number the roots in opposite order; this is intended. So both roots go the
/// same way.
Lines SolveQuadratic(std::u16string_view line) {
    int count = 0;
    const std::array<std::optional<std::u16string>, 2> exact = {ExactRootText(line, 0, count),
                                                                ExactRootText(line, 1, count)};
    if (exact[0] && exact[1]) return {ExactLine(RootName(1), *exact[0]), ExactLine(RootName(2), *exact[1])};
    std::array<double, 2> roots{};
    if (QuadraticRootsNumeric(line, roots[0], roots[1]) == 0) return {std::string(kNoQuadraticRoot)};
    Lines lines;
    for (int i = 0; i < 2; ++i) {
        lines.push_back(RootName(i + 1) + "=" + FixedDecimal(roots[static_cast<std::size_t>(i)], kDecimals));
        TrimDecimalLine(lines.back());
    }
    return lines;
}

/// Roots are numbered as they are shown.
template <std::size_t Count>
Lines RootLines(int mask, const std::array<std::u16string, Count>& texts) {
    Lines lines;
    for (std::size_t i = 0; i < Count; ++i) {
        if ((mask >> i & 1) == 0) continue;
        std::string text(texts[i].begin(), texts[i].end());
        if (text.find('.') != text.npos) TrimDecimalLine(text);
        lines.push_back(RootName(static_cast<int>(lines.size()) + 1) + "=" + text);
    }
    if (lines.empty()) lines.emplace_back(kNoRoot);
    return lines;
}

Lines SolveCubic(std::u16string_view line) {
    std::array<std::u16string, 3> texts;
    const int mask = CubicRoots(line, texts);
    return RootLines(mask, texts);
}

Lines SolveQuartic(std::u16string_view line) {
    std::array<std::u16string, 4> texts;
    const int mask = QuarticRoots(line, texts);
    return RootLines(mask, texts);
}

Lines Solve(std::u16string_view line) {
    std::u16string normalised;
    switch (PolynomialDegree(line, normalised)) {
        case 1: return SolveLinear(normalised);
        case 2: return SolveQuadratic(normalised);
        case 3: return SolveCubic(normalised);
        case 4: return SolveQuartic(normalised);
        default: return {std::string(kInvalidDegree)};
    }
}

}  // namespace

std::vector<std::string> SolveEquationCommand(std::u16string_view line) {
    if (line.find_first_not_of(u' ') == line.npos) return {std::string(kInvalidDegree)};
    const std::optional<std::u16string> checked = CheckedLine(line);
    if (!checked) return {std::string(kInvalidLine)};
    Lines lines = Solve(*checked);
    ClearCalcError();
    return lines;
}

}  // namespace quorix

#include "equations/coefficient_line.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "engine/bound_expression.h"
#include "engine/calc_context.h"
#include "engine/named_functions.h"

namespace quorix {
namespace {

void CollapsePair(std::u16string& text, char16_t sign) {
    const char16_t pair[] = {sign, sign, 0};
    for (std::size_t at = 0; (at = text.find(pair, at)) != text.npos;) text.erase(at, 1);
}

bool IsSound(std::u16string_view token) {
    constexpr std::size_t kParentheses = 2;
    if (token.size() + kParentheses > kLongestCoefficient) return false;
    const double value = CoefficientValue(CoefficientTexts(token)[0]);
    const bool sound = calcContext().calcError == 0 && std::isfinite(value);
    ClearCalcError();
    return sound;
}

}  // namespace

std::u16string WithEngineSigns(std::u16string_view line) {
    constexpr std::array<std::array<char16_t, 2>, 3> kSigns = {
        {{0x00D7, u'*'}, {0x00F7, u'/'}, {0x2212, u'-'}}};
    std::u16string text(line);
    for (const auto& [shown, plain] : kSigns) std::ranges::replace(text, shown, plain);
    return text;
}

std::u16string CollapseBlanks(std::u16string_view line) {
    std::u16string text(line);
    CollapsePair(text, u' ');
    return text;
}

std::vector<std::u16string_view> SplitTokens(std::u16string_view line) {
    std::vector<std::u16string_view> tokens;
    for (std::size_t at = 0; (at = line.find_first_not_of(u' ', at)) != line.npos;) {
        const std::size_t end = std::min(line.find(u' ', at), line.size());
        tokens.push_back(line.substr(at, end - at));
        at = end;
    }
    return tokens;
}

std::vector<std::u16string> CoefficientTexts(std::u16string_view line, std::size_t limit) {
    std::vector<std::u16string> texts;
    for (const std::u16string_view token : SplitTokens(line)) {
        if (texts.size() == limit) break;
        std::u16string text(token);
        ClearCalcError();
        if (!ExpandNamedFunctions(text, 10)) text = token;
        texts.push_back(u"(" + text + u")");
    }
    ClearCalcError();
    return texts;
}

std::optional<std::u16string> CheckedLine(std::u16string_view line) {
    constexpr std::u16string_view kTrimmed = u" ./";
    std::u16string text = WithEngineSigns(line);
    for (const char16_t sign : {u' ', u'-', u'/', u'.'}) CollapsePair(text, sign);
    text.erase(0, text.find_first_not_of(kTrimmed));
    text.erase(text.find_last_not_of(kTrimmed) + 1);
    if (text.find_first_of(u"0123456789") == text.npos) return std::nullopt;
    for (const std::u16string_view token : SplitTokens(text)) {
        if (!IsSound(token)) return std::nullopt;
    }
    return text;
}

int PolynomialDegree(std::u16string_view line, std::u16string& normalisedLine) {
    const std::vector<std::u16string_view> tokens = SplitTokens(line);
    std::size_t dropped = 0;
    while (dropped < tokens.size() && CoefficientValue(CoefficientTexts(tokens[dropped])[0]) == 0.0)
        ++dropped;
    normalisedLine.clear();
    for (std::size_t i = dropped; i < tokens.size(); ++i) {
        if (i > dropped) normalisedLine.push_back(u' ');
        normalisedLine.append(tokens[i]);
    }
    return static_cast<int>(tokens.size()) - static_cast<int>(dropped) - 1;
}

double CoefficientValue(std::u16string_view text) {
    const BoundExpressionScope unbound({});
    ClearCalcError();
    return EvalBoundDouble(0.0, text);
}

}  // namespace quorix

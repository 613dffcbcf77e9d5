#include "frontends/token_colors.h"

#include <algorithm>

#include "frontends/display_symbols.h"

namespace quorix {

namespace {

constexpr char16_t kEuropeanPoint = 0x00B8;

constexpr bool IsDigit(char16_t c) {
    return c >= u'0' && c <= u'9';
}

struct SignColor {
    char16_t sign;
    Rgb color;
};

/// Tokens of one character that have a class of their own.
constexpr SignColor kSigns[] = {
    {u'+', display_colors::kOperatorToken},
    {symbols::kMultiply, display_colors::kOperatorToken},
    {symbols::kMinus, display_colors::kOperatorToken},
    {symbols::kDivide, display_colors::kOperatorToken},
    {u'(', display_colors::kParenthesisToken},
    {u')', display_colors::kParenthesisToken},
    {u',', display_colors::kParenthesisToken},
    {u'-', display_colors::kSignToken},
};

Rgb ColorOfToken(std::u16string_view token) {
    if (std::all_of(token.begin(), token.end(), IsDigit)) {
        return display_colors::kDigitToken;
    }
    if (token.size() == 1) {
        for (const SignColor& entry : kSigns) {
            if (entry.sign == token.front()) {
                return entry.color;
            }
        }
    }
    return display_colors::kNameToken;
}

void ColorDegrees(std::u16string_view text, std::vector<Rgb>& colors) {
    for (std::size_t root = 0; root < text.size(); ++root) {
        if (text[root] != symbols::kRoot) {
            continue;
        }
        for (std::size_t i = root; i > 0; --i) {
            const char16_t c = text[i - 1];
            if (!IsDigit(c) && c != u'.' && c != kEuropeanPoint) {
                break;
            }
            colors[i - 1] = display_colors::kDegreeToken;
        }
    }
}

}  // namespace

std::vector<Rgb> ColorsOfLine(std::u16string_view text, std::u16string_view tokenLengths) {
    std::vector<Rgb> colors;
    colors.reserve(text.size());
    for (std::size_t token = 0; colors.size() < text.size(); ++token) {
        const bool known = token < tokenLengths.size() && IsDigit(tokenLengths[token]);
        const std::size_t length = known ? static_cast<std::size_t>(tokenLengths[token] - u'0') : 1;
        const std::u16string_view word = text.substr(colors.size(), length);
        colors.insert(colors.end(), word.size(), ColorOfToken(word));
    }
    ColorDegrees(text, colors);
    return colors;
}

}  // namespace quorix

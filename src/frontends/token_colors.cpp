#include "frontends/token_colors.h"

#include <algorithm>

#include "engine/text_fold.h"
#include "frontends/display_symbols.h"

namespace quorix {

namespace {

constexpr char16_t kEuropeanPoint = 0x00B8;

struct SignColor {
    char16_t sign;
    DisplayColour colour;
};

/// Tokens of one character that have a class of their own.
constexpr SignColor kSigns[] = {
    {u'+', DisplayColour::operatorToken},
    {symbols::kMultiply, DisplayColour::operatorToken},
    {symbols::kMinus, DisplayColour::operatorToken},
    {symbols::kDivide, DisplayColour::operatorToken},
    {u'(', DisplayColour::parenthesisToken},
    {u')', DisplayColour::parenthesisToken},
    {u',', DisplayColour::parenthesisToken},
    {u'-', DisplayColour::signToken},
};

DisplayColour ColourOfToken(std::u16string_view token) {
    if (std::all_of(token.begin(), token.end(), IsDigit)) {
        return DisplayColour::digitToken;
    }
    if (token.size() == 1) {
        for (const SignColor& entry : kSigns) {
            if (entry.sign == token.front()) {
                return entry.colour;
            }
        }
    }
    return DisplayColour::nameToken;
}

void ColorDegrees(std::u16string_view text, Rgb degree, std::vector<Rgb>& colors) {
    for (std::size_t root = 0; root < text.size(); ++root) {
        if (text[root] != symbols::kRoot) {
            continue;
        }
        for (std::size_t i = root; i > 0; --i) {
            const char16_t c = text[i - 1];
            if (!IsDigit(c) && c != u'.' && c != kEuropeanPoint) {
                break;
            }
            colors[i - 1] = degree;
        }
    }
}

}  // namespace

std::vector<Rgb> ColorsOfLine(std::u16string_view text, std::u16string_view tokenLengths,
                              const DisplayColours& colours) {
    std::vector<Rgb> colors;
    colors.reserve(text.size());
    for (std::size_t token = 0; colors.size() < text.size(); ++token) {
        const bool known = token < tokenLengths.size() && IsDigit(tokenLengths[token]);
        const std::size_t length = known ? static_cast<std::size_t>(tokenLengths[token] - u'0') : 1;
        const std::u16string_view word = text.substr(colors.size(), length);
        colors.insert(colors.end(), word.size(), colours[ColourOfToken(word)]);
    }
    ColorDegrees(text, colours[DisplayColour::degreeToken], colors);
    return colors;
}

}  // namespace quorix

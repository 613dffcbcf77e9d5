#include "equations/equation_display.h"

#include <algorithm>
#include <cstdio>

#include "equations/tex_translation.h"

namespace quorix {

void WrapQuotients(std::u16string& text) {
    for (std::size_t slash = 0; (slash = text.find(u'/', slash)) != text.npos;) {
        const std::size_t blank = text.rfind(u' ', slash);
        text.insert(blank == text.npos ? 0 : blank + 1, 1, u'(');
        slash += 2;  // Behind the "/", which has moved by one.
        text.insert(std::min(text.find(u' ', slash), text.size()), 1, u')');
    }
}

std::string ExactTextToTeX(std::u16string_view exactText) {
    std::u16string text(exactText);
    WrapQuotients(text);
    std::string tex(text.begin(), text.end());
    constexpr std::string_view kRoot = "sqrt";
    for (std::size_t at = 0; (at = tex.find(kRoot, at)) != tex.npos; at += kRoot.size() + 1)
        tex.insert(at, 1, '\\');
    TranslateToTeX(tex);
    std::ranges::replace(tex, '(', '{');
    std::ranges::replace(tex, ')', '}');
    return tex;
}

void TrimDecimalLine(std::string& line) {
    line.erase(line.find_last_not_of('0') + 1);
    line.erase(line.find_last_not_of('.') + 1);
    if (line == "-0") line = "0";
}

std::string FixedDecimal(double value, int decimals) {
    char buffer[400];
    std::snprintf(buffer, sizeof buffer, "%.*f", decimals, value);
    std::string text(buffer);
    if (text.starts_with('-') && text.find_first_of("123456789") == text.npos) text.erase(0, 1);
    return text;
}

std::string VariableTeX(std::size_t index) {
    const std::string digits = std::to_string(index);
    return digits.size() == 1 ? "X_" + digits : "X_{" + digits + "}";
}

}  // namespace quorix

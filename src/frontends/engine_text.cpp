#include "frontends/engine_text.h"

#include <algorithm>

#include "engine/number_locale.h"
#include "engine/text_fold.h"
#include "frontends/display_symbols.h"

namespace quorix {

namespace {

using std::u16string;
using std::u16string_view;

struct Replacement {
    u16string_view display;
    u16string_view engine;
};

/// Names that stand for one sign on the display, and the answer.
constexpr Replacement kNames[] = {
    {u"\u222B", u"fnInt"}, {u"\u03B4", u"fnDeriv"}, {u"\u220F", u"fnProduct"},
    {u"\u2211", u"fnSum"}, {u"\u0192", u"fnEval"},  {u"[ans]", u"[VRE]"},
};

constexpr bool IsHexLetter(char16_t c) {
    return c >= u'A' && c <= u'F';
}
constexpr bool IsPoint(char16_t c) {
    return c == u'.' || c == kDisplayComma;
}

/// A point that no digit precedes gets a "0" before it: the engine would drop it.
u16string WithLeadingZeros(u16string_view text) {
    u16string out;
    out.reserve(text.size() + 8);
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (IsPoint(text[i]) && (i == 0 || !IsDigit(text[i - 1]))) {
            out += u'0';
        }
        out += text[i];
    }
    return out;
}

/// Start of the degree that stands directly before the root sign at the end of `out`.
std::size_t DegreeStart(u16string_view out) {
    if (out.empty()) {
        return 0;
    }
    std::size_t start = out.size();
    if (out.back() == u')') {
        int depth = 0;
        while (start > 0) {
            --start;
            if (out[start] == u')') {
                ++depth;
            } else if (out[start] == u'(' && --depth == 0) {
                return start;
            }
        }
        return out.size();  // unbalanced: no degree
    }
    while (start > 0 && (IsDigit(out[start - 1]) || IsPoint(out[start - 1]))) {
        --start;
    }
    return start;
}

/// "2√(9" becomes "RT(2,9".
u16string WithRootCalls(u16string_view text) {
    u16string out;
    out.reserve(text.size() + 8);
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != symbols::kRoot || i + 1 == text.size() || text[i + 1] != u'(') {
            out += text[i];
            continue;
        }
        const std::size_t start = DegreeStart(out);
        const u16string degree = out.substr(start);
        out.resize(start);
        out += u"RT(";
        out += degree;
        out += u',';
        ++i;  // the "(" behind the sign
    }
    return out;
}

constexpr u16string_view kNoProductBefore = u"^\u221A +-*/,.)!%\u00B8";

bool StartsFactorAfterDigit(char16_t next) {
    return kNoProductBefore.find(next) == u16string_view::npos && next != u']' && next != u'e' &&
           !IsDigit(next) && !IsHexLetter(next);
}

bool StartsFactorAfterParenthesis(char16_t next) {
    return kNoProductBefore.find(next) == u16string_view::npos;
}

/// Whether the i at `at` is the imaginary unit or the end of pi, and not a letter of another word.
bool IsConstantI(u16string_view text, std::size_t at) {
    std::size_t begin = at;
    while (begin > 0 && IsAsciiLetter(text[begin - 1])) {
        --begin;
    }
    std::size_t end = at + 1;
    while (end < text.size() && IsAsciiLetter(text[end])) {
        ++end;
    }
    u16string_view word = text.substr(begin, end - begin);
    if (word.starts_with(u"pi")) {
        word.remove_prefix(1);
    }
    return word.find_first_not_of(u'i') == u16string_view::npos;
}

bool EndsFactorBeforeI(char16_t previous) {
    return IsDigit(previous) || previous == u')' || previous == u'!' || previous == u'%';
}

/// Writes the products that a reader sees and the engine does not: "2i", "(1)(2)", "3pi".
u16string WithProducts(u16string_view text, int radix) {
    u16string out;
    out.reserve(text.size() + text.size() / 4 + 8);
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char16_t c = text[i];
        const bool constantI = c == u'i' && IsConstantI(text, i);
        if (constantI && !out.empty() && EndsFactorBeforeI(out.back())) {
            out += u'*';
        }
        out += c;
        if (i + 1 == text.size()) {
            break;
        }
        const char16_t next = text[i + 1];
        const bool digit = IsDigit(c) || (radix == 16 && IsHexLetter(c));
        if ((digit && StartsFactorAfterDigit(next)) || (c == u')' && StartsFactorAfterParenthesis(next)) ||
            (c == u']' && (next == u'[' || next == u'(')) ||
            (constantI && (IsDigit(next) || next == u'(' || next == u'i'))) {
            out += u'*';
        }
    }
    return out;
}

void ToEngineDecimalSigns(u16string& text, u16string_view numberLocale) {
    const NumberSigns signs = SignsOf(numberLocale);
    std::erase(text, signs.thousands);
    std::replace(text.begin(), text.end(), signs.decimal, u'.');
}

}  // namespace

void ReplaceAll(u16string& text, u16string_view from, u16string_view to) {
    for (std::size_t at = text.find(from); at != u16string::npos; at = text.find(from, at + to.size())) {
        text.replace(at, from.size(), to);
    }
}

u16string ToDisplaySigns(u16string_view engineText) {
    u16string text(engineText);
    std::replace(text.begin(), text.end(), u'*', symbols::kMultiply);
    std::replace(text.begin(), text.end(), u'/', symbols::kDivide);
    std::replace(text.begin(), text.end(), u'-', symbols::kMinus);
    ReplaceAll(text, u"[VRE]", u"[ans]");
    return text;
}

std::optional<u16string> ToEngineText(u16string_view displayText, u16string_view numberLocale, int radix) {
    u16string text(displayText);
    std::replace(text.begin(), text.end(), symbols::kMultiply, u'*');
    std::replace(text.begin(), text.end(), symbols::kDivide, u'/');
    std::replace(text.begin(), text.end(), symbols::kMinus, u'-');
    ReplaceAll(text, u"exp", u" exp ");
    text = WithLeadingZeros(text);
    text = WithRootCalls(text);
    text = WithProducts(text, radix);
    for (const auto& [display, engine] : kNames) {
        ReplaceAll(text, display, engine);
    }
    ToEngineDecimalSigns(text, numberLocale);
    if (text.size() > kLongestExpression) {
        return std::nullopt;
    }
    return text;
}

}  // namespace quorix

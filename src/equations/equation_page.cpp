#include "equations/equation_page.h"

#include <algorithm>
#include <optional>

#include "engine/calc_context.h"
#include "equations/coefficient_line.h"
#include "equations/equation_display.h"
#include "equations/tex_translation.h"

namespace quorix {
namespace {

std::u16string Widen(std::string_view text) {
    return {text.begin(), text.end()};
}

/// Value of a token; nothing when it is no expression.
std::optional<double> TokenValue(std::u16string_view token) {
    const double value = CoefficientValue(CoefficientTexts(token)[0]);
    const bool failed = calcContext().calcError != 0;
    ClearCalcError();
    if (failed) return std::nullopt;
    return value;
}

/// Whether a token has a sum or difference outside of its parentheses.
bool IsSum(std::string_view token) {
    int depth = 0;
    for (std::size_t at = 0; at < token.size(); ++at) {
        const char c = token[at];
        if (c == '(' || c == '{') ++depth;
        if (c == ')' || c == '}') --depth;
        if (depth == 0 && at > 0 && (c == '+' || c == '-')) return true;
    }
    return false;
}

/// Appends coefficient times unknown. A sum keeps its parentheses and its sign.
void AppendTerm(std::u16string& text, std::u16string_view token, std::u16string_view unknown) {
    const std::optional<double> value = TokenValue(token);
    const std::u16string_view plus = text.empty() ? u"" : u"+";
    if (value == 0.0) return;
    if (value == 1.0) {
        text.append(plus).append(unknown);
    } else if (value == -1.0) {
        text.append(u"-").append(unknown);
    } else {
        const bool takesSign =
            !text.empty() && token.starts_with(u'-') && !IsSum(std::string(token.begin(), token.end()));
        text.append(takesSign ? u"-(" : plus.empty() ? u"(" : u"+(");
        text.append(token.substr(takesSign ? 1 : 0)).append(u")").append(unknown);
    }
}

void AppendConstant(std::u16string& text, std::u16string_view token) {
    const bool takesSign = token.starts_with(u'-') && !IsSum(std::string(token.begin(), token.end()));
    text.append(takesSign ? u"-(" : u"+(").append(token.substr(takesSign ? 1 : 0)).append(u")");
}

/// "sqrt(x)" to "\sqrt{x}".
void TranslateRoots(std::string& text) {
    constexpr std::string_view kRoot = "sqrt(";
    for (std::size_t at = 0; (at = text.find(kRoot, at)) != text.npos; at += kRoot.size()) {
        const std::size_t open = at + kRoot.size() - 1;
        std::size_t close = open;
        int depth = 0;
        for (; close < text.size(); ++close) {
            if (text[close] == '(') ++depth;
            if (text[close] == ')' && --depth == 0) break;
        }
        if (close == text.size() || (at > 0 && text[at - 1] == '\\')) continue;
        text[open] = '{';
        text[close] = '}';
        text.insert(at, 1, '\\');
    }
}

bool IsWord(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '.';
}

/// Whether the parentheses at `open` and `close` change how the text is read: those of a call, round a sum,
/// round a sign behind an operator, and round more than one number or name before what applies to it alone.
bool AreNeeded(std::string_view text, std::size_t open, std::size_t close) {
    const std::string_view before = text.substr(0, open);
    const std::string_view inside = text.substr(open + 1, close - open - 1);
    const std::string_view behind = text.substr(close + 1);
    if (before.ends_with("\\left") || IsSum(inside)) return true;
    if (!before.empty() && IsWord(before.back())) return true;
    const bool startsGroup =
        before.empty() || before.ends_with('{') || before.ends_with('(') || before.ends_with("*=*");
    if (inside.starts_with('-') && !startsGroup) return true;
    const bool isApplied = behind.starts_with('^') || behind.starts_with("}^") || behind.starts_with('!') ||
                           behind.starts_with("\\%");
    return isApplied && !std::ranges::all_of(inside, IsWord);
}

/// Takes out the parentheses that a reader does not need.
void DropParentheses(std::string& text) {
    std::vector<std::size_t> open;
    std::vector<std::size_t> dropped;
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text[at] == '(') open.push_back(at);
        if (text[at] != ')' || open.empty()) continue;
        const std::size_t start = open.back();
        open.pop_back();
        if (AreNeeded(text, start, at)) continue;
        dropped.push_back(start);
        dropped.push_back(at);
    }
    for (const std::size_t at : dropped) text[at] = '\0';
    std::erase(text, '\0');
}

/// The passes over an equation's text; nothing when it is too long for them.
std::optional<std::string> EquationToTeX(std::u16string_view text) {
    std::string tex = NarrowToTeX(text);
    EncloseRadicands(tex);
    TranslatePowers(tex);
    TranslateToTeX(tex);
    if (tex.size() >= kTexBufferSize) return std::nullopt;
    TranslateRoots(tex);
    DropParentheses(tex);
    constexpr std::string_view kMarkedEquals = "*=*";
    for (std::size_t at = 0; (at = tex.find(kMarkedEquals, at)) != tex.npos; ++at) {
        tex.replace(at, kMarkedEquals.size(), "=");
    }
    return tex;
}

}  // namespace

std::u16string PolynomialDisplay(std::u16string_view line) {
    const std::vector<std::u16string_view> tokens = SplitTokens(line);
    if (tokens.empty()) return {};
    const bool isSingle = tokens.size() == 1;
    std::u16string text;
    for (std::size_t i = 0; i < (isSingle ? 1 : tokens.size() - 1); ++i) {
        const std::size_t power = isSingle ? 1 : tokens.size() - 1 - i;
        AppendTerm(text, tokens[i], power == 1 ? u"X" : u"X^" + Widen(std::to_string(power)));
    }
    if (!isSingle && TokenValue(tokens.back()) != 0.0) AppendConstant(text, tokens.back());
    if (!text.empty()) text.append(isSingle ? u"*=*?" : u"*=*0");
    return text;
}

std::u16string SimultaneousDisplay(std::u16string_view line) {
    const std::vector<std::u16string_view> tokens = SplitTokens(line);
    if (tokens.empty()) return {};
    std::u16string text;
    for (std::size_t i = 0; i + 1 < tokens.size(); ++i)
        AppendTerm(text, tokens[i], Widen(VariableTeX(i + 1)));
    if (text.empty()) text = u"0";
    return text.append(u"*=*(").append(tokens.back()).append(u")");
}

std::string ComposeEquationPage(std::u16string_view equationText, const std::vector<std::string>& lines) {
    std::u16string text(equationText);
    if (text.find_first_not_of(u' ') == text.npos) {
        text = Widen(kEmptyEquation);
    } else if (text.size() >= kTexSourceLimit) {
        text = Widen(kTexSourceOverlength);
    } else if (text.find(u"\\text{") == text.npos) {
        text = PolynomialDisplay(text);
    }
    std::string page = EquationToTeX(text).value_or(std::string(kTexOverlength));
    for (const std::string& line : lines) {
        page += line.find("cannot") != line.npos ? "\\\\\\rightarrow" : "\\\\";
        page += line;
    }
    return page;
}

std::string ComposeSimultaneousRow(std::u16string_view line) {
    const std::u16string text = SimultaneousDisplay(line);
    if (text.empty() || text.size() >= kTexSourceLimit) return {};
    return EquationToTeX(text).value_or(std::string(kTexOverlength));
}

}  // namespace quorix

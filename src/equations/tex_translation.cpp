#include "equations/tex_translation.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <functional>
#include <optional>
#include <vector>

#include "engine/format_value.h"
#include "engine/keyword_table.h"
#include "engine/named_functions.h"
#include "engine/text_fold.h"
#include "engine/variable_store.h"
#include "equations/tex_forms.h"
#include "numerics/qcore.h"

namespace quorix {
namespace {

constexpr int kValueDecimals = 4;

// Functions of lists and signs that are written as they are typed; "N", "min" and the others stand in so many
// words and labels that they are not looked for at all.
constexpr bool IsLookedFor(int row) {
    return row != NAMED_N && row != NAMED_MIN && row != NAMED_MAX && row != NAMED_MEDIAN && row != NAMED_MD;
}

/// Names of functions in 8 bits.
const std::array<std::string, NAMED_FUNCTION_COUNT>& NarrowNames() {
    static const auto names = [] {
        std::array<std::string, NAMED_FUNCTION_COUNT> narrow;
        std::ranges::transform(NamedFunctionTable(), narrow.begin(), [](std::u16string_view name) {
            return std::string(name.begin(), name.end());
        });
        return narrow;
    }();
    return names;
}

struct Call {
    NamedFunction row;
    std::size_t start;
    std::size_t open;
};

/// The named function whose name stands before the "(" at `open`, blanks between them allowed. No name ends
/// in another one, so at most one fits.
std::optional<Call> CallAt(std::string_view text, std::size_t open) {
    std::size_t end = open;
    while (end > 0 && text[end - 1] == ' ') --end;
    const std::string_view before = text.substr(0, end);
    for (int row = 0; row < NAMED_FUNCTION_COUNT; ++row) {
        const std::string& name = NarrowNames()[static_cast<std::size_t>(row)];
        if (!IsLookedFor(row) || !before.ends_with(name)) continue;
        const std::size_t start = end - name.size();
        if (start > 0 && text[start - 1] == '\\') continue;
        return Call{static_cast<NamedFunction>(row), start, open};
    }
    return std::nullopt;
}

std::size_t ClosingParenthesis(std::string_view text, std::size_t open) {
    int depth = 0;
    for (std::size_t at = open; at < text.size(); ++at) {
        if (text[at] == '(') ++depth;
        if (text[at] == ')' && --depth == 0) return at;
    }
    return std::string_view::npos;
}

/// Groups that are open at the end of a text: a cut must close them.
std::size_t OpenBraces(std::string_view text) {
    std::size_t depth = 0;
    for (const char c : text) {
        if (c == '{') ++depth;
        if (c == '}' && depth > 0) --depth;
    }
    return depth;
}

bool IsWord(char c) {
    return static_cast<unsigned char>(c) < 0x80 && IsWordCharacter(static_cast<char16_t>(c));
}

// Levels of binding of what stands behind a form or a value.
constexpr int kSumLevel = 2;
constexpr int kProductLevel = 4;
constexpr int kPowerLevel = 9;  // Raised signs belong to what stands right before them.

/// How tightly the operator at the start of `rest` binds; 0 where none stands.
int LevelBehind(std::string_view rest) {
    rest.remove_prefix(std::min(rest.find_first_not_of(' '), rest.size()));
    if (rest.starts_with("^") || rest.starts_with("}^{")) return kPowerLevel;
    if (rest.starts_with("\\%")) rest.remove_prefix(1);
    const auto* const end = std::ranges::find_if_not(rest, IsWord);
    const std::string_view token =
        end != rest.begin() ? std::string_view(rest.begin(), end) : rest.substr(0, 1);
    std::u16string lower(token.begin(), token.end());
    std::ranges::transform(lower, lower.begin(), FoldLower);
    const TokenSyntax syntax = SyntaxOf(lower);
    const bool isOperator = syntax.role == TokenRole::binary || syntax.role == TokenRole::postfix;
    return isOperator ? syntax.level : 0;
}

bool NeedsParentheses(FormHold hold, int levelBehind) {
    switch (hold) {
        case FormHold::whole: return false;
        case FormHold::script: return levelBehind == kPowerLevel;
        case FormHold::sum: return levelBehind > kSumLevel && levelBehind != kProductLevel;
        default: return levelBehind > kSumLevel;
    }
}

/// Where a text stands: within how many calls, and the name that is bound there.
struct Scope {
    int depth = 0;
    std::string_view boundName;
    const Scope* outer = nullptr;
};

/// A bound name may be written with brackets, as names of variables are.
bool IsBound(std::string_view name, const Scope& scope) {
    const auto equals = [](char a, char b) {
        return FoldLower(static_cast<char16_t>(a)) == FoldLower(static_cast<char16_t>(b));
    };
    for (const Scope* at = &scope; at != nullptr; at = at->outer) {
        std::string_view bound = at->boundName;
        if (bound.starts_with('[') && bound.ends_with(']')) bound = bound.substr(1, bound.size() - 2);
        if (std::ranges::equal(bound, name, equals)) return true;
    }
    return false;
}

/// A part of a text that is translated already.
struct Span {
    std::size_t start;
    std::size_t end;
};

void Translate(std::string& text, const Scope& scope);

/// Goes over the calls from the outside inward. What is put in is translated already and is passed over; the
/// arguments of a call that stays are looked at in their turn. Result: what was put in, in order.
std::vector<Span> TranslateCalls(std::string& text, const Scope& scope) {
    const auto translateArgument = [&scope](std::string_view argument, std::string_view boundName) {
        std::string translated(argument);
        Translate(translated, {scope.depth + 1, boundName, &scope});
        return translated;
    };
    std::vector<Span> forms;
    for (std::size_t at = 0; (at = text.find('(', at)) != text.npos && text.size() < kTexBufferSize;) {
        const std::optional<Call> call = CallAt(text, at);
        ++at;
        if (!call) continue;
        const std::size_t close = ClosingParenthesis(text, call->open);
        if (close == text.npos) {
            text.resize(call->start);
            text.append(OpenCallToTeX(call->row))
                .append(OpenBraces(std::string_view(text).substr(0, call->start)), '}');
            return forms;
        }
        const std::string_view arguments =
            std::string_view(text).substr(call->open + 1, close - call->open - 1);
        if (const auto form = CallToTeX(call->row, arguments, translateArgument)) {
            const bool encloses =
                NeedsParentheses(HoldOf(call->row), LevelBehind(std::string_view(text).substr(close + 1)));
            const std::string put = encloses ? "\\left(" + *form + "\\right)" : *form;
            text.replace(call->start, close + 1 - call->start, put);
            at = call->start + put.size();
            forms.push_back({call->start, at});
        }
    }
    return forms;
}

std::string RealText(const QReal& value) {
    ClearNumericError();
    const double narrow = qtoe(value);
    const bool overflows = NumericErrorFlag() != NUMERIC_OK;
    ClearNumericError();
    if (!overflows) return TrimmedDecimal(narrow, kValueDecimals);
    const FormattedValue text = FormatValue(value, {.digits = kValueDecimals});
    std::string result(text.mantissa.begin(), text.mantissa.end());
    return result.append(text.exponent.begin(), text.exponent.end());
}

std::string MatrixText(const CalcValue& matrix) {
    std::string text = "\\left[\\begin{matrix} ";
    for (std::size_t i = 0; i < matrix.data.size() && text.size() < kTexBufferSize; ++i) {
        text += TrimmedDecimal(matrix.data[i], kValueDecimals);
        text += (i + 1) % matrix.cols == 0 ? " \\\\ " : " & ";
    }
    return text + "\\end{matrix}\\right]";
}

/// Whether a value with a sign in it needs parentheses: everywhere but at the start of the text or of a
/// group, and there too before an operator that would apply to its last part alone.
bool NeedsParentheses(std::string_view before, std::string_view behind, bool isSum) {
    const std::size_t last = before.find_last_not_of(' ');
    const bool startsGroup =
        last == before.npos || std::string_view("({=,").find(before[last]) != before.npos;
    const int level = LevelBehind(behind);
    return !startsGroup || (level > kSumLevel && (isSum || level != kProductLevel));
}

std::string ValueText(const CalcValue& value, std::string_view before, std::string_view behind) {
    if (value.kind == KIND_MATRIX) return MatrixText(value);
    std::string number = RealText(value.number.re);
    const bool isComplex = value.kind == KIND_COMPLEX;
    if (isComplex) {
        const std::string imaginary = RealText(value.number.im);
        number += (imaginary.starts_with('-') ? "" : "+") + imaginary + "i";
    } else if (!number.starts_with('-')) {
        return number;
    }
    return NeedsParentheses(before, behind, isComplex) ? "(" + number + ")" : number;
}

/// Slot of a variable's name, in capitals, or in any case between brackets; -1 for another word.
int SlotOf(std::string_view word, bool bracketed) {
    constexpr std::size_t kLongestName = 4;
    if (word.size() > kLongestName) return -1;
    if (!bracketed && std::ranges::any_of(word, [](char c) { return c >= 'a' && c <= 'z'; })) return -1;
    const std::u16string wide(word.begin(), word.end());
    return FindVariable(wide);
}

/// Values for the names of variables outside of `forms`.
void SubstituteValues(std::string& text, const std::vector<Span>& forms, const Scope& scope) {
    const std::string_view source = text;
    std::string result;
    auto form = forms.begin();
    for (std::size_t at = 0; at < source.size() && result.size() < kTexBufferSize;) {
        if (form != forms.end() && at == form->start) {
            result.append(source, at, form->end - at);
            at = form++->end;
            continue;
        }
        const std::size_t start = at;
        const std::size_t limit = form != forms.end() ? form->start : source.size();
        while (at < limit && IsWord(source[at])) ++at;
        if (at == start) {
            result.push_back(source[at++]);
            continue;
        }
        const std::string_view word = source.substr(start, at - start);
        const bool bracketed = result.ends_with('[') && source.substr(at).starts_with(']');
        const bool isCommand = result.ends_with('\\');
        const int slot = isCommand || IsBound(word, scope) ? -1 : SlotOf(word, bracketed);
        if (slot < 0) {
            result.append(word);
            continue;
        }
        if (bracketed) {
            result.pop_back();
            ++at;
        }
        result += ValueText(Variable(slot), result, source.substr(at));
    }
    text = std::move(result);
}

void Translate(std::string& text, const Scope& scope) {
    TranslateFractions(text);
    std::vector<Span> forms;
    if (scope.depth <= kDeepestNamedFunction) forms = TranslateCalls(text, scope);
    SubstituteValues(text, forms, scope);
}

// Greek letters from alpha (U+03B1) on; omicron and the capitals without a command are Latin letters.
constexpr std::array<std::string_view, 25> kSmallGreek = {
    "\\alpha ", "\\beta ", "\\gamma ", "\\delta ",    "\\epsilon ", "\\zeta ", "\\eta ",
    "\\theta ", "\\iota ", "\\kappa ", "\\lambda ",   "\\mu ",      "\\nu ",   "\\xi ",
    "o",        "\\pi ",   "\\rho ",   "\\varsigma ", "\\sigma ",   "\\tau ",  "\\upsilon ",
    "\\phi ",   "\\chi ",  "\\psi ",   "\\omega "};
constexpr std::array<std::string_view, 25> kCapitalGreek = {
    "A",        "B",         "\\Gamma ",   "\\Delta ", "E",     "Z",      "H",       "\\Theta ", "I",
    "K",        "\\Lambda ", "M",          "N",        "\\Xi ", "O",      "\\Pi ",   "P",        "?",
    "\\Sigma ", "T",         "\\Upsilon ", "\\Phi ",   "X",     "\\Psi ", "\\Omega "};
constexpr char16_t kAlpha = 0x03B1;
constexpr char16_t kCapitalAlpha = 0x0391;

std::string_view SignToTeX(char16_t c) {
    if (c >= kAlpha && c < kAlpha + kSmallGreek.size()) return kSmallGreek[c - kAlpha];
    if (c >= kCapitalAlpha && c < kCapitalAlpha + kCapitalGreek.size())
        return kCapitalGreek[c - kCapitalAlpha];
    switch (c) {
        case u'%': return "\\%";
        case 0x00D7: return "*";
        case 0x00F7: return "/";
        case 0x2212: return "-";
        case 0x00B8: return ",";
        default: return "?";
    }
}

}  // namespace

int TranslateToTeX(std::string& text) {
    Translate(text, {});
    return 1;
}

std::string NarrowToTeX(std::u16string_view text) {
    std::string narrow;
    narrow.reserve(text.size());
    for (const char16_t c : text) {
        if (c < 0x80 && c >= u' ' && c != u'%') {
            narrow.push_back(static_cast<char>(c));
        } else {
            narrow.append(SignToTeX(c));
        }
    }
    return narrow;
}

std::string ExpressionToTeX(std::u16string_view engineText) {
    if (engineText.size() >= kTexSourceLimit) return std::string(kTexSourceOverlength);
    std::string text = NarrowToTeX(engineText);
    EncloseRadicands(text);
    TranslatePowers(text);
    TranslateToTeX(text);
    WrapDelimiters(text);
    return text.size() < kTexBufferSize ? text : std::string(kTexOverlength);
}

std::string TrimmedDecimal(double value, int decimals) {
    char buffer[400];
    const int length = std::snprintf(buffer, sizeof buffer, "%.*f", decimals, value);
    std::string text(buffer, std::clamp<std::size_t>(static_cast<std::size_t>(length), 0, sizeof buffer - 1));
    if (text.find('.') != text.npos) {
        text.erase(text.find_last_not_of('0') + 1);
        if (text.ends_with('.')) text.pop_back();
    }
    return text == "-0" ? "0" : text;
}

}  // namespace quorix

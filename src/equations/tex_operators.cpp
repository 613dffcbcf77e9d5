// The passes that know operators: powers, fractions, delimiters.

#include <algorithm>

#include "engine/keyword_table.h"
#include "engine/text_fold.h"
#include "equations/tex_translation.h"

namespace quorix {
namespace {

// Operands of "/" end at an operator that binds no tighter. So do those of "^": a chain of powers nests to
// the right and takes in "!" and "%", as it is calculated.
constexpr int kQuotientLevel = 4;

bool IsWordAt(std::string_view text, std::size_t at) {
    return static_cast<unsigned char>(text[at]) < 0x80 && IsWordCharacter(static_cast<char16_t>(text[at]));
}

/// Whether a word is a binary operator that ends an operand, such as "mod".
bool IsEndingWord(std::string_view word) {
    constexpr std::size_t kLongestOperator = 4;
    if (word.size() > kLongestOperator) return false;
    char16_t lower[kLongestOperator];
    std::ranges::transform(word, lower, [](char c) { return FoldLower(static_cast<char16_t>(c)); });
    const TokenSyntax syntax = SyntaxOf({lower, word.size()});
    return syntax.role == TokenRole::binary && syntax.level <= kQuotientLevel;
}

/// The "^" of "{a}^{b}", which is translated already.
bool IsTranslatedPower(std::string_view text, std::size_t at) {
    return text[at] == '^' && at > 0 && text[at - 1] == '}' && at + 1 < text.size() && text[at + 1] == '{';
}

/// Whether an operand ends at the sign at `at`, which stands outside of groups.
bool IsEndingSign(std::string_view text, std::size_t at) {
    const char c = text[at];
    if (c == ',') return true;
    if (static_cast<unsigned char>(c) >= 0x80 || IsTranslatedPower(text, at)) return false;
    const auto wide = static_cast<char16_t>(c);
    return OperatorPrecedence({&wide, 1}) <= kQuotientLevel;
}

std::size_t LeftOperandStart(std::string_view text, std::size_t at) {
    int depth = 0;
    while (at > 0) {
        const char c = text[at - 1];
        if (c == ')' || c == '}') {
            ++depth;
        } else if (c == '(' || c == '{') {
            if (depth == 0) break;
            --depth;
        } else if (depth == 0 && IsWordAt(text, at - 1)) {
            std::size_t start = at;
            while (start > 0 && IsWordAt(text, start - 1)) --start;
            if (IsEndingWord(text.substr(start, at - start))) break;
            at = start;
            continue;
        } else if (depth == 0 && IsEndingSign(text, at - 1)) {
            break;
        }
        --at;
    }
    return at;
}

std::size_t RightOperandEnd(std::string_view text, std::size_t at) {
    int depth = 0;
    while (at < text.size()) {
        const char c = text[at];
        if (c == '(' || c == '{') {
            ++depth;
        } else if (c == ')' || c == '}') {
            if (depth == 0) break;
            --depth;
        } else if (depth == 0 && IsWordAt(text, at)) {
            std::size_t end = at;
            while (end < text.size() && IsWordAt(text, end)) ++end;
            if (IsEndingWord(text.substr(at, end - at))) break;
            at = end;
            continue;
        } else if (depth == 0 && IsEndingSign(text, at)) {
            break;
        }
        ++at;
    }
    return at;
}

/// How one operator becomes a group: opening, left operand, middle, right operand, "}".
struct GroupForm {
    char sign;
    std::string_view opening;
    std::string_view middle;
    void (*translateRight)(std::string& operand);
};

/// Goes from the left, so what stands left of an operator is translated when it is reached.
void TranslateOperator(std::string& text, const GroupForm& form) {
    std::size_t at = 0;
    while ((at = text.find(form.sign, at)) != text.npos && text.size() < kTexBufferSize) {
        if (IsTranslatedPower(text, at)) {
            ++at;
            continue;
        }
        const std::size_t start = LeftOperandStart(text, at);
        const std::size_t end = RightOperandEnd(text, at + 1);
        std::string right = text.substr(at + 1, end - at - 1);
        form.translateRight(right);
        std::string group;
        group.reserve(form.opening.size() + (at - start) + form.middle.size() + right.size() + 1);
        group.append(form.opening)
            .append(text, start, at - start)
            .append(form.middle)
            .append(right)
            .append("}");
        text.replace(start, end - start, group);
        at = start + group.size();
    }
}

void TranslateExponent(std::string& exponent) {
    TranslatePowers(exponent);
    TranslateFractions(exponent);
}

/// Puts `wrapped` for each `sign` that does not stand directly behind `command`.
void WrapSign(std::string_view text, std::size_t at, std::string_view command, std::string_view wrapped,
              std::string& out) {
    if (text.substr(0, at).ends_with(command)) {
        out.push_back(text[at]);
    } else {
        out.append(wrapped);
    }
}

}  // namespace

void TranslatePowers(std::string& text) {
    TranslateOperator(text, {'^', "{", "}^{", TranslateExponent});
}

void TranslateFractions(std::string& text) {
    TranslateOperator(text, {'/', "\\frac{", "}{", TranslateFractions});
}

void WrapDelimiters(std::string& text) {
    std::string out;
    out.reserve(text.size() + text.size() / 2);
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text[at] == '(') {
            WrapSign(text, at, "\\left", "\\left( ", out);
        } else if (text[at] == ')') {
            WrapSign(text, at, "\\right", " \\right)", out);
        } else {
            out.push_back(text[at]);
        }
    }
    text = std::move(out);
}

}  // namespace quorix

// The passes that know operators: powers, fractions, delimiters.

#include <algorithm>

#include "engine/keyword_table.h"
#include "engine/text_fold.h"
#include "equations/tex_translation.h"

namespace quorix {
namespace {

// Operands end at operators that bind no tighter than these levels. A chain of powers nests to the right and
// takes in "!" and "%", as it is calculated, but "root" ends its members.
constexpr int kQuotientLevel = 4;
constexpr int kRootLevel = 5;

bool IsWordAt(std::string_view text, std::size_t at) {
    return static_cast<unsigned char>(text[at]) < 0x80 && IsWordCharacter(static_cast<char16_t>(text[at]));
}

std::size_t WordEnd(std::string_view text, std::size_t at) {
    while (at < text.size() && IsWordAt(text, at)) ++at;
    return at;
}

TokenSyntax WordSyntax(std::string_view word) {
    constexpr std::size_t kLongestWord = 5;
    if (word.size() > kLongestWord) return {};
    char16_t lower[kLongestWord];
    std::ranges::transform(word, lower, [](char c) { return FoldLower(static_cast<char16_t>(c)); });
    return SyntaxOf({lower, word.size()});
}

/// The "^" of "{a}^{b}", which is translated already.
bool IsTranslatedPower(std::string_view text, std::size_t at) {
    return text[at] == '^' && at > 0 && text[at - 1] == '}' && at + 1 < text.size() && text[at + 1] == '{';
}

/// Whether an operand ends at the sign at `at`, which stands outside of groups.
bool IsEndingSign(std::string_view text, std::size_t at, int level) {
    const char c = text[at];
    if (c == ',') return true;
    if (static_cast<unsigned char>(c) >= 0x80 || IsTranslatedPower(text, at)) return false;
    const auto wide = static_cast<char16_t>(c);
    return OperatorPrecedence({&wide, 1}) <= level;
}

/// wordLevel: up to which level binary words end an operand. A prefix word such as "abs", which binds no
/// tighter than "/", takes the whole operation as its own operand and so ends one as well.
std::size_t LeftOperandStart(std::string_view text, std::size_t at, int wordLevel) {
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
            const TokenSyntax word = WordSyntax(text.substr(start, at - start));
            if (word.role == TokenRole::binary && word.level <= wordLevel) break;
            if (word.role == TokenRole::prefix && word.level <= kQuotientLevel) break;
            at = start;
            continue;
        } else if (depth == 0 && IsEndingSign(text, at - 1, kQuotientLevel)) {
            break;
        }
        --at;
    }
    return at;
}

/// Behind a prefix word that binds loosely the operand ends where that word's does.
std::size_t RightOperandEnd(std::string_view text, std::size_t at, int wordLevel) {
    int depth = 0;
    int signLevel = kQuotientLevel;
    while (at < text.size()) {
        const char c = text[at];
        if (c == '(' || c == '{') {
            ++depth;
        } else if (c == ')' || c == '}') {
            if (depth == 0) break;
            --depth;
        } else if (depth == 0 && IsWordAt(text, at)) {
            const std::size_t end = WordEnd(text, at);
            const TokenSyntax word = WordSyntax(text.substr(at, end - at));
            if (word.role == TokenRole::binary && word.level <= wordLevel) break;
            if (word.role == TokenRole::prefix && word.level <= signLevel) wordLevel = signLevel = word.level;
            at = end;
            continue;
        } else if (depth == 0 && IsEndingSign(text, at, signLevel)) {
            break;
        }
        ++at;
    }
    return at;
}

/// Whether a base needs parentheses to be read as one: what binds tighter than "^" without enclosing its
/// operand, as in "sin 2^3" and "2exp3^2".
bool IsOpenBase(std::string_view base) {
    int depth = 0;
    for (std::size_t at = 0; at < base.size(); ++at) {
        const char c = base[at];
        if (c == '(' || c == '{') ++depth;
        if (c == ')' || c == '}') --depth;
        if (depth != 0 || !IsWordAt(base, at)) continue;
        const std::size_t end = WordEnd(base, at);
        const TokenSyntax word = WordSyntax(base.substr(at, end - at));
        const std::size_t next = base.find_first_not_of(' ', end);
        const bool encloses = next != base.npos && base[next] == '(';
        if (word.role == TokenRole::binary || (word.role == TokenRole::prefix && !encloses)) return true;
        at = end - 1;
    }
    return false;
}

/// Behind the group whose opening sign stands at `at`; npos when it stays open.
std::size_t GroupEnd(std::string_view text, std::size_t at, char open, char close) {
    int depth = 0;
    for (; at < text.size(); ++at) {
        if (text[at] == open) ++depth;
        if (text[at] == close && --depth == 0) return at + 1;
    }
    return text.npos;
}

std::size_t SkipBlanks(std::string_view text, std::size_t at) {
    return std::min(text.find_first_not_of(' ', at), text.size());
}

/// Behind a number, a name, a call or a group at `at`; npos when there is none or it stays open.
std::size_t PrimaryEnd(std::string_view text, std::size_t at) {
    if (text.substr(at).starts_with('(')) return GroupEnd(text, at, '(', ')');
    if (text.substr(at).starts_with('[')) return GroupEnd(text, at, '[', ']');
    std::size_t end = WordEnd(text, at);
    if (end == at || WordSyntax(text.substr(at, end - at)).role == TokenRole::binary) return text.npos;
    const std::size_t next = SkipBlanks(text, end);
    if (text.substr(next).starts_with('(')) return GroupEnd(text, next, '(', ')');
    while (end < text.size() && (text[end] == '.' || IsWordAt(text, end))) ++end;
    return end;
}

/// Behind the operand of a prefix word that binds tightly, "!" and "%" taken in; npos when there is none.
std::size_t PrefixOperandEnd(std::string_view text, std::size_t at) {
    constexpr std::string_view kPercent = "\\%";
    at = SkipBlanks(text, at);
    for (;;) {
        const std::size_t end = WordEnd(text, at);
        const TokenSyntax word = WordSyntax(text.substr(at, end - at));
        if (word.role != TokenRole::prefix) break;
        if (word.level <= kQuotientLevel) return RightOperandEnd(text, at, kRootLevel);
        at = SkipBlanks(text, end);
    }
    std::size_t end = PrimaryEnd(text, at);
    while (end != text.npos) {
        const std::size_t next = SkipBlanks(text, end);
        const std::string_view rest = text.substr(next);
        if (!rest.starts_with('!') && !rest.starts_with(kPercent)) break;
        end = next + (rest.front() == '!' ? 1 : kPercent.size());
    }
    return end;
}

/// How one operator becomes a group: opening, left operand, middle, right operand, "}".
struct GroupForm {
    char sign;
    std::string_view opening;
    std::string_view middle;
    void (*translateRight)(std::string& operand);
    int wordLevel;
    bool (*needsParentheses)(std::string_view left);
};

/// Goes from the left, so what stands left of an operator is translated when it is reached.
void TranslateOperator(std::string& text, const GroupForm& form) {
    std::size_t at = 0;
    while ((at = text.find(form.sign, at)) != text.npos && text.size() < kTexBufferSize) {
        if (IsTranslatedPower(text, at)) {
            ++at;
            continue;
        }
        const std::size_t start = LeftOperandStart(text, at, form.wordLevel);
        const std::size_t end = RightOperandEnd(text, at + 1, form.wordLevel);
        const std::string_view left = std::string_view(text).substr(start, at - start);
        std::string right = text.substr(at + 1, end - at - 1);
        form.translateRight(right);
        const bool encloses = form.needsParentheses(left);
        std::string group;
        group.reserve(form.opening.size() + left.size() + form.middle.size() + right.size() + 3);
        group.append(form.opening)
            .append(encloses ? "(" : "")
            .append(left)
            .append(encloses ? ")" : "")
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

void EncloseRadicands(std::string& text) {
    constexpr std::string_view kRoot = "sqrt";
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t wordEnd = WordEnd(text, at);
        const std::size_t start = SkipBlanks(text, wordEnd);
        const bool isRoot =
            std::string_view(text).substr(at, wordEnd - at) == kRoot && (at == 0 || text[at - 1] != '\\');
        at = wordEnd == at ? at + 1 : wordEnd;
        const std::size_t end = isRoot ? PrefixOperandEnd(text, wordEnd) : text.npos;
        if (end == text.npos) continue;
        const bool isEnclosed = text[start] == '(' && GroupEnd(text, start, '(', ')') == end;
        if (!isEnclosed) text.insert(end, ")");
        text.replace(wordEnd, start - wordEnd, isEnclosed ? "" : "(");
    }
}

void TranslatePowers(std::string& text) {
    TranslateOperator(text, {'^', "{", "}^{", TranslateExponent, kRootLevel, IsOpenBase});
}

void TranslateFractions(std::string& text) {
    const auto never = [](std::string_view) { return false; };
    TranslateOperator(text, {'/', "\\frac{", "}{", TranslateFractions, kQuotientLevel, never});
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

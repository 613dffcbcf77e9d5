#include "engine/tokeniser.h"

#include <algorithm>
#include <charconv>

#include "engine/calc_context.h"
#include "engine/radix_digits.h"
#include "engine/text_fold.h"
#include "engine/variable_store.h"

namespace quorix {
namespace {

constexpr bool MayEndAnExpression(char16_t c) {
    return c == u' ' || c == u')' || c == u'!' || c == u'%' || c == u']';
}

// An expression cannot end in an operator or a point, and two minus signs in a row are no double negation.
bool HasSoundShape(std::u16string_view text) {
    std::size_t end = text.size();
    while (end > 0 && MayEndAnExpression(text[end - 1])) --end;
    if (end == 0 || !IsWordCharacter(text[end - 1])) return false;
    return text.size() == 1 || text.find(u"--") == std::u16string_view::npos;
}

constexpr bool IsOperatorSign(char16_t c) {
    return c == u'(' || c == u')' || c == u'+' || c == u'-' || c == u'*' || c == u'/' || c == u'^' ||
           c == u'!' || c == u'%';
}

constexpr TokenSyntax SyntaxOfSign(char16_t sign) {
    switch (sign) {
        case u'(': return {TokenRole::open, 0, false};
        case u')': return {TokenRole::close, 0, false};
        case u'+':
        case u'-': return {TokenRole::binary, 2, false};
        case u'*':
        case u'/': return {TokenRole::binary, 4, false};
        case u'^': return {TokenRole::binary, 5, false};
        default: return {TokenRole::postfix, 5, false};
    }
}

// One pass over an expression in one radix.
class Scanner {
  public:
    Scanner(std::u16string_view text, int radix, std::u16string_view boundName, TokenList& list)
        : text_(text), radix_(radix), boundName_(boundName), list_(list) {}

    bool Run() {
        std::size_t at = 0;
        while (at < text_.size()) {
            const char16_t c = text_[at];
            if (IsWordCharacter(c)) {
                const std::size_t end = WordEnd(at);
                if (!AcceptWord(text_.substr(at, end - at))) return false;
                at = end;
                continue;
            }
            if (IsOperatorSign(c)) {
                parenthesisBalance_ += c == u'(' ? 1 : c == u')' ? -1 : 0;
                list_.Append(text_.substr(at, 1), SyntaxOfSign(c));
            } else if (!IsSilent(c)) {
                return false;
            }
            ++at;
        }
        return parenthesisBalance_ == 0;
    }

  private:
    // The decimal pass drops brackets, points and blanks and refuses everything else, the comma included; the
    // other passes skip whatever is no operator.
    [[nodiscard]] bool IsSilent(char16_t c) const {
        return radix_ != 10 || c == u'[' || c == u']' || c == u'.' || c == u' ';
    }

    // A point belongs to a word in the decimal pass alone.
    [[nodiscard]] std::size_t WordEnd(std::size_t at) const {
        while (at < text_.size() && (IsWordCharacter(text_[at]) || (radix_ == 10 && text_[at] == u'.'))) ++at;
        return at;
    }

    bool AcceptWord(std::u16string_view word) {
        if (radix_ != 10 && IsRadixNumber(word)) {
            AppendRadixNumber(word);
            return true;
        }
        const bool isDecimalWord = AppendLower(word);
        if (radix_ == 10 && isDecimalWord) {
            list_.Close(word.size(), {});
            return true;
        }
        const std::u16string_view lower(list_.characters.data() + list_.characters.size() - word.size(),
                                        word.size());
        const TokenSyntax syntax = SyntaxOf(lower);
        list_.Close(word.size(), syntax);
        return syntax.isKeyword || FindVariable(lower) >= 0 ||
               (!boundName_.empty() && EqualsIgnoringCase(lower, boundName_));
    }

    // Appends the characters of a word in lower case. Result: whether they are digits, points and the letters
    // of "e", "pi" and "i" alone, which makes a decimal number or constant; that "PIE" and "1.2.3" pass is
    // intended, the evaluator decides.
    bool AppendLower(std::u16string_view word) {
        const std::size_t begin = list_.characters.size();
        list_.characters.resize(begin + word.size());
        char16_t* at = list_.characters.data() + begin;
        bool isDecimalWord = true;
        for (const char16_t c : word) {
            const char16_t lower = FoldLower(c);
            *at++ = lower;
            isDecimalWord &=
                IsDigit(lower) || lower == u'.' || lower == u'e' || lower == u'p' || lower == u'i';
        }
        return isDecimalWord;
    }

    [[nodiscard]] bool IsRadixNumber(std::u16string_view word) const {
        return std::ranges::all_of(word,
                                   [this](char16_t c) { return DigitValue(FoldUpper(c), radix_) >= 0; });
    }

    // A value of 2^31 or more comes out negative, as a single token.
    void AppendRadixNumber(std::u16string_view word) {
        std::u16string upper(word);
        std::ranges::transform(upper, upper.begin(), FoldUpper);
        const auto value = static_cast<std::int32_t>(ParseUnsignedInRadix(upper, radix_));
        char digits[12];
        const auto written = std::to_chars(std::begin(digits), std::end(digits), value);
        list_.Append(std::u16string(std::begin(digits), written.ptr), {});
    }

    std::u16string_view text_;
    int radix_;
    std::u16string_view boundName_;
    TokenList& list_;
    int parenthesisBalance_ = 0;
};

}  // namespace

bool TokeniseToList(std::u16string_view text, int radix, std::u16string_view boundName, TokenList& list) {
    list.Clear();
    if (calcContext().calcError != 0 || text.size() > kMaxExpressionLength || !HasSoundShape(text))
        return false;
    if (IsSupportedRadix(radix)) return Scanner(text, radix, boundName, list).Run();
    std::u16string upper(text);
    std::ranges::transform(upper, upper.begin(), FoldUpper);
    SplitAtBlanks(upper, list);
    return true;
}

bool TokeniseExpression(std::u16string& text, int radix, std::u16string_view boundName) {
    TokenList list;
    if (!TokeniseToList(text, radix, boundName, list)) return false;
    if (IsSupportedRadix(radix)) {
        text = JoinWithBlanks(list);
    } else {
        std::ranges::transform(text, text.begin(), FoldUpper);
    }
    return true;
}

}  // namespace quorix

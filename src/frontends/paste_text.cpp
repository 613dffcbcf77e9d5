#include "frontends/paste_text.h"

#include <algorithm>
#include <vector>

#include "engine/number_locale.h"
#include "engine/text_fold.h"
#include "frontends/display_symbols.h"
#include "frontends/foreign_signs.h"
#include "frontends/function_hints.h"
#include "frontends/key_codes.h"
#include "frontends/key_names.h"
#include "frontends/string_key_tokens.h"
#include "frontends/token_line.h"

namespace quorix {

namespace {

/// Characters of the clipboard that are looked at: blanks and separators make a text longer than its line.
constexpr std::size_t kLongestPaste = 4 * kLongestLine;
constexpr std::size_t kGroup = 3;

/// Root signs, each with the degree that it has when none stands before it.
constexpr std::pair<char16_t, std::u16string_view> kRoots[] = {
    {symbols::kRoot, u"2"}, {0x221B, u"3"}, {0x221C, u"4"}};

/// A function of the engine that no key inserts.
constexpr std::u16string_view kMagnitude = u"abs";

/// Signs that stand for the name of a function when a parenthesis follows.
constexpr std::u16string_view kCallSigns = u"\u222B\u03B4\u0192\u220F\u2211";

constexpr bool IsHexLetter(char16_t c) {
    return (c >= u'A' && c <= u'F') || (c >= u'a' && c <= u'f');
}
constexpr bool IsMinus(char16_t c) {
    return c == u'-' || c == symbols::kMinus || c == 0x2013;
}
constexpr bool IsComma(char16_t c) {
    return c == u',' || c == kDisplayComma;
}
constexpr bool IsNeutralSeparator(char16_t c) {
    return c == u' ' || c == u'\'' || c == 0x2019;
}

/// A number as it stands in the text, and how many of its groups one reading of the separators takes.
struct NumberReading {
    std::size_t groups = 1;
    std::size_t wholeGroups = 1;  ///< Those before the decimal sign.
};

class PasteReader {
  public:
    PasteReader(std::u16string_view text, std::u16string_view numberLocale, int radix)
        : text_(TidyText(text, kLongestPaste)), decimal_(SignsOf(numberLocale).decimal), radix_(radix) {}

    TokenText Read() {
        // As spreadsheets begin a formula.
        at_ = text_.starts_with(u'=') ? 1 : 0;
        while (at_ < text_.size() && out_.text.size() < kLongestLine) {
            ReadOne();
        }
        return std::move(out_);
    }

  private:
    [[nodiscard]] char16_t Peek(std::size_t ahead = 0) const {
        return at_ + ahead < text_.size() ? text_[at_ + ahead] : u'\0';
    }
    [[nodiscard]] char16_t LastOut() const { return out_.text.empty() ? u'\0' : out_.text.back(); }
    /// The first character at or behind `ahead` that is no blank.
    [[nodiscard]] std::size_t SkipBlank(std::size_t ahead) const {
        return Peek(ahead) == u' ' ? ahead + 1 : ahead;
    }
    [[nodiscard]] bool IsDigitHere(char16_t c) const {
        return IsDigit(c) || (radix_ == 16 && IsHexLetter(c));
    }
    [[nodiscard]] bool CommaSeparates() const { return !separates_.empty() && separates_.back(); }
    [[nodiscard]] bool EndsOperand() const {
        const char16_t c = LastOut();
        return IsDigit(c) || c == u'.' || c == kDisplayComma || c == u')' || c == u']';
    }

    void Emit(std::u16string_view token) {
        if (token.empty() || out_.text.size() + token.size() > kLongestLine) {
            return;
        }
        out_.text += token;
        out_.lengths += static_cast<char16_t>(u'0' + token.size());
    }
    void Emit(char16_t c) { Emit({&c, 1}); }
    void Open(std::u16string_view token, bool separates) {
        Emit(token);
        separates_.push_back(separates);
    }
    void Close() {
        Emit(u')');
        if (!separates_.empty()) {
            separates_.pop_back();
        }
    }

    void ReadOne();
    void ReadBlank();
    void ReadNumber();
    bool ReadMixedNumber();
    [[nodiscard]] bool IsHexNumberHere() const;
    void ReadHexNumber();
    [[nodiscard]] std::vector<std::size_t> NumberGroups() const;
    [[nodiscard]] NumberReading ReadGroups(const std::vector<std::size_t>& starts, bool commaIsDecimal) const;
    [[nodiscard]] std::size_t GroupEnd(std::size_t start) const;
    void ReadExponent();
    void ReadMinus();
    void ReadSuperscripts();
    bool ReadRoot();
    bool ReadBracket();
    [[nodiscard]] bool IsMadeOfNames(std::size_t end) const;
    void ReadWord();
    void ReadName(const KeyName& name, std::size_t length);
    bool ReadLogarithm(std::size_t length);
    void EmitKey(std::int32_t key, bool separates);
    bool ReadArgument(std::int32_t key, bool separates);

    std::u16string text_;
    char16_t decimal_;
    int radix_;
    std::size_t at_ = 0;
    /// Up to here names are known to follow each other.
    std::size_t namesEnd_ = 0;
    TokenText out_;
    /// For each open parenthesis whether "," separates arguments directly within it.
    std::vector<bool> separates_;
};

void PasteReader::ReadOne() {
    const char16_t c = Peek();
    const char16_t next = Peek(1);
    const bool pointStarts = (c == u'.' || (IsComma(c) && decimal_ == kDisplayComma && !CommaSeparates() &&
                                            !IsDigit(LastOut()))) &&
                             IsDigit(next);
    if (c == u' ') {
        ReadBlank();
    } else if (radix_ == 16 && IsDigitHere(c)) {
        ReadHexNumber();
    } else if (IsDigit(c) || pointStarts) {
        ReadNumber();
    } else if (IsAsciiLetter(c)) {
        ReadWord();
    } else if (RaisedBy(c) != 0) {
        ReadSuperscripts();
    } else if (c == u'*' && next == u'*') {
        Emit(u'^');
        at_ += 2;
    } else if (c == u'(' && next == u'-') {
        Open(u"(-", false);
        at_ += 2;
    } else if (c == u'(') {
        // What a name unknown here takes, a macro's for one, may be several arguments.
        Open(u"(", IsAsciiLetter(LastOut()) || IsForeignLetter(LastOut()));
        ++at_;
    } else if (c == u')') {
        Close();
        ++at_;
    } else if (IsMinus(c)) {
        ReadMinus();
    } else if (kCallSigns.find(c) != kCallSigns.npos && next == u'(') {
        const char16_t call[] = {c, u'('};
        Open({call, 2}, true);
        at_ += 2;
    } else if (!ReadRoot() && !ReadBracket()) {
        const std::u16string_view token = TokenOfSign(c);
        Emit(token.empty() ? std::u16string_view(&c, 1) : token);
        ++at_;
    }
}

void PasteReader::ReadBlank() {
    ++at_;
    const bool numberFollows =
        IsDigit(Peek()) || (Peek() == u'.' && IsDigit(Peek(1))) || (radix_ == 16 && IsHexNumberHere());
    if (numberFollows && (IsDigit(LastOut()) || (radix_ == 16 && IsHexLetter(LastOut())))) {
        Emit(symbols::kMultiply);
    }
}

std::size_t PasteReader::GroupEnd(std::size_t start) const {
    while (start < text_.size() && IsDigit(text_[start])) {
        ++start;
    }
    return start;
}

/// Starts of the digit groups here that single separators divide.
std::vector<std::size_t> PasteReader::NumberGroups() const {
    std::vector<std::size_t> starts{at_};
    for (std::size_t end = GroupEnd(at_); end + 1 < text_.size(); end = GroupEnd(end + 1)) {
        const char16_t c = text_[end];
        const bool separator = c == u'.' || IsNeutralSeparator(c) || (IsComma(c) && !CommaSeparates());
        if (!separator || !IsDigit(text_[end + 1])) {
            break;
        }
        starts.push_back(end + 1);
        if (GroupEnd(end + 1) - (end + 1) != kGroup) {
            break;  // Such a group can only be the last.
        }
    }
    return starts;
}

NumberReading PasteReader::ReadGroups(const std::vector<std::size_t>& starts, bool commaIsDecimal) const {
    NumberReading reading;
    const std::size_t firstLength = GroupEnd(starts[0]) - starts[0];
    char16_t thousands = 0;
    while (reading.groups < starts.size() && firstLength >= 1 && firstLength <= kGroup) {
        const std::size_t start = starts[reading.groups];
        const char16_t c = text_[start - 1];
        const bool mayGroup =
            thousands != 0 ? c == thousands : IsNeutralSeparator(c) || IsComma(c) != commaIsDecimal;
        if (!mayGroup || GroupEnd(start) - start != kGroup) {
            break;
        }
        thousands = c;
        ++reading.groups;
    }
    reading.wholeGroups = reading.groups;
    if (reading.groups < starts.size()) {
        const char16_t c = text_[starts[reading.groups] - 1];
        if (!IsNeutralSeparator(c) && c != thousands && IsComma(c) == commaIsDecimal) {
            ++reading.groups;
        }
    }
    return reading;
}

/// "3 1/7", as fractions are shown and written. Three digits behind the blank are a group of thousands.
bool PasteReader::ReadMixedNumber() {
    const std::size_t wholeEnd = GroupEnd(at_);
    const std::size_t over = wholeEnd + 1;
    const std::size_t overEnd = GroupEnd(std::min(over, text_.size()));
    const std::size_t under = overEnd + 1;
    if (radix_ != 10 || wholeEnd == at_ || EndsOperand() || under >= text_.size() ||
        text_[wholeEnd] != u' ' || text_[overEnd] != u'/' || overEnd - over == kGroup) {
        return false;
    }
    const std::size_t underEnd = GroupEnd(under);
    const std::size_t overLength = overEnd - over;
    const std::size_t underLength = underEnd - under;
    const auto piece = [this](std::size_t from, std::size_t to) {
        return std::u16string_view(text_).substr(from, to - from);
    };
    const bool proper =
        overLength != underLength ? overLength < underLength : piece(over, overEnd) < piece(under, underEnd);
    const char16_t behind = underEnd < text_.size() ? text_[underEnd] : u'\0';
    const bool goesOn = behind == u'.' || IsComma(behind) || IsNeutralSeparator(behind);
    if (!proper || overLength == 0 || text_[over] == u'0' || text_[under] == u'0' ||
        (goesOn && underEnd + 1 < text_.size() && IsDigit(text_[underEnd + 1]))) {
        return false;
    }
    Open(u"(", false);
    for (const char16_t c : piece(at_, underEnd)) {
        Emit(c == u' ' ? u'+' : c == u'/' ? symbols::kDivide : c);
    }
    Close();
    at_ = underEnd;
    return true;
}

void PasteReader::ReadNumber() {
    if (ReadMixedNumber()) {
        return;
    }
    const std::vector<std::size_t> starts = NumberGroups();
    const bool localeComma = decimal_ == kDisplayComma;
    NumberReading reading = ReadGroups(starts, localeComma);
    if (const NumberReading other = ReadGroups(starts, !localeComma); other.groups > reading.groups) {
        reading = other;
    }
    const std::size_t end = GroupEnd(starts[reading.groups - 1]);
    const std::u16string_view rest = std::u16string_view(text_).substr(end);
    const bool raised =
        rest.starts_with(u'^') || rest.starts_with(u"**") || (!rest.empty() && RaisedBy(rest.front()) != 0);
    if (raised && std::u16string_view(text_).substr(at_, end - at_) == u"10") {
        Emit(u"10");
    } else {
        for (std::size_t group = 0; group < reading.groups; ++group) {
            if (group == reading.wholeGroups) {
                Emit(decimal_);
            }
            const std::size_t groupEnd = GroupEnd(starts[group]);
            for (std::size_t i = starts[group]; i < groupEnd; ++i) {
                Emit(text_[i]);
            }
        }
    }
    at_ = end;
    if (radix_ == 10) {
        ReadExponent();
    }
}

/// A run of digits and letters that are all digits of base 16; a word that merely begins with such letters is
/// none.
bool PasteReader::IsHexNumberHere() const {
    std::size_t ahead = 0;
    while (IsDigitHere(Peek(ahead))) {
        ++ahead;
    }
    return ahead > 0 && !IsAsciiLetter(Peek(ahead));
}

void PasteReader::ReadHexNumber() {
    if (Peek() == u'0' && (Peek(1) == u'x' || Peek(1) == u'X') && IsDigitHere(Peek(2))) {
        at_ += 2;
    }
    const bool isNumber = IsHexNumberHere();
    if (!isNumber && !IsDigit(Peek())) {
        ReadWord();
        return;
    }
    while (IsDigit(Peek()) || (isNumber && IsHexLetter(Peek()))) {
        Emit(FoldUpper(Peek()));
        ++at_;
    }
}

void PasteReader::ReadExponent() {
    const std::size_t sign = IsMinus(Peek(1)) || Peek(1) == u'+' ? 1 : 0;
    if ((Peek() != u'e' && Peek() != u'E') || !IsDigit(Peek(1 + sign))) {
        return;
    }
    const bool negative = sign != 0 && Peek(1) != u'+';
    Emit(u"exp");
    if (negative) {
        Open(u"(-", false);
    }
    at_ += 1 + sign;
    while (IsDigit(Peek())) {
        Emit(Peek());
        ++at_;
    }
    if (negative) {
        Close();
    }
}

void PasteReader::ReadMinus() {
    constexpr std::u16string_view kOperators = u"^+\u00D7\u00F7\u2212";
    const bool afterOperator = kOperators.find(LastOut()) != kOperators.npos;
    at_ = at_ + SkipBlank(1);
    if (afterOperator && !out_.text.empty() && IsDigit(Peek())) {
        // Two operators in a row are refused; a signed number is not.
        Open(u"(-", false);
        ReadNumber();
        Close();
    } else {
        Emit(symbols::kMinus);
    }
}

void PasteReader::ReadSuperscripts() {
    std::u16string raised;
    for (; RaisedBy(Peek()) != 0; ++at_) {
        raised += RaisedBy(Peek());
    }
    Emit(u'^');
    const bool plain = std::all_of(raised.begin(), raised.end(), IsDigit) || raised.size() == 1;
    if (!plain) {
        const bool negative = raised.front() == symbols::kMinus;
        Open(negative ? u"(-" : u"(", false);
        raised.erase(0, negative ? 1 : 0);
    }
    for (const char16_t c : raised) {
        Emit(c);
    }
    if (!plain) {
        Close();
    }
}

bool PasteReader::ReadRoot() {
    for (const auto& [sign, degree] : kRoots) {
        if (sign != Peek()) {
            continue;
        }
        const std::size_t characters = out_.text.size();
        const std::size_t tokens = out_.lengths.size();
        const std::size_t behind = SkipBlank(1);
        const bool isCall = Peek(behind) == u'(';
        // "3√(8)" has a degree as our own lines write it; "3√8" is a product as everybody writes it.
        if (!EndsOperand() || !isCall || sign != symbols::kRoot) {
            if (EndsOperand()) {
                Emit(symbols::kMultiply);
            }
            Emit(degree);
        }
        at_ += behind;
        if (!ReadArgument(KEY_ROOT, false)) {
            out_.text.resize(characters);
            out_.lengths.resize(tokens);
            Emit(sign);
        }
        return true;
    }
    return false;
}

bool PasteReader::ReadBracket() {
    for (const std::u16string_view answer : {u"[ans]", u"[VRE]"}) {
        if (EqualsIgnoringCase(std::u16string_view(text_).substr(at_, answer.size()), answer)) {
            Emit(u"[ans]");
            at_ += answer.size();
            return true;
        }
    }
    return false;
}

void PasteReader::EmitKey(std::int32_t key, bool separates) {
    const StringKeyTokens& row = *FindStringKeyTokens(key);
    if (IsDigit(row.first.front()) && EndsOperand()) {
        Emit(symbols::kMultiply);  // The degree of a root is no digit of the number before it.
    }
    Emit(row.first);
    Emit(row.second);
    if (row.first.ends_with(u'(') || row.second.ends_with(u'(')) {
        separates_.push_back(separates);
    }
}

/// Behind the name of a call: its parenthesis becomes part of the token; a number or constant without
/// parenthesis gets one. False, with nothing read, for anything else.
bool PasteReader::ReadArgument(std::int32_t key, bool separates) {
    const std::size_t behind = SkipBlank(0);
    const char16_t c = Peek(behind);
    if (c == u'(') {
        EmitKey(key, separates);
        at_ += behind + 1;
        return true;
    }
    const bool number = IsDigit(c) || (c == u'.' && IsDigit(Peek(behind + 1)));
    const bool pi = c == 0x03C0 || (c == u'p' && Peek(behind + 1) == u'i');
    if (!number && !pi && (c != u'x' || IsAsciiLetter(Peek(behind + 1)))) {
        return false;
    }
    EmitKey(key, false);
    at_ += behind;
    if (number) {
        ReadNumber();
    } else {
        Emit(pi ? std::u16string_view(u"pi") : std::u16string_view(u"x"));
        at_ += c == u'p' ? 2 : 1;
    }
    Close();
    return true;
}

/// "log10(", and "log2(" with its kin, which has no key: ln of the one by ln of the other.
bool PasteReader::ReadLogarithm(std::size_t length) {
    std::size_t end = length + (Peek(length) == u'_' ? 1 : 0);
    const std::size_t base = end;
    while (IsDigit(Peek(end))) {
        ++end;
    }
    if (end == base || Peek(SkipBlank(end)) != u'(') {
        return false;
    }
    const std::u16string digits = text_.substr(at_ + base, end - base);
    at_ += SkipBlank(end) + 1;
    if (digits != u"10") {
        EmitKey(KEY_OPEN, false);
        EmitKey(KEY_RECIPROCAL, false);
        EmitKey(KEY_LN, false);
        for (const char16_t digit : digits) {
            Emit(digit);
        }
        Close();
        Close();
        Emit(symbols::kMultiply);
    }
    EmitKey(digits == u"10" ? KEY_LOG : KEY_LN, false);
    return true;
}

void PasteReader::ReadName(const KeyName& name, std::size_t length) {
    const StringKeyTokens& row = *FindStringKeyTokens(name.key);
    const auto letterByLetter = [&] {
        for (; length > 0; --length, ++at_) {
            Emit(Peek());
        }
    };
    if (name.key == KEY_LOG && ReadLogarithm(length)) {
        return;
    }
    if (const std::size_t list = row.first.find(u"(X)"); list != row.first.npos) {
        if (EqualsIgnoringCase(std::u16string_view(text_).substr(at_ + length, 3), u"(X)")) {
            Emit(row.first);
            at_ += length + 3;
        } else {
            letterByLetter();
        }
        return;
    }
    const bool isCall = row.first.ends_with(u'(') || row.second.ends_with(u'(');
    if (!isCall) {
        at_ += length;
        // Behind an operand "exp" is our power of ten, elsewhere everybody's power of e.
        if (name.key == KEY_EXP && !EndsOperand() && Peek(SkipBlank(0)) == u'(') {
            EmitKey(KEY_E_POWER, false);
        } else {
            EmitKey(name.key, false);
        }
        if (row.first.ends_with(u' ')) {
            at_ += SkipBlank(0);
        }
        return;
    }
    const std::size_t start = at_;
    std::int32_t key = name.key;
    at_ += length;
    if (RaisedBy(Peek()) == symbols::kMinus && RaisedBy(Peek(1)) == u'1') {
        const KeyName* const inverse = LongestKeyName(u'a' + std::u16string(name.name));
        if (inverse != nullptr && inverse->name.size() == name.name.size() + 1) {
            key = inverse->key;
            at_ += 2;
        }
    }
    if (!ReadArgument(key, TakesSeveralArguments(row.first.substr(0, row.first.size() - 1)))) {
        at_ = start;
        letterByLetter();
    }
}

/// Whether names and the letters of constants make up the run of letters from here to `end`.
bool PasteReader::IsMadeOfNames(std::size_t end) const {
    constexpr std::u16string_view kConstants = u"xie";
    for (std::size_t at = at_; at < end;) {
        const KeyName* const name = LongestKeyName(std::u16string_view(text_).substr(at, end - at));
        if (name == nullptr && kConstants.find(text_[at]) == kConstants.npos) {
            return false;
        }
        at += name != nullptr ? name->name.size() : 1;
    }
    return true;
}

void PasteReader::ReadWord() {
    if (at_ >= namesEnd_) {
        std::size_t end = at_;
        while (end < text_.size() && IsAsciiLetter(text_[end])) {
            ++end;
        }
        if (!IsMadeOfNames(end)) {
            const std::u16string word = text_.substr(at_, end - at_);
            at_ = end;
            if (word == kMagnitude && Peek() == u'(') {
                Open(u"abs(", false);
                ++at_;
                return;
            }
            for (const char16_t letter : word) {
                Emit(letter);
            }
            return;
        }
        namesEnd_ = end;
    }
    const KeyName* const name = LongestKeyName(std::u16string_view(text_).substr(at_, namesEnd_ - at_));
    if (name != nullptr) {
        ReadName(*name, name->name.size());
    } else {
        Emit(Peek());
        ++at_;
    }
}

}  // namespace

TokenText TranslatePaste(std::u16string_view text, std::u16string_view numberLocale, int radix) {
    return PasteReader(text, numberLocale, radix).Read();
}

}  // namespace quorix

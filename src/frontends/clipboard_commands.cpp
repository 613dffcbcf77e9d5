#include "frontends/clipboard_commands.h"

#include <algorithm>
#include <charconv>
#include <optional>

#include "engine/calc_context.h"
#include "engine/number_locale.h"
#include "frontends/engine_text.h"
#include "frontends/memory_text.h"
#include "frontends/paste_text.h"
#include "numerics/qcore.h"

namespace quorix {

namespace {

/// Significant digits of a full number: of the 101 that the bits hold, the last few are rounding.
constexpr int kSureDigits = 96;
/// Numbers below 10^-kMostLeadingZeros are written with an exponent.
constexpr int kMostLeadingZeros = 12;

/// The tokens of the line that went to the clipboard last; one per process, as the clipboard is.
struct CopiedLine {
    std::u16string onClipboard;
    TokenText tokens;
    std::int32_t base = 0;
    std::u16string numberLocale;
};

CopiedLine& LastCopiedLine() {
    static CopiedLine line;
    return line;
}

/// Other programs do not know the display's comma.
std::u16string ForOtherPrograms(std::u16string_view text) {
    std::u16string plain(text);
    std::replace(plain.begin(), plain.end(), kDisplayComma, u',');
    return plain;
}

/// Digits d1 d2 ... of a number d1.d2... times ten to the exponent.
std::u16string Place(std::u16string digits, int exponent, char16_t decimal) {
    if (exponent < -kMostLeadingZeros || exponent >= kSureDigits) {
        if (digits.size() > 1) {
            digits.insert(1, 1, decimal);
        }
        const std::string power = std::to_string(exponent);
        return digits + u'E' + std::u16string(power.begin(), power.end());
    }
    if (exponent < 0) {
        return u'0' + (decimal + std::u16string(static_cast<std::size_t>(-exponent - 1), u'0')) + digits;
    }
    const std::size_t whole = static_cast<std::size_t>(exponent) + 1;
    if (digits.size() <= whole) {
        return digits.append(whole - digits.size(), u'0');
    }
    return digits.insert(whole, 1, decimal);
}

std::u16string AllDigitsOf(const QReal& value, char16_t decimal) {
    if (value.IsZero()) {
        return u"0";
    }
    const std::string text = qtoasc(value, kSureDigits - 1);
    const std::size_t mark = text.find('E');
    int exponent = 0;
    std::from_chars(text.data() + mark + 1, text.data() + text.size(), exponent);
    std::u16string digits;
    for (const char c : text.substr(0, mark)) {
        if (c >= '0' && c <= '9') {
            digits += static_cast<char16_t>(c);
        }
    }
    digits.erase(digits.find_last_not_of(u'0') + 1);
    const std::u16string sign = value.IsNegative() ? u"-" : u"";
    return sign + Place(digits, exponent, decimal);
}

/// The clipboard's text as one number in the display's base; nothing for any other text.
std::optional<QComplex> NumberOf(const CLedDisplay& display, Clipboard& clipboard) {
    const int radix = RadixOf(display.GetBase());
    const std::u16string_view locale = display.Settings().numberLocale;
    auto text = ToEngineText(TranslatePaste(clipboard.GetText(), locale, radix).text, locale, radix);
    if (!text || text->empty()) {
        return std::nullopt;
    }
    if (radix != 10) {
        const bool isNumber = text->find_first_not_of(u"0123456789ABCDEF") == text->npos;
        return isNumber ? std::optional(MemoryValue(*text, display.GetBase())) : std::nullopt;
    }
    ReplaceAll(*text, u" exp (", u"E");
    ReplaceAll(*text, u" exp ", u"E");
    std::erase(*text, u')');
    const std::size_t lastMinus = text->rfind(u'-');
    const bool isDifference = lastMinus != text->npos && lastMinus > 0 && (*text)[lastMinus - 1] != u'E';
    QComplex value;
    if (text->find_first_not_of(u"-.0123456789E") != text->npos || isDifference ||
        !asctoq(std::string(text->begin(), text->end()), value.re)) {
        ClearCalcError();
        return std::nullopt;
    }
    ClearCalcError();
    return value;
}

}  // namespace

std::u16string AllDigitsOf(const QComplex& value, std::u16string_view numberLocale) {
    const char16_t decimal = SignsOf(numberLocale).decimal == u'.' ? u'.' : u',';
    if (value.im.IsZero()) {
        return AllDigitsOf(value.re, decimal);
    }
    std::u16string text;
    if (!value.re.IsZero()) {
        text = AllDigitsOf(value.re, decimal);
        if (!value.im.IsNegative()) {
            text += u'+';
        }
    }
    return text + AllDigitsOf(value.im, decimal) + u'i';
}

void CopyLine(const ExpressionEditor& editor, Clipboard& clipboard) {
    CopiedLine& copied = LastCopiedLine();
    copied.onClipboard = ForOtherPrograms(editor.GetLine());
    copied.tokens = {editor.GetLine(), editor.GetTokenLengths()};
    copied.base = editor.GetBase();
    copied.numberLocale = editor.Settings().numberLocale;
    clipboard.PutText(copied.onClipboard);
}

void CutLine(ExpressionEditor& editor, Clipboard& clipboard) {
    CopyLine(editor, clipboard);
    editor.EraseLine();
}

bool PasteLine(ExpressionEditor& editor, Clipboard& clipboard) {
    if (!editor.TakesEdits()) {
        return false;
    }
    const std::u16string text = clipboard.GetText();
    const CopiedLine& copied = LastCopiedLine();
    const std::u16string& locale = editor.Settings().numberLocale;
    const bool isOurs =
        text == copied.onClipboard && copied.base == editor.GetBase() && copied.numberLocale == locale;
    const TokenText tokens = isOurs ? copied.tokens : TranslatePaste(text, locale, RadixOf(editor.GetBase()));
    if (tokens.text.empty()) {
        return false;
    }
    editor.InsertTokens(tokens.text, tokens.lengths);
    return true;
}

bool HasResult(const CLedDisplay& display) {
    return display.ResultIsValue() && !display.GetResultText().empty();
}

void CopyShortcut(const CLedDisplay& display, Clipboard& clipboard, bool alwaysLine) {
    if (!alwaysLine && display.ShowsEquals() && HasResult(display)) {
        CopyResult(display, clipboard);
    } else if (!display.GetLine().empty()) {
        CopyLine(display, clipboard);
    }
}

bool PasteShortcut(CLedDisplay& display, Clipboard& clipboard) {
    if (display.Settings().IsStringMode()) {
        return PasteLine(display, clipboard);
    }
    const auto number = NumberOf(display, clipboard);
    if (number) {
        display.EnterValue(*number);
    }
    return number.has_value();
}

void CopyResult(const CLedDisplay& display, Clipboard& clipboard) {
    const std::u16string text = ForOtherPrograms(display.GetResultText());
    const std::size_t blank = text.find(u' ');
    if (HasResult(display) && blank != text.npos && text.find(u'/') != text.npos) {
        // "-3 16/113": pasted back it is the number, whatever "3 16" looks like elsewhere.
        const std::size_t sign = text.front() == u'-' ? 1 : 0;
        const std::u16string sum = text.substr(0, sign) + u'(' + text.substr(sign, blank - sign) + u'+' +
                                   text.substr(blank + 1) + u')';
        const std::u16string& locale = display.Settings().numberLocale;
        LastCopiedLine() = {text, TranslatePaste(sum, locale, RadixOf(display.GetBase())), display.GetBase(),
                            locale};
    }
    clipboard.PutText(text);
}

void CopyAllDigits(const CLedDisplay& display, Clipboard& clipboard) {
    if (display.GetBase() == RADIX_DEC) {
        clipboard.PutText(AllDigitsOf(display.ShownValue(), display.Settings().numberLocale));
    } else {
        CopyResult(display, clipboard);  // Whole numbers of a word size are shown in full.
    }
}

void CopyTex(const CLedDisplay& display, Clipboard& clipboard, const TexConverter& toTex) {
    std::u16string text;
    if (toTex && display.EngineText(text)) {
        const std::string tex = toTex(text);
        clipboard.PutText(std::u16string(tex.begin(), tex.end()));
    }
}

}  // namespace quorix

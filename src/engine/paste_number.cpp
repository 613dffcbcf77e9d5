#include "engine/paste_number.h"

#include <string_view>

#include "engine/calc_context.h"
#include "engine/format_value.h"
#include "engine/identifiers.h"
#include "numerics/qcore.h"

namespace quorix {

namespace {

constexpr int kPastedDigits = 32;

void AppendWithoutBlanks(std::u16string& out, std::string_view narrow) {
    for (const char c : narrow) {
        if (c != ' ') {
            out += static_cast<char16_t>(c);
        }
    }
}

/// "((mantissa)*10^(exponent))".
std::u16string Scientific(const QReal& value, int digits) {
    const std::string text = qtoasc(value, digits);
    const std::size_t exponent = text.find('E');
    std::u16string pasted = u"((";
    AppendWithoutBlanks(pasted, std::string_view(text).substr(0, exponent));
    pasted += u")*10^(";
    AppendWithoutBlanks(pasted, std::string_view(text).substr(exponent + 1));
    return pasted + u"))";
}

std::int32_t RadixIdOf(int radix) {
    return radix == 2 ? RADIX_BIN : radix == 8 ? RADIX_OCT : RADIX_HEX;
}

bool IsBelowPlainLimit(const QReal& value) {
    QReal magnitude = value;
    qabs(magnitude);
    QReal limit;
    etoq(1e60, limit);
    return qcmp(magnitude, limit) < 0;
}

}  // namespace

std::u16string PastedNumber(const QReal& value, int radix) {
    if (radix == 10) {
        return Scientific(value, kPastedDigits);
    }
    FormatSettings settings;
    settings.radixId = RadixIdOf(radix);
    const int bits = calcContext().wordSize;
    settings.wordId = bits == 8 ? WORD_8 : bits == 16 ? WORD_16 : WORD_32;
    settings.digits = kPastedDigits;
    const FormattedValue text = FormatValue(value, settings);
    return text.mantissa + text.exponent;
}

std::u16string PastedTermValue(const QReal& value) {
    if (!IsBelowPlainLimit(value)) {
        return Scientific(value, kTermDigits);  // positional text has no room for it
    }
    std::u16string pasted = u"(";
    AppendWithoutBlanks(pasted, qtoplain(value, kTermDigits));
    return pasted + u")";
}

}  // namespace quorix

#include "frontends/memory_text.h"

#include <algorithm>
#include <string>

#include "engine/calc_context.h"
#include "engine/evaluate.h"
#include "engine/format_value.h"
#include "engine/identifiers.h"
#include "engine/number_locale.h"
#include "engine/text_fold.h"
#include "frontends/engine_text.h"
#include "numerics/constants.h"
#include "numerics/qcore.h"

namespace quorix {

namespace {

/// "1.5e-12" becomes "1.5exp(-12)": the parenthesis closes right behind the digits.
std::u16string WithExponentOperator(std::u16string_view text) {
    std::u16string out;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != u'e') {
            out += text[i];
            continue;
        }
        out += u"exp";
        if (i + 1 == text.size()) {
            break;
        }
        if (text[i + 1] == u'+') {
            ++i;
        } else if (text[i + 1] == u'-') {
            out += u"(-";
            i += 2;
            while (i < text.size() && IsDigit(text[i])) {
                out += text[i++];
            }
            out += u')';
            --i;
        }
    }
    return out;
}

std::u16string FullDigits(const QReal& part) {
    const FormattedValue shown = FormatValue(part, FormatSettings{});
    std::u16string text = shown.mantissa + shown.exponent;
    std::erase(text, u' ');
    std::replace(text.begin(), text.end(), u'E', u'e');
    return WithExponentOperator(text);
}

/// "1.5exp(-12)" as decimal text "1.5E-12"; empty when the memory is no real number alone.
std::string PlainDecimal(std::u16string_view memory) {
    std::u16string text(memory);
    ReplaceAll(text, u"exp(", u"E");
    ReplaceAll(text, u"exp", u"E");
    std::erase(text, u')');
    const bool plain = text.find_first_not_of(u"0123456789.-E") == std::u16string::npos;
    return plain ? std::string(text.begin(), text.end()) : std::string();
}

}  // namespace

std::u16string MemoryTextOf(std::u16string_view shown, std::u16string_view numberLocale,
                            std::int32_t radixId) {
    std::u16string text(shown);
    std::erase(text, u' ');
    if (radixId == RADIX_HEX) {
        return text;
    }
    const NumberSigns signs = SignsOf(numberLocale);
    std::erase(text, signs.thousands);
    std::replace(text.begin(), text.end(), signs.decimal, u'.');
    std::replace(text.begin(), text.end(), u'E', u'e');
    return WithExponentOperator(text);
}

std::u16string MemoryTextOfComplex(const QComplex& value) {
    std::u16string text = u"(";
    if (!value.re.IsZero()) {
        text += FullDigits(value.re);
        if (!value.im.IsNegative()) {
            text += u'+';
        }
    }
    text += FullDigits(value.im);
    return text + u"i)";
}

QComplex MemoryValue(std::u16string_view memory, std::int32_t radixId) {
    if (memory.empty()) {
        return {};
    }
    if (radixId == RADIX_DEC) {
        // The usual case needs no evaluation.
        if (const std::string decimal = PlainDecimal(memory); !decimal.empty()) {
            QComplex value;
            asctoq(decimal, value.re);
            ClearCalcError();
            return value;
        }
    }
    const int radix = RadixOf(radixId);
    const auto text = ToEngineText(memory, u"English (US)", radix);
    ClearCalcError();
    QComplex value;
    if (text) {
        value = EvaluateExpression(*text, EvaluationMode::number, radix).number;
    }
    if (calcContext().calcError != 0) {
        value = {};
    }
    ClearCalcError();
    return value;
}

}  // namespace quorix

#include "engine/result_text.h"

#include "engine/calc_context.h"
#include "engine/error_table.h"
#include "engine/format_fraction.h"
#include "engine/number_locale.h"
#include "numerics/constants.h"
#include "numerics/qcore.h"

namespace quorix {
namespace {

constexpr int kUnusedFixedDecimals = 4;

FormattedValue Format(const QReal& value, std::int32_t formatId, int digits, const ResultSettings& settings) {
    FormatSettings conversion;
    conversion.radixId = settings.radixId;
    conversion.wordId = settings.wordId;
    conversion.formatId = formatId;
    conversion.digits = digits;
    conversion.fixedDecimals = formatId == FORMAT_FIX ? settings.fixDigits : kUnusedFixedDecimals;
    return FormatValue(value, conversion);
}

// Separators belong to the mantissa alone.
std::u16string Join(FormattedValue formatted, const ResultSettings& settings) {
    ApplySeparators(formatted.mantissa, settings.numberLocale, settings.radixId);
    return formatted.mantissa + formatted.exponent;
}

std::u16string ComplexPart(const QReal& part, const ResultSettings& settings) {
    return Join(Format(part, FORMAT_SCI, kComplexDigits, settings), settings);
}

// A purely imaginary number shows no real part, and an imaginary part of exactly 1 no digits.
std::u16string ComplexText(const QComplex& number, const ResultSettings& settings) {
    std::u16string text;
    if (!number.re.IsZero()) {
        text = ComplexPart(number.re, settings);
        if (!number.im.IsNegative()) text.push_back(u'+');
    }
    if (qcmp(number.im, constants::kOne) != 0) text += ComplexPart(number.im, settings);
    text.push_back(u'i');
    return text;
}

ResultText RealText(const QReal& value, const ResultSettings& settings) {
    const bool isFraction = settings.formatId == FORMAT_FRAC;
    const std::int32_t formatId = isFraction ? std::int32_t{FORMAT_NORM} : settings.formatId;
    FormattedValue formatted = Format(value, formatId, settings.digits, settings);
    if (!formatted.exponent.empty()) return {Join(std::move(formatted), settings), FORMAT_SCI};
    if (isFraction) {
        return {FormatFraction(qtoe(value), FractionDenominatorLimit(settings.fractionLimit)), FORMAT_FRAC};
    }
    return {Join(std::move(formatted), settings), settings.formatId};
}

}  // namespace

ResultText ComposeResult(const CalcValue& value, const ResultSettings& settings) {
    const std::int32_t error = calcContext().calcError;
    if (error != 0) return {std::u16string(ErrorMessageFor(error)), settings.formatId};
    if (value.kind == KIND_MATRIX) return {{}, settings.formatId};
    if (RadixOf(settings.radixId) != 10) {
        return {Join(Format(value.number.re, FORMAT_NORM, settings.digits, settings), settings),
                settings.formatId};
    }
    if (value.kind == KIND_COMPLEX) return {ComplexText(value.number, settings), FORMAT_SCI};
    return RealText(value.number.re, settings);
}

}  // namespace quorix

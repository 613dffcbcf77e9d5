#include "reference/formula_sheet.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "engine/calc_context.h"
#include "engine/error_table.h"
#include "engine/evaluate.h"
#include "engine/format_value.h"
#include "engine/identifiers.h"
#include "engine/text_fold.h"
#include "numerics/qcore.h"
#include "platform/trim.h"
#include "platform/utf8.h"

namespace quorix {

namespace {

constexpr std::u16string_view kKeepOneEmpty =
    u"Keep only the edit field you want to calculate empty.\nOnly * parameter is supported.";
constexpr std::u16string_view kInvalidParameters = u"Invalid parameter(s)!";
constexpr std::u16string_view kUnknownError = u"Unknown error!";
constexpr std::int32_t kLowestErrorCode = -57;
constexpr double kLargestImaginaryPart = 1e-16;
constexpr int kShownDigits = 12;

constexpr std::string_view kDegreeMarks[] = {"^o", "^0"};

bool IsBlank(std::u16string_view text) {
    return Trimmed(text).empty();
}

/// Part of a word: symbols may have primes and letters beyond ASCII.
constexpr bool IsSymbolCharacter(char16_t c) {
    return IsDigit(c) || (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z') || c == u'_' || c == u'\'' ||
           c >= 0x80;
}

/// The degree mark may stand in any of the texts that tell symbol and unit.
bool IsAngleInDegrees(const FormulaParameter& parameter) {
    const auto isMark = [&](std::string_view mark) {
        return parameter.symbol == mark || parameter.unit == mark || parameter.label == mark;
    };
    return std::any_of(std::begin(kDegreeMarks), std::end(kDegreeMarks), isMark);
}

/// Length of the longest symbol that stands at the start of `text` as a whole word, and its index.
struct SymbolMatch {
    std::size_t index = 0;
    std::size_t length = 0;
};

SymbolMatch LongestSymbol(std::u16string_view text, std::span<const std::u16string> symbols) {
    SymbolMatch best;
    for (std::size_t k = 0; k < symbols.size(); ++k) {
        const std::u16string& symbol = symbols[k];
        if (symbol.size() <= best.length || !text.starts_with(symbol)) {
            continue;
        }
        const char16_t next = symbol.size() < text.size() ? text[symbol.size()] : u' ';
        const bool endsInWord = IsSymbolCharacter(symbol.back());
        // The expression language has no implied product: a word in front of "(" is a function.
        if (!endsInWord || (!IsSymbolCharacter(next) && next != u'(')) {
            best = {k, symbol.size()};
        }
    }
    return best;
}

/// Length of the number or word at the start of `text`; at least 1.
std::size_t SkippedLength(std::u16string_view text) {
    const auto belongs = IsDigit(text.front()) ? [](char16_t c) { return IsDigit(c) || c == u'.'; }
                                               : [](char16_t c) { return IsSymbolCharacter(c); };
    const auto end = std::find_if_not(text.begin(), text.end(), belongs);
    return std::max<std::size_t>(static_cast<std::size_t>(end - text.begin()), 1);
}

/// Keeps unit and error of the engine for the caller.
class ContextGuard {
  public:
    ContextGuard() : angleUnit_(calcContext().angleUnit), error_(calcContext().calcError) {}
    ~ContextGuard() {
        ClearCalcError();
        calcContext().angleUnit = angleUnit_;
        calcContext().calcError = error_;
    }
    ContextGuard(const ContextGuard&) = delete;
    ContextGuard& operator=(const ContextGuard&) = delete;

  private:
    std::int32_t angleUnit_;
    std::int32_t error_;
};

std::u16string MessageOf(std::int32_t code) {
    return std::u16string(code >= kLowestErrorCode && code < 0 ? ErrorMessageFor(code) : kUnknownError);
}

bool IsRealEnough(const CalcValue& value) {
    return value.kind == KIND_REAL ||
           (value.kind == KIND_COMPLEX && std::abs(qtoe(value.number.im)) < kLargestImaginaryPart);
}

std::u16string ShownText(const QReal& value) {
    FormatSettings settings;
    settings.formatId = FORMAT_NORM;
    settings.digits = kShownDigits;
    const FormattedValue formatted = FormatValue(value, settings);
    return ExponentAsPower(formatted.mantissa + formatted.exponent);
}

}  // namespace

std::u16string ExponentAsPower(std::u16string_view number) {
    const std::u16string_view trimmed = Trimmed(number);
    const std::size_t mark = trimmed.find_first_of(u"Ee");
    if (mark == trimmed.npos || mark == 0 || mark + 1 == trimmed.size()) {
        return std::u16string(number);
    }
    std::u16string_view mantissa = trimmed.substr(0, mark);
    std::u16string_view exponent = trimmed.substr(mark + 1);
    const auto isDigits = [](std::u16string_view text) {
        return !text.empty() && std::all_of(text.begin(), text.end(), [](char16_t c) { return IsDigit(c); });
    };
    if (exponent.starts_with(u'+')) {
        exponent.remove_prefix(1);
    }
    const std::u16string_view exponentDigits = exponent.substr(exponent.starts_with(u'-') ? 1 : 0);
    std::u16string mantissaDigits(mantissa.substr(mantissa.starts_with(u'-') ? 1 : 0));
    if (const std::size_t point = mantissaDigits.find(u'.'); point != mantissaDigits.npos) {
        mantissaDigits.erase(point, 1);
    }
    if (!isDigits(exponentDigits) || !isDigits(mantissaDigits)) {
        return std::u16string(number);
    }
    return std::u16string(mantissa).append(u"*10^(").append(exponent).append(u")");
}

std::u16string SubstituteSymbols(std::u16string_view form, std::span<const std::u16string> symbols,
                                 std::span<const std::u16string> values) {
    std::u16string text;
    while (!form.empty()) {
        if (const SymbolMatch match = LongestSymbol(form, symbols); match.length > 0) {
            // The language has no implied product and would take "2(3)" for 2.
            const bool followsValue = !text.empty() && (IsDigit(text.back()) || text.back() == u')');
            text.append(followsValue ? u"*(" : u"(").append(values[match.index]).append(u")");
            form.remove_prefix(match.length);
            continue;
        }
        const std::size_t length = SkippedLength(form);
        text.append(form.substr(0, length));
        form.remove_prefix(length);
    }
    return text;
}

FormulaSheet::FormulaSheet(FormulaDetail detail)
    : detail_(std::move(detail)), fields_(detail_.parameters.size()) {
    mayChooseAngleUnit_ =
        std::none_of(detail_.parameters.begin(), detail_.parameters.end(), IsAngleInDegrees);
    Reset();
}

bool FormulaSheet::HasSolvedForm(std::size_t k) const {
    return k < detail_.solvedForms.size() && !IsBlank(FromUtf8OrLatin1(detail_.solvedForms[k]));
}

void FormulaSheet::Reset() {
    for (std::size_t k = 0; k < fields_.size(); ++k) {
        fields_[k] = FromUtf8OrLatin1(detail_.parameters[k].preset);
    }
}

std::u16string FormulaSheet::FilledForm(std::size_t k) const {
    std::vector<std::u16string> symbols;
    std::vector<std::u16string> values;
    for (std::size_t i = 0; i < fields_.size(); ++i) {
        if (i != k) {
            symbols.emplace_back(Trimmed(FromUtf8OrLatin1(detail_.parameters[i].symbol)));
            values.push_back(ExponentAsPower(fields_[i]));
        }
    }
    return SubstituteSymbols(FromUtf8OrLatin1(detail_.solvedForms[k]), symbols, values);
}

FormulaOutcome FormulaSheet::Calculate(std::int32_t angleUnit) {
    const auto empty = std::find_if(fields_.begin(), fields_.end(), IsBlank);
    const auto k = static_cast<std::size_t>(empty - fields_.begin());
    if (std::count_if(fields_.begin(), fields_.end(), IsBlank) != 1 || !HasSolvedForm(k)) {
        return {false, 0, std::u16string(kKeepOneEmpty)};
    }
    const std::u16string text = FilledForm(k);
    const ContextGuard guard;
    ClearCalcError();
    SetAngleUnit(mayChooseAngleUnit_ ? angleUnit : UNIT_DEGREES);
    const CalcValue value = EvaluateExpression(text, EvaluationMode::number, RadixOf(RADIX_DEC));
    if (calcContext().calcError != 0) {
        return {false, k, MessageOf(calcContext().calcError)};
    }
    if (!IsRealEnough(value)) {
        return {false, k, std::u16string(kInvalidParameters)};
    }
    fields_[k] = ShownText(value.number.re);
    return {true, k, {}};
}

}  // namespace quorix

#include "matrix/matrix_literal.h"

#include <algorithm>
#include <charconv>
#include <cmath>

#include "engine/number_grammar.h"
#include "engine/text_fold.h"
#include "platform/trim.h"
#include "platform/utf8.h"

namespace quorix {
namespace {

constexpr char16_t kMinusSign = u'\u2212';

bool IsBlank(char16_t c) {
    return c == u' ' || c == u'\t';
}

// The number in the engine's grammar, which knows neither leading points nor other signs.
std::u16string NumberText(std::u16string_view element, char16_t decimalSign) {
    std::u16string text;
    if (element.starts_with(kMinusSign)) {
        text.push_back(u'-');
        element.remove_prefix(1);
    } else if (element.starts_with(u'-') || element.starts_with(u'+')) {
        text.push_back(element.front());
        element.remove_prefix(1);
    }
    if (element.starts_with(decimalSign)) text.push_back(u'0');
    for (const char16_t c : element) {
        // A point that is no decimal sign is no part of a number.
        text.push_back(c == decimalSign ? u'.' : c == u'.' ? u'?' : c == kMinusSign ? u'-' : c);
    }
    return text;
}

// Takes elements row by row.
class Reader {
  public:
    Reader(std::u16string_view text, char16_t decimalSign) : rest_(text), decimalSign_(decimalSign) {}

    // The elements up to the next ";" or the end. False when one is no number.
    bool TakeRow(std::vector<double>& elements) {
        const std::size_t end = rest_.find(u';');
        std::u16string_view row = rest_.substr(0, end);
        hasMore_ = end != std::u16string_view::npos;
        rest_.remove_prefix(hasMore_ ? end + 1 : rest_.size());
        for (row = Trimmed(row); !row.empty(); row = Trimmed(row)) {
            const auto length = static_cast<std::size_t>(std::ranges::find_if(row, IsBlank) - row.begin());
            if (!TakeElement(row.substr(0, length), elements)) return false;
            row.remove_prefix(length);
        }
        return true;
    }
    [[nodiscard]] bool HasMore() const { return hasMore_; }
    [[nodiscard]] const std::string& Error() const { return error_; }

  private:
    bool TakeElement(std::u16string_view element, std::vector<double>& elements) {
        const std::u16string number = NumberText(element, decimalSign_);
        if (!IsNumber(number)) {
            SetError(element, " is no number");
            return false;
        }
        elements.push_back(NumberToDouble(number));
        if (!std::isfinite(elements.back())) SetError(element, " is too large");
        return error_.empty();
    }

    void SetError(std::u16string_view element, std::string_view what) {
        error_.assign("\"").append(ToUtf8(element)).append("\"").append(what);
    }

    std::u16string_view rest_;
    char16_t decimalSign_;
    bool hasMore_ = true;
    std::string error_;
};

std::u16string_view WithoutBrackets(std::u16string_view text) {
    text = Trimmed(text);
    return text.size() >= 2 && text.front() == u'[' && text.back() == u']' ? text.substr(1, text.size() - 2)
                                                                           : text;
}

ParsedMatrix Failed(std::string error) {
    return {{}, std::move(error)};
}

}  // namespace

bool IsMatrixLiteral(std::u16string_view text) {
    text = Trimmed(text);
    if (!text.starts_with(u'[')) return false;
    const std::u16string_view inner = Trimmed(text.substr(1));
    return inner.empty() || !IsAsciiLetter(inner.front());
}

ParsedMatrix ParseMatrixLiteral(std::u16string_view text, char16_t decimalSign) {
    if (!Trimmed(text).ends_with(u']')) return Failed("A matrix ends in \"]\"");
    Reader reader(WithoutBrackets(text), decimalSign);
    ParsedMatrix parsed;
    CalcValue& matrix = parsed.value;
    std::size_t rows = 0;
    std::size_t cols = 0;
    for (; reader.HasMore(); ++rows) {
        const std::size_t before = matrix.data.size();
        if (!reader.TakeRow(matrix.data)) return Failed(reader.Error());
        const std::size_t length = matrix.data.size() - before;
        if (rows == 0) cols = length;
        if (length != cols) return Failed("The rows of a matrix must have one length");
    }
    if (cols == 0 || cols > kLongestMatrixSide || rows > kLongestMatrixSide) {
        return Failed("A matrix has 1 to " + std::to_string(kLongestMatrixSide) + " rows and columns");
    }
    matrix.kind = KIND_MATRIX;
    matrix.rows = static_cast<std::uint16_t>(rows);
    matrix.cols = static_cast<std::uint16_t>(cols);
    return parsed;
}

ParsedMatrix ParseList(std::u16string_view text, char16_t decimalSign) {
    constexpr std::size_t kLongestList = 65535;
    Reader reader(WithoutBrackets(text), decimalSign);
    ParsedMatrix parsed;
    CalcValue& list = parsed.value;
    while (reader.HasMore()) {
        if (!reader.TakeRow(list.data)) return Failed(reader.Error());
    }
    if (list.data.empty() || list.data.size() > kLongestList) {
        return Failed("A list holds 1 to " + std::to_string(kLongestList) + " numbers");
    }
    list.kind = KIND_MATRIX;
    list.rows = static_cast<std::uint16_t>(list.data.size());
    list.cols = 1;
    return parsed;
}

std::string MatrixText(const CalcValue& matrix, char16_t decimalSign) {
    std::string text = "[";
    for (std::size_t i = 0; i < matrix.data.size(); ++i) {
        if (i > 0) text.push_back(i % matrix.cols == 0 ? ';' : ' ');
        char digits[32];
        const double element = matrix.data[i] + 0.0;  // A zero has no sign.
        const auto written = std::to_chars(std::begin(digits), std::end(digits), element);
        if (decimalSign == u',') std::replace(std::begin(digits), written.ptr, '.', ',');
        text.append(std::begin(digits), written.ptr);
    }
    text.push_back(']');
    return text;
}

}  // namespace quorix

#include "matrix/data_text.h"

#include <algorithm>
#include <charconv>
#include <limits>

#include "matrix/fixed_text.h"

namespace quorix {
namespace {

constexpr std::string_view kBlanks = " \t\r\n";

void SkipBlanks(std::string_view& text) {
    text.remove_prefix(std::min(text.find_first_not_of(kBlanks), text.size()));
}

// Numbers in the form of the files, and whatever else reads as a decimal number.
bool ReadNumber(std::string_view word, double& value) {
    if (word.starts_with('+') && !word.starts_with("+-")) word.remove_prefix(1);
    const auto parsed = std::from_chars(word.data(), word.data() + word.size(), value);
    if (parsed.ec == std::errc() && parsed.ptr == word.data() + word.size()) return true;
    value = 0.0;
    return false;
}

}  // namespace

std::optional<std::int32_t> DataText::TakeInteger() {
    SkipBlanks(rest_);
    std::string_view digits = rest_;
    if (digits.starts_with('+')) digits.remove_prefix(1);
    if (digits.starts_with('-') && digits.size() < rest_.size()) return std::nullopt;
    std::int32_t value = 0;
    const auto parsed = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    if (parsed.ec == std::errc::invalid_argument) return std::nullopt;
    if (parsed.ec == std::errc::result_out_of_range) {
        value = digits.front() == '-' ? std::numeric_limits<std::int32_t>::min()
                                      : std::numeric_limits<std::int32_t>::max();
    }
    rest_.remove_prefix(static_cast<std::size_t>(parsed.ptr - rest_.data()));
    return value;
}

void DataText::SkipLine() {
    const std::size_t end = rest_.find('\n');
    rest_.remove_prefix(end == std::string_view::npos ? rest_.size() : end + 1);
}

std::optional<DataText::Line> DataText::TakeLine(std::size_t longest) {
    if (rest_.empty()) return std::nullopt;
    Line line{rest_.substr(0, rest_.find_first_of("\r\n"))};
    SkipLine();
    if (line.text.size() > longest) {
        const std::size_t wordEnd = line.text.find_last_of(kBlanks, longest);
        line = {line.text.substr(0, wordEnd == std::string_view::npos ? 0 : wordEnd), true};
    }
    return line;
}

bool ReadNumbers(std::string_view line, std::span<double> values) {
    bool isGood = true;
    std::ranges::fill(values, 0.0);
    for (double& value : values) {
        SkipBlanks(line);
        if (line.empty()) break;
        const std::size_t end = std::min(line.find_first_of(kBlanks), line.size());
        isGood = ReadNumber(line.substr(0, end), value) && isGood;
        line.remove_prefix(end);
    }
    return isGood;
}

void AppendNumbers(std::string& text, std::span<const double> values) {
    for (const double value : values) text.append(CellText(value)).push_back(' ');
    text += "\r\n";
}

}  // namespace quorix

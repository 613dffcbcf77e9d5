#include "reference/data_line.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "platform/utf8.h"

namespace quorix {

namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
constexpr std::size_t kLongestNumber = 100;

// The bits of FieldSeparators.
constexpr std::array<std::uint8_t, 256> kSeparatorBits = [] {
    std::array<std::uint8_t, 256> bits{};
    for (const char blank : {' ', '\t', '\n', '\v', '\f', '\r'}) {
        bits[static_cast<unsigned char>(blank)] = 1;
    }
    bits[':'] = 2;
    bits['#'] = 4;
    return bits;
}();

bool Separates(char c, std::uint8_t mask) {
    return (kSeparatorBits[static_cast<unsigned char>(c)] & mask) != 0;
}

}  // namespace

DataLines::DataLines(std::string_view text, std::size_t longest) : rest_(text), longest_(longest) {
    if (rest_.starts_with(kByteOrderMark)) {
        rest_.remove_prefix(kByteOrderMark.size());
    }
}

bool DataLines::Next(DataLine& line) {
    if (rest_.empty()) {
        return false;
    }
    const std::size_t end = std::min(rest_.find('\n'), rest_.size());
    std::size_t length = end;
    if (length > 0 && rest_[length - 1] == '\r') {
        --length;
    }
    line.text = rest_.substr(0, std::min(length, longest_));
    line.damaged = length > longest_ || line.text.find('\0') != line.text.npos;
    line.number = ++number_;
    rest_.remove_prefix(std::min(end + 1, rest_.size()));
    return true;
}

FieldCutter::FieldCutter(std::string_view line, FieldSeparators separators)
    : rest_(line), mask_(static_cast<std::uint8_t>(separators)) {
    while (!rest_.empty() && Separates(rest_.front(), mask_)) {
        rest_.remove_prefix(1);
    }
}

std::string_view FieldCutter::Next() {
    std::size_t end = 0;
    while (end < rest_.size() && !Separates(rest_[end], mask_)) {
        ++end;
    }
    const std::string_view field = rest_.substr(0, end);
    while (end < rest_.size() && Separates(rest_[end], mask_)) {
        ++end;
    }
    rest_.remove_prefix(end);
    return field;
}

std::u16string WidenField(std::string_view field) {
    const auto isAscii = [](char c) { return static_cast<unsigned char>(c) < 0x80; };
    if (std::all_of(field.begin(), field.end(), isAscii)) {
        return std::u16string(field.begin(), field.end());
    }
    return FromUtf8OrLatin1(field);
}

std::u16string NameOfField(std::string_view field) {
    std::u16string name = WidenField(field);
    std::replace(name.begin(), name.end(), u'_', u' ');
    return name;
}

std::optional<double> NumberOfField(std::string_view field) {
    field = field.substr(0, kLongestNumber);
    if (field.starts_with('+')) {
        field.remove_prefix(1);
    }
    // Words such as "inf" are numbers to the library but not in a data file.
    const std::size_t first = field.starts_with('-') ? 1 : 0;
    if (first == field.size() || (field[first] != '.' && (field[first] < '0' || field[first] > '9'))) {
        return std::nullopt;
    }
    double value = 0;
    const auto [end, error] = std::from_chars(field.data(), field.data() + field.size(), value);
    if (error != std::errc{} || end != field.data() + field.size()) {
        return std::nullopt;
    }
    return value;
}

}  // namespace quorix

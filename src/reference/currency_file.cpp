#include "reference/currency_file.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <fstream>
#include <system_error>

#include "platform/files.h"
#include "platform/utf8.h"

namespace quorix {

namespace {

constexpr std::size_t kLongestFirstLine = 255;
constexpr std::u16string_view kBaseSymbol = u"USD";
constexpr std::string_view kDateMark = "#Date: ";
constexpr std::size_t kLongestDate = 11;
constexpr int kFactorDecimals = 11;
/// Decimals with which the smallest factors still have digits.
constexpr int kMostDecimals = 60;

std::string FieldOfName(std::u16string_view name) {
    std::u16string field(name);
    std::replace(field.begin(), field.end(), u' ', u'_');
    return ToUtf8(field);
}

std::string FixedText(double value, int decimals) {
    char text[400];
    const auto end = std::to_chars(text, text + sizeof text, value, std::chars_format::fixed, decimals).ptr;
    return {text, end};
}

// Eleven decimals; more only where they would leave nothing of a factor.
std::string FactorText(double factor) {
    for (int decimals = kFactorDecimals; decimals <= kMostDecimals; decimals += kFactorDecimals) {
        std::string text = FixedText(factor, decimals);
        if (factor == 0 || text.find_first_of("123456789") != text.npos) {
            return text;
        }
    }
    return FixedText(factor, kFactorDecimals);
}

// A name that would make the line too long to be read back loses its end.
std::string RowText(const UnitRecord& record) {
    if (record.symbol == kBaseSymbol) {
        return "\tUSD\tUSD\t!\n";
    }
    const std::string rest =
        "\t" + FieldOfName(record.symbol) + "\t" + FactorText(record.factor) + "\t0\tUSD\n";
    std::u16string name = record.name;
    while (1 + FieldOfName(name).size() + rest.size() > kLongestTableLine + 1 && !name.empty()) {
        name.pop_back();
    }
    return "\t" + FieldOfName(name) + rest;
}

void TrimRight(std::u16string& text) {
    while (!text.empty() && (text.back() == u' ' || (text.back() >= u'\t' && text.back() <= u'\r'))) {
        text.pop_back();
    }
}

}  // namespace

std::string ReadFirstLine(const std::filesystem::path& path) {
    std::error_code error;
    std::ifstream stream;
    if (std::filesystem::is_regular_file(path, error)) {
        stream.open(path, std::ios::binary);
    }
    std::string line(kLongestFirstLine, '\0');
    stream.read(line.data(), static_cast<std::streamsize>(line.size()));
    line.resize(static_cast<std::size_t>(std::max<std::streamsize>(stream.gcount(), 0)));
    if (const std::size_t end = line.find('\n'); end != line.npos) {
        line.resize(end + 1);
    }
    return line;
}

bool SaveCurrency(const std::filesystem::path& path, std::span<const UnitRecord> records) {
    std::string text = ReadFirstLine(path) + "\n#Begin:Currency:0\n";
    for (const UnitRecord& record : records) {
        text += RowText(record);
    }
    text += "#End";
    return WriteFileAtomically(path, {reinterpret_cast<const std::uint8_t*>(text.data()), text.size()});
}

std::u16string LocalRateDate(const std::filesystem::path& path) {
    const std::string line = ReadFirstLine(path);
    std::u16string date =
        WidenField(std::string_view(line).substr(std::min(line.find_first_not_of(kDateMark), line.size())));
    TrimRight(date);
    return date;
}

std::u16string RemoteRateDate(std::string_view answer) {
    constexpr std::string_view kWord = "#date";
    const auto lower = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; };
    const bool dated =
        answer.size() >= kWord.size() &&
        std::equal(kWord.begin(), kWord.end(), answer.begin(), [&](char x, char y) { return x == lower(y); });
    const std::size_t colon = answer.find(':');
    if (!dated || colon == answer.npos) {
        return {};
    }
    answer.remove_prefix(colon + 1);
    answer = answer.substr(0, answer.find_first_of(std::string_view("\r\n\0", 3)));
    answer.remove_prefix(std::min(answer.find_first_not_of(" \t\v\f"), answer.size()));
    std::u16string date = WidenField(answer.substr(0, kLongestDate));
    TrimRight(date);
    return date;
}

}  // namespace quorix

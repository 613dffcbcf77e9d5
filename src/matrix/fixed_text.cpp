#include "matrix/fixed_text.h"

#include <charconv>
#include <cmath>
#include <limits>

namespace quorix {
namespace {

constexpr int kCellDecimals = 8;
// Sign, point and some decimals beside the digits of the largest double.
constexpr std::size_t kLongestText = std::numeric_limits<double>::max_exponent10 + 40;

}  // namespace

std::string FixedText(double value, int decimals) {
    std::string text(kLongestText, '\0');
    const auto written =
        std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::fixed, decimals);
    text.resize(static_cast<std::size_t>(written.ptr - text.data()));
    if (text.find_first_not_of("-0.") == std::string::npos && text.front() == '-') text.erase(0, 1);
    return text;
}

std::string CellText(double value) {
    return FixedText(value, value == std::floor(value) ? 0 : kCellDecimals);
}

}  // namespace quorix

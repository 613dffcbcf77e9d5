#include "reference/formula_identifier.h"

#include <algorithm>

namespace quorix {

namespace {

constexpr int kParts = 4;
constexpr FormulaId kPartMask = 0xFF;

constexpr bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

/// Blanks, a sign, digits; what follows is ignored. Wraps, since only the low byte counts.
FormulaId LeadingInteger(std::string_view text) {
    std::size_t at = std::min(text.find_first_not_of(" \t"), text.size());
    const bool negative = at < text.size() && text[at] == '-';
    if (at < text.size() && (text[at] == '-' || text[at] == '+')) {
        ++at;
    }
    FormulaId value = 0;
    for (; at < text.size() && IsDigit(text[at]); ++at) {
        value = value * 10 + static_cast<FormulaId>(text[at] - '0');
    }
    return negative ? 0 - value : value;
}

}  // namespace

FormulaId ParseFormulaId(std::string_view text) {
    FormulaId id = 0;
    for (int part = 0; part < kParts; ++part) {
        const std::size_t dot = std::min(text.find('.'), text.size());
        id = (id << 8) | (LeadingInteger(text.substr(0, dot)) & kPartMask);
        text.remove_prefix(std::min(dot + 1, text.size()));
    }
    return id;
}

std::string FormulaIdText(FormulaId id) {
    std::string text;
    for (; id != 0; id <<= 8) {
        if (!text.empty()) {
            text += '.';
        }
        text += std::to_string(id >> 24);
    }
    return text;
}

FormulaId ParentFormulaId(FormulaId id) {
    for (FormulaId mask = kPartMask; mask != 0; mask <<= 8) {
        if ((id & mask) != 0) {
            return id & ~mask;
        }
    }
    return 0;
}

}  // namespace quorix

#include "tools/date_order.h"

#include <algorithm>
#include <array>
#include <limits>
#include <optional>

#include "tools/number_text.h"

namespace quorix {

namespace {

constexpr char16_t kSlash = u'/';

/// The texts before, between and behind the first two "/".
std::optional<std::array<std::u16string_view, 3>> ThreeParts(std::u16string_view text) {
    const std::size_t first = text.find(kSlash);
    if (first == std::u16string_view::npos) {
        return std::nullopt;
    }
    const std::size_t second = text.find(kSlash, first + 1);
    if (second == std::u16string_view::npos) {
        return std::nullopt;
    }
    return std::array{text.substr(0, first), text.substr(first + 1, second - first - 1),
                      text.substr(second + 1)};
}

std::int32_t ReadPart(std::u16string_view text) {
    using Limits = std::numeric_limits<std::int32_t>;
    return static_cast<std::int32_t>(
        std::clamp<std::int64_t>(ReadInteger(text), Limits::min(), Limits::max()));
}

std::u16string Joined(std::u16string_view a, std::u16string_view b, std::u16string_view c) {
    std::u16string text(a);
    text.push_back(kSlash);
    text += b;
    text.push_back(kSlash);
    text += c;
    return text;
}

}  // namespace

DateOrder DateOrderOf(std::u16string_view numberLocale) {
    return numberLocale == u"European" || numberLocale == u"English (UK)" ? DateOrder::dayFirst
                                                                          : DateOrder::monthFirst;
}

std::u16string DateText(const SolarDate& date, DateOrder order) {
    const bool dayFirst = order == DateOrder::dayFirst;
    return Joined(IntegerText(dayFirst ? date.day : date.month),
                  IntegerText(dayFirst ? date.month : date.day), IntegerText(date.year));
}

SolarDate ReadDateText(std::u16string_view text, DateOrder order) {
    const auto parts = ThreeParts(text);
    if (!parts) {
        return ReadDateText(kUnreadableDate, order);
    }
    const std::int32_t first = ReadPart((*parts)[0]);
    const std::int32_t second = ReadPart((*parts)[1]);
    const bool dayFirst = order == DateOrder::dayFirst;
    return {ReadPart((*parts)[2]), dayFirst ? second : first, dayFirst ? first : second};
}

}  // namespace quorix

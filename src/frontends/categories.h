#pragma once

// The sixteen categories, by the ids that files and tables store.

#include <array>
#include <cstdint>
#include <string_view>

namespace quorix {

enum CategoryId : std::uint8_t {
    CATEGORY_ARITHMETIC = 0,
    CATEGORY_TRIGONOMETRY,
    CATEGORY_BASE_CONVERSION,
    CATEGORY_STATISTICS,
    CATEGORY_MATRIX,
    CATEGORY_FINANCE,
    CATEGORY_TIP,
    CATEGORY_UNIT_CONVERTER,
    CATEGORY_CURRENCY_CONVERTER,
    CATEGORY_CONSTANTS,
    CATEGORY_BIORYTHM,
    CATEGORY_MACROS,
    CATEGORY_EQUATION_SOLVER,
    CATEGORY_FUNCTION_GRAPH,
    CATEGORY_DATE_TIME,
    CATEGORY_FORMULAS,
};

inline constexpr int kCategoryCount = 16;

/// Names as shown, by id. "Biorythm" is the system's own spelling.
inline constexpr std::array<std::u16string_view, kCategoryCount> kCategoryNames = {
    u"Arithmetic", u"Trigonometry",  u"Base conversion", u"Statistics",         u"Matrix",
    u"Finance",    u"Tip",           u"Unit converter",  u"Currency converter", u"Constants",
    u"Biorythm",   u"User's macros", u"Equation solver", u"Function graph",     u"Date - Time",
    u"Formulas",
};

/// Categories above this one always use String mode.
inline constexpr int kLastBasicModeCategory = CATEGORY_BASE_CONVERSION;
/// Categories above this one have no upper key panel.
inline constexpr int kLastPanelCategory = CATEGORY_FINANCE;

/// Whether the display stands above the category's panels or window.
constexpr bool ShowsDisplay(int category) {
    return category <= CATEGORY_FINANCE || category == CATEGORY_CONSTANTS || category == CATEGORY_MACROS;
}

}  // namespace quorix

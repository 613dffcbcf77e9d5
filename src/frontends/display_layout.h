#pragma once

// Where the display shows what, in logical units (multiply by the scale), and in which colour.

#include <array>
#include <cstdint>

#include "platform/geometry.h"

namespace quorix {

/// Parts of the display in the order of kStatusRects.
enum class DisplayPart : std::uint8_t {
    lineNumber,
    shiftMark,
    memoryMark,
    baseMark,
    angleMark,
    formatMark,
    wordSizeMark,
    pendingOperator,
    leftArrow,
    rightArrow,
    textRow,
    equalsMark,
    resultRow,
    resultRowEnd,
    texButton,
    count
};

inline constexpr std::size_t kDisplayPartCount = static_cast<std::size_t>(DisplayPart::count);

/// The TeX button's place is given in device pixels; see TexButtonRect.
inline constexpr std::array<Rect, kDisplayPartCount> kStatusRects = {{
    {3, 2, 18, 12},      // lineNumber
    {16, 2, 55, 12},     // shiftMark
    {162, 2, 180, 12},   // memoryMark
    {53, 2, 78, 12},     // baseMark
    {76, 2, 107, 12},    // angleMark
    {105, 2, 138, 12},   // formatMark
    {138, 2, 162, 12},   // wordSizeMark
    {180, 2, 200, 12},   // pendingOperator
    {3, 12, 18, 32},     // leftArrow
    {217, 12, 231, 32},  // rightArrow
    {16, 12, 219, 32},   // textRow
    {3, 30, 18, 47},     // equalsMark
    {16, 30, 230, 47},   // resultRow
    {208, 30, 231, 47},  // resultRowEnd
    {219, 2, 233, 14},   // texButton
}};

/// A part's rectangle in device pixels.
constexpr Rect DisplayPartRect(DisplayPart part, int scale) {
    const Rect rect = kStatusRects[static_cast<std::size_t>(part)].Scaled(scale);
    if (part != DisplayPart::texButton) {
        return rect;
    }
    const int shift = scale == 2 ? 1 : 0;
    return {rect.left - 2 + shift, 2, rect.right - 2 + shift, rect.bottom + 2};
}

/// Colours as 0xRRGGBB.
using Rgb = std::uint32_t;

namespace display_colors {

inline constexpr Rgb kBackground = 0xF5F5F5;
inline constexpr Rgb kText = 0x000000;
inline constexpr Rgb kShift = 0xFF8000;
inline constexpr Rgb kMemory = 0x0000FF;
inline constexpr Rgb kBase = 0x008000;
inline constexpr Rgb kAngle = 0xFF0080;
inline constexpr Rgb kFormat = 0x8000FF;
inline constexpr Rgb kWordSize = 0xFF0080;
inline constexpr Rgb kPendingOperator = 0xFF0000;
inline constexpr Rgb kArrow = 0x404040;
inline constexpr Rgb kCursor = 0x8000FF;

inline constexpr Rgb kDigitToken = 0x000000;
inline constexpr Rgb kOperatorToken = 0x0000FF;
inline constexpr Rgb kParenthesisToken = 0x008000;
inline constexpr Rgb kSignToken = 0xFF0080;
inline constexpr Rgb kNameToken = 0x800000;
/// Digits and points directly before a root sign.
inline constexpr Rgb kDegreeToken = 0xFF0080;

/// Field of an expression box without the keyboard.
inline constexpr Rgb kResting = 0xD0D0F0;
/// All text of an expression box that is marked.
inline constexpr Rgb kMarkedText = 0x0000FF;

}  // namespace display_colors

/// The twenty colours of an editor, in the order in which they are counted.
enum class DisplayColour : std::uint8_t {
    lineNumber,
    shift,
    memory,
    base,
    angle,
    format,
    wordSize,
    pendingOperator,
    arrow,
    cursor,
    text,
    texButton,
    field,  ///< 12: the ground of the display, and of an expression box with the keyboard.
    digitToken,
    operatorToken,
    parenthesisToken,
    signToken,
    nameToken,
    degreeToken,
    restingField,  ///< 19: the ground of an expression box without the keyboard.
    count
};

inline constexpr std::size_t kDisplayColourCount = static_cast<std::size_t>(DisplayColour::count);
static_assert(kDisplayColourCount == 20);

/// Colours by DisplayColour.
struct DisplayColours : std::array<Rgb, kDisplayColourCount> {
    constexpr Rgb operator[](DisplayColour which) const { return at(static_cast<std::size_t>(which)); }
    constexpr Rgb& operator[](DisplayColour which) { return at(static_cast<std::size_t>(which)); }
};

inline constexpr DisplayColours kDisplayColours = {{{
    display_colors::kText,          display_colors::kShift,
    display_colors::kMemory,        display_colors::kBase,
    display_colors::kAngle,         display_colors::kFormat,
    display_colors::kWordSize,      display_colors::kPendingOperator,
    display_colors::kArrow,         display_colors::kCursor,
    display_colors::kText,          display_colors::kText,
    display_colors::kBackground,    display_colors::kDigitToken,
    display_colors::kOperatorToken, display_colors::kParenthesisToken,
    display_colors::kSignToken,     display_colors::kNameToken,
    display_colors::kDegreeToken,   display_colors::kResting,
}}};

/// Logical units of the text row that tokens may fill, and those kept free for the cursor behind the last
/// one.
inline constexpr int kTextRowWidth = 200;
inline constexpr int kCursorRoom = 10;
/// The first visible token starts this far inside the text row.
inline constexpr int kTextRowInset = 1;

}  // namespace quorix

// The icons as strokes, on a grid of 24 x 24 (categories) or 16 x 16 (tool glyphs).
#pragma once

#include <span>

namespace quorix::art {

enum class Ink { kMain, kAccent };

/// One stroke of an icon. The path knows, in absolute grid units:
///   M x y   L x y   H x   V y   Q cx cy x y   C c1x c1y c2x c2y x y   Z
///   E cx cy rx ry start span   a piece of an ellipse, degrees counter-clockwise from three o'clock
///   O cx cy r                  a filled dot
/// Ends and joins are round. A path with level lines (H, V, E) is moved to the pixel grid and its stroke is
/// whole pixels; a path of slopes and curves alone is drawn as it stands.
struct IconStroke {
    Ink ink;
    double width;
    const char* path;
};

inline constexpr double kLine = 1.7;
inline constexpr double kBold = 2.0;
inline constexpr double kFine = 1.4;  // Small parts; one pixel at scale 1.

inline constexpr IconStroke kArithmeticIcon[] = {
    {Ink::kMain, kLine, "M14.7 4.3 L19.9 9.5 M19.9 4.3 L14.7 9.5"},
    {Ink::kMain, kLine, "M3.4 6.9 H10.2 M6.8 3.5 V10.3"},
    {Ink::kAccent, kLine, "M3.4 17 H10.2 M13.9 17 H20.7 O17.3 13.4 1.3 O17.3 20.6 1.3"},
};
inline constexpr IconStroke kTrigonometryIcon[] = {
    {Ink::kMain, kLine, "M3.4 19.6 L20.4 4.8 V19.6 Z M17 19.6 V16.2 H20.4"},
    {Ink::kAccent, kBold, "M7.9 15.6 Q9.6 17.2 9.7 19.6"},
};
inline constexpr IconStroke kBaseIcon[] = {
    {Ink::kMain, kBold,
     "M3.4 5.8 L6 4 V10.8 M11.6 4 Q14.2 4 14.2 7.4 Q14.2 10.8 11.6 10.8 Q9 10.8 9 7.4 Q9 4 11.6 4 Z"},
    {Ink::kMain, kFine, "M16.8 4.4 Q19.2 4.4 19.2 6.8 V9.6 M16.9 7.9 L19.2 10.2 L21.2 7.9"},
    {Ink::kMain, kFine, "M3.8 13.8 V16 Q3.8 18.2 6 18.2 H8.6 M6.6 15.6 L9.2 18.2 L6.6 20.6"},
    {Ink::kAccent, kFine, "M12.4 20.2 V14.2 H15.2 M12.4 17.2 H14.8 M17.9 20.2 V14.2 H20.7 M17.9 17.2 H20.3"},
};
inline constexpr IconStroke kStatisticsIcon[] = {
    {Ink::kMain, 2.5, "M5.7 12.6 V16.9 M10 8 V16.9 M18.6 11 V16.9"},
    {Ink::kAccent, 2.5, "M14.3 4.4 V16.9"},
    {Ink::kMain, kLine, "M3.4 20.6 H20.6"},
};
inline constexpr IconStroke kMatrixIcon[] = {
    {Ink::kMain, kLine, "M7.2 3.6 H3.8 V20.4 H7.2 M16.8 3.6 H20.2 V20.4 H16.8"},
    {Ink::kMain, kLine, "O12 8.1 1.3 O15.9 8.1 1.3 O8.1 12 1.3 O15.9 12 1.3 O8.1 15.9 1.3 O12 15.9 1.3"},
    {Ink::kAccent, kLine, "O8.1 8.1 1.3 O12 12 1.3 O15.9 15.9 1.3"},
};
inline constexpr IconStroke kFinanceIcon[] = {
    {Ink::kMain, kLine,
     "E9.4 6.8 6 2.8 0 360 M3.4 6.8 V16.4 E9.4 16.4 6 2.8 180 80 M15.4 6.8 V9.4 E9.4 11.6 6 2.8 180 85"},
    {Ink::kAccent, kLine, "E15.8 14 4.8 2.5 0 360 M11 14 V18.4 E15.8 18.4 4.8 2.5 180 180 M20.6 14 V18.4"},
};
inline constexpr IconStroke kTipIcon[] = {
    {Ink::kMain, kLine,
     "M5.4 3.4 L7.6 5.2 L9.8 3.4 L12 5.2 L14.2 3.4 L16.4 5.2 L18.6 3.4 V20.6 L16.4 18.8 L14.2 20.6 L12 18.8 "
     "L9.8 20.6 L7.6 18.8 L5.4 20.6 Z"},
    {Ink::kAccent, kLine, "M9.3 14.8 L14.7 9.2 O9.6 9.4 1.35 O14.4 14.6 1.35"},
};
inline constexpr IconStroke kUnitIcon[] = {
    {Ink::kAccent, kLine, "M4 6.6 H20 M6.6 4 L4 6.6 L6.6 9.2 M17.4 4 L20 6.6 L17.4 9.2"},
    {Ink::kMain, kLine,
     "M5 12.4 H19 Q20.6 12.4 20.6 14 V18.8 Q20.6 20.4 19 20.4 H5 Q3.4 20.4 3.4 18.8 V14 Q3.4 12.4 5 12.4 Z"},
    {Ink::kMain, 1.4, "M6.8 12.4 V15.2 M10.2 12.4 V16.4 M13.8 12.4 V15.2 M17.2 12.4 V16.4"},
};
inline constexpr IconStroke kCurrencyIcon[] = {
    {Ink::kMain, kLine, "E12 12 8.6 8.6 165 -132 M19.8 3.8 V7.6 H16"},
    {Ink::kMain, kLine, "E12 12 8.6 8.6 -15 -132 M4.2 20.2 V16.4 H8"},
    {Ink::kAccent, kLine,
     "M14.5 9.4 Q14.1 7.9 12 7.9 Q9.6 7.9 9.6 9.9 Q9.6 11.4 12 12 Q14.6 12.6 14.6 14.2 Q14.6 16.1 12 16.1 "
     "Q9.8 16.1 "
     "9.4 14.6 M12 6.5 V7.9 M12 16.1 V17.5"},
};
inline constexpr IconStroke kConstantsIcon[] = {
    {Ink::kMain, kBold, "M3.6 8.6 Q4.4 5 7.4 5 H20.6 M9.4 5 Q9.4 14.6 6.2 19.2"},
    {Ink::kAccent, kBold, "M15.2 5 V16.2 Q15.2 19.2 17.9 19.2 Q20 19.2 20.6 17"},
};
inline constexpr IconStroke kBiorythmIcon[] = {
    {Ink::kMain, kBold, "M3.4 12 C4.4 4.6 7.6 4.6 9.2 11 C10.8 19.4 13.4 19.4 15 12 C16.4 5 19.4 5 20.6 12"},
    {Ink::kAccent, kBold, "M3.4 14.8 C5.4 20.8 8.6 20.6 11.2 15.4 C14.2 9 17.4 1.4 20.6 9"},
};
inline constexpr IconStroke kMacrosIcon[] = {
    {Ink::kMain, kLine,
     "M8 3.6 Q5.4 3.6 5.4 6.2 V9.4 Q5.4 11.6 3.4 12 Q5.4 12.4 5.4 14.6 V17.8 Q5.4 20.4 8 20.4"},
    {Ink::kMain, kLine,
     "M16 3.6 Q18.6 3.6 18.6 6.2 V9.4 Q18.6 11.6 20.6 12 Q18.6 12.4 18.6 14.6 V17.8 Q18.6 20.4 16 20.4"},
    {Ink::kAccent, kLine, "M14.9 7.5 Q12.7 6.9 12.3 9.6 L11.3 14.8 Q10.9 17.2 8.7 16.6 M9.7 11.4 H14.1"},
};
inline constexpr IconStroke kSolverIcon[] = {
    {Ink::kMain, 2.2, "M3.6 7.4 L11 16.6 M11 7.4 L3.6 16.6"},
    {Ink::kAccent, 2.2, "M14.6 9.8 H20.4 M14.6 14.2 H20.4"},
};
inline constexpr IconStroke kGraphIcon[] = {
    {Ink::kMain, kLine, "M4.4 3.4 V19.6 H20.6"},
    {Ink::kAccent, kBold,
     "M7 16.4 C10 15.6 9.8 6.4 12.9 6.4 C15.4 6.4 15.4 11.2 17.6 11.2 Q19 11.2 20.4 8.8"},
};
inline constexpr IconStroke kDateIcon[] = {
    {Ink::kMain, kLine,
     "M9.8 20 H5.6 Q3.6 20 3.6 18 V7.2 Q3.6 5.2 5.6 5.2 H16.6 Q18.6 5.2 18.6 7.2 V9.6 H3.6 M7.6 3.4 V6.6 "
     "M14.6 3.4 "
     "V6.6"},
    {Ink::kAccent, 1.5, "E16.2 16.4 4.5 4.5 0 360"},
    {Ink::kAccent, kFine, "M16.2 13.7 V16.5 L17.9 17.6"},
};
inline constexpr IconStroke kFormulasIcon[] = {
    {Ink::kMain, kLine,
     "M12 6.4 Q8.6 4.2 3.6 4.2 V17.8 Q8.6 17.8 12 20 Q15.4 17.8 20.4 17.8 V4.2 Q15.4 4.2 12 6.4 Z M12 6.4 "
     "V20"},
    {Ink::kAccent, kFine, "M14 12.2 H15 L16.2 14.6 L17.6 9 H18.6"},
};

/// In the order of the category ids.
inline constexpr std::span<const IconStroke> kCategoryIcons[] = {
    kArithmeticIcon, kTrigonometryIcon, kBaseIcon,     kStatisticsIcon, kMatrixIcon,   kFinanceIcon,
    kTipIcon,        kUnitIcon,         kCurrencyIcon, kConstantsIcon,  kBiorythmIcon, kMacrosIcon,
    kSolverIcon,     kGraphIcon,        kDateIcon,     kFormulasIcon,
};
static_assert(std::size(kCategoryIcons) == 16, "one icon for each category");

inline constexpr IconStroke kPreferencesGlyph[] = {
    {Ink::kMain, kLine,
     "E8 8 2.2 2.2 0 360 M8 1.9 V3.4 M8 12.6 V14.1 M1.9 8 H3.4 M12.6 8 H14.1 M3.7 3.7 L4.7 4.7 M11.3 11.3 "
     "L12.3 12.3 "
     "M12.3 3.7 L11.3 4.7 M4.7 11.3 L3.7 12.3"},
};
inline constexpr IconStroke kHelpGlyph[] = {
    {Ink::kMain, 1.4, "E8 8 6.1 6.1 0 360"},
    {Ink::kMain, kLine, "M6.1 6.6 Q6.1 4.7 8 4.7 Q9.9 4.7 9.9 6.4 Q9.9 7.4 8.8 8 Q8 8.4 8 9.3 O8 11.4 0.95"},
};
inline constexpr IconStroke kAboutGlyph[] = {
    {Ink::kMain, 1.4, "E8 8 6.1 6.1 0 360"},
    {Ink::kMain, kLine, "M8 7.4 V11.3 O8 4.9 0.95"},
};
inline constexpr IconStroke kExitGlyph[] = {
    {Ink::kMain, kLine, "M6.4 2.6 H2.8 V13.4 H6.4 M6.4 8 H13.4 M10.6 5.2 L13.4 8 L10.6 10.8"},
};
inline constexpr std::span<const IconStroke> kToolGlyphs[] = {kPreferencesGlyph, kHelpGlyph, kAboutGlyph,
                                                              kExitGlyph};

/// Signs of the third key row, on a grid of 24 that lies centred on the label.
inline constexpr IconStroke kDeleteSign[] = {
    {Ink::kMain, kLine, "M9.2 7.3 H17.9 Q18.7 7.3 18.7 8.1 V15.9 Q18.7 16.7 17.9 16.7 H9.2 L5.4 12 Z"},
    {Ink::kMain, 1.5, "M11.4 9.9 L15.6 14.1 M15.6 9.9 L11.4 14.1"},
};
inline constexpr IconStroke kLeftSign[] = {{Ink::kMain, kLine, "M13.7 7.8 L9.5 12 L13.7 16.2"}};
inline constexpr IconStroke kRightSign[] = {{Ink::kMain, kLine, "M10.3 7.8 L14.5 12 L10.3 16.2"}};

}  // namespace quorix::art

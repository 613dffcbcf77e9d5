// Signs on the keys of the category windows, on a grid of 24, and the marks of the graph's modes, on one
// of 16.
#pragma once

#include "icon_paths.h"

namespace quorix::art {

inline constexpr IconStroke kCaret[] = {{Ink::kMain, 1.4, "M9.4 10.7 L12 13.3 L14.6 10.7"}};
inline constexpr IconStroke kUpSign[] = {{Ink::kMain, kLine, "M7.8 14 L12 9.8 L16.2 14"}};
inline constexpr IconStroke kDownSign[] = {{Ink::kMain, kLine, "M7.8 10 L12 14.2 L16.2 10"}};
inline constexpr IconStroke kCrossSign[] = {{Ink::kMain, kLine, "M8.4 8.4 L15.6 15.6 M15.6 8.4 L8.4 15.6"}};
inline constexpr IconStroke kPlusSign[] = {{Ink::kMain, kLine, "M12 6.6 V17.4 M6.6 12 H17.4"}};
inline constexpr IconStroke kSpaceSign[] = {{Ink::kMain, kLine, "M3.6 10.2 V14 H20.4 V10.2"}};
inline constexpr IconStroke kTrashSign[] = {
    {Ink::kMain, kLine,
     "M6 7.4 H18 M9.6 7.4 V5 H14.4 V7.4 M7.4 7.4 V17.4 Q7.4 18.8 8.8 18.8 H15.2 Q16.6 18.8 16.6 17.4 V7.4"},
    {Ink::kMain, kFine, "M10.4 10.6 V15.6 M13.6 10.6 V15.6"},
};
inline constexpr IconStroke kMenuSign[] = {{Ink::kMain, kLine, "M6 7.6 H18 M6 12 H18 M6 16.4 H18"}};
inline constexpr IconStroke kTargetSign[] = {
    {Ink::kMain, kLine, "E12 12 5 5 0 360 M12 4.4 V8.6 M12 15.4 V19.6 M4.4 12 H8.6 M15.4 12 H19.6"},
};
inline constexpr IconStroke kResetSign[] = {
    {Ink::kMain, kLine, "E12.4 12.8 5.6 5.6 150 -300 M7.2 5.2 V9.6 H11.6"},
};
inline constexpr IconStroke kCameraSign[] = {
    {Ink::kMain, kLine,
     "M5.4 7.8 H8.4 L9.8 5.6 H14.2 L15.6 7.8 H18.6 Q20 7.8 20 9.2 V16.8 Q20 18.2 18.6 18.2 H5.4 Q4 18.2 4 "
     "16.8 V9.2 "
     "Q4 7.8 5.4 7.8 Z E12 12.8 2.8 2.8 0 360"},
};
inline constexpr IconStroke kCurveSign[] = {
    {Ink::kMain, kLine, "M5 4.6 V18.6 H19.4"},
    {Ink::kAccent, kLine, "M7.6 15.6 C10 15 10 7 12.8 7 C15 7 15 11.2 17 11.2 Q18.2 11.2 19.4 9.4"},
};
inline constexpr IconStroke kBackSign[] = {{Ink::kMain, kLine, "M18.6 12 H5.8 M10.4 7.4 L5.8 12 L10.4 16.6"}};
inline constexpr IconStroke kNextSign[] = {
    {Ink::kMain, kLine, "M5.4 12 H18.2 M13.6 7.4 L18.2 12 L13.6 16.6"}};
inline constexpr IconStroke kPlaySign[] = {{Ink::kMain, kLine, "M9 6.4 L17.6 12 L9 17.6 Z"}};
inline constexpr IconStroke kSearchSign[] = {
    {Ink::kMain, kLine, "E10.8 10.8 5 5 0 360 M14.6 14.6 L18.8 18.8"}};
inline constexpr IconStroke kImportSign[] = {
    {Ink::kMain, kLine, "M12 4.8 V13.6 M8.2 9.8 L12 13.6 L15.8 9.8 M5.4 15.6 V18.8 H18.6 V15.6"},
};
inline constexpr IconStroke kInfoSign[] = {
    {Ink::kMain, kFine, "E12 12 7 7 0 360"},
    {Ink::kMain, kLine, "M12 11.4 V15.8 O12 8.5 1.05"},
};
inline constexpr IconStroke kSwitchSign[] = {
    {Ink::kMain, kLine,
     "M5.4 9 H18.6 M15.4 5.8 L18.6 9 L15.4 12.2 M18.6 15.4 H5.4 M8.6 12.2 L5.4 15.4 L8.6 18.6"},
};
inline constexpr IconStroke kClearAllSign[] = {
    {Ink::kMain, kLine, "M5 7.4 H19 M5 12 H11.4 M5 16.6 H11.4 M14.4 12.6 L19.2 17.4 M19.2 12.6 L14.4 17.4"},
};
inline constexpr IconStroke kCalendarSign[] = {
    {Ink::kMain, kLine,
     "M6.4 6.6 H17.6 Q19 6.6 19 8 V17.6 Q19 19 17.6 19 H6.4 Q5 19 5 17.6 V8 Q5 6.6 6.4 6.6 Z M5 10.4 "
     "H19 M8.8 4.8 V7.8 M15.2 4.8 V7.8"},
};
inline constexpr IconStroke kClockSign[] = {
    {Ink::kMain, kLine, "E12 12 7.2 7.2 0 360 M12 7.8 V12.4 L14.8 14"}};
inline constexpr IconStroke kNewSign[] = {
    {Ink::kMain, kLine, "M11 19.4 H7.4 Q6 19.4 6 18 V6 Q6 4.6 7.4 4.6 H13.4 L17.6 8.8 V11"},
    {Ink::kAccent, kLine, "M16.4 13.6 V20.4 M13 17 H19.8"},
};

/// Nodes of the formula tree: a closed folder, an open one, a formula.
inline constexpr IconStroke kFolderIcon[] = {
    {Ink::kMain, kLine,
     "M3.8 7 Q3.8 5.8 5 5.8 H9.6 L11.6 8 H19 Q20.2 8 20.2 9.2 V17.4 Q20.2 18.6 19 18.6 H5 Q3.8 18.6 3.8 17.4 "
     "Z"},
};
inline constexpr IconStroke kOpenFolderIcon[] = {
    {Ink::kMain, kLine, "M3.8 18.4 V7 Q3.8 5.8 5 5.8 H9.4 L11.4 8 H17 Q18.2 8 18.2 9.2 V11.2"},
    {Ink::kAccent, kLine, "M3.8 18.6 L6.8 11.2 H21 L18 18.6 Z"},
};
inline constexpr IconStroke kFormulaIcon[] = {
    {Ink::kMain, kLine,
     "M7 3.8 H14 L18.4 8.2 V19 Q18.4 20.2 17.2 20.2 H7 Q5.8 20.2 5.8 19 V5 Q5.8 3.8 7 3.8 Z"},
    {Ink::kAccent, kFine, "M8.6 13.8 H9.6 L11 16.8 L12.8 10.4 H15.6"},
};

/// Move, live scale, deferred scale, cross-hair.
inline constexpr IconStroke kMoveMark[] = {
    {Ink::kMain, kFine,
     "M8 2 V14 M2 8 H14 M6.2 3.8 L8 2 L9.8 3.8 M6.2 12.2 L8 14 L9.8 12.2 M3.8 6.2 L2 8 L3.8 9.8 M12.2 "
     "6.2 L14 8 L12.2 9.8"},
};
inline constexpr IconStroke kScaleMark[] = {
    {Ink::kMain, kFine, "M3 13 L13 3 M8.6 3 H13 V7.4 M7.4 13 H3 V8.6"},
};
inline constexpr IconStroke kPendingScaleMark[] = {
    {Ink::kMain, kFine,
     "M3 3 V13 H13 M3 6 H4.4 M3 9 H4.4 M7 13 V11.6 M10 13 V11.6 M6.6 9.4 L13 3 M9.4 3 H13 V6.6"},
};
inline constexpr IconStroke kCrossHairMark[] = {
    {Ink::kMain, kFine, "E8 8 3.2 3.2 0 360 M8 1.6 V14.4 M1.6 8 H14.4"},
};
inline constexpr std::span<const IconStroke> kGraphModeMarks[] = {kMoveMark, kScaleMark, kPendingScaleMark,
                                                                  kCrossHairMark};

}  // namespace quorix::art

// The words and signs on the keys: one table for the art and for everything that names a key.
#pragma once

#include <cstdint>
#include <iterator>
#include <string_view>

namespace quorix {

/// Label markup. Plain text, save for three marks:
///   "^"  raises the rest of the text: u"x^2"
///   "\u221A" (root sign) makes a drawn root: what stands before it is the degree, what follows the radicand
///   "\u25BE" (caret) at the end: the key opens a list
/// The pictures of the chooser, of "delete" and of the two cursor keys are drawn; their texts here are the
/// private marks kChooserMark, kDeleteMark, kLeftMark and kRightMark.
struct KeyLabel {
    std::int32_t code;  ///< Key code as `Key(code)` of the display takes it.
    std::u16string_view text;
};

/// Label of a cell of the upper panel that has no key code of its own or shows another word than its key.
struct CellLabel {
    int category;  ///< 0 to 5.
    int cell;      ///< 0 to 17, the portrait index.
    bool orange;   ///< True for the second function, which SHIFT and a long hold reach.
    std::u16string_view text;
};

inline constexpr std::u16string_view kChooserMark = u"\uE000";
inline constexpr std::u16string_view kDeleteMark = u"\uE001";
inline constexpr std::u16string_view kLeftMark = u"\uE002";
inline constexpr std::u16string_view kRightMark = u"\uE003";

/// Sorted by key code. The words are those that the key inserts, so that what is pressed is what appears.
inline constexpr KeyLabel kKeyLabels[] = {
    {0, u"7"},          {1, u"8"},         {2, u"9"},       {3, u"\u00F7"},   {4, u"C"},
    {5, u"4"},          {6, u"5"},         {7, u"6"},       {8, u"\u00D7"},   {9, u"M"},
    {10, u"1"},         {11, u"2"},        {12, u"3"},      {13, u"\u2212"},  {14, u"R"},
    {15, u"0"},         {16, u"."},        {17, u"\u00B1"}, {18, u"+"},       {19, u"="},
    {20, u"M1\u20135"}, {21, u"MC"},       {22, u"ans"},    {23, u"SHIFT"},   {25, u"i"},
    {26, u"gcd"},       {27, u"exp"},      {28, u"log"},    {29, u"ln"},      {30, u"x^y"},
    {31, u"x^2"},       {32, u"x^3"},      {33, u"x!"},     {34, u"x"},       {35, u"ran"},
    {36, u"lcm"},       {37, u"mod"},      {38, u"10^x"},   {39, u"e^x"},     {40, u"y\u221Ax"},
    {41, u"\u221Ax"},   {42, u"3\u221Ax"}, {43, u"%"},      {44, u"("},       {45, u")"},
    {46, u","},         {47, kDeleteMark}, {48, kLeftMark}, {49, kRightMark}, {50, u"DRG"},
    {51, u"sinh"},      {52, u"cosh"},     {53, u"tanh"},   {54, u"sin"},     {55, u"cos"},
    {56, u"tan"},       {57, u"csc"},      {58, u"sec"},    {59, u"\u03C0"},  {60, u"asinh"},
    {61, u"acosh"},     {62, u"atanh"},    {63, u"asin"},   {64, u"acos"},    {65, u"atan"},
    {66, u"acsc"},      {67, u"asec"},     {68, u"base"},   {69, u"and"},     {70, u"or"},
    {71, u"xor"},       {72, u"A"},        {73, u"B"},      {74, u"C"},       {75, u"D"},
    {76, u"E"},         {77, u"F"},        {78, u"nand"},   {79, u"nor"},     {80, u"shl"},
    {81, u"shr"},       {82, u"rtl"},      {83, u"rtr"},    {84, u"not"},     {85, u"cpl"},
    {86, u"N"},         {87, u"ncr"},      {88, u"sum"},    {89, u"sdv"},     {90, u"avg"},
    {91, u"avd"},       {92, u"dsq"},      {93, u"min"},    {94, u"npr"},     {95, u"ssq"},
    {96, u"ssd"},       {97, u"median"},   {98, u"md"},     {99, u"gm"},      {100, u"max"},
    {101, u"det"},      {102, u"inv"},     {103, u"eigv"},  {104, u"eigl"},   {105, u"orth"},
    {106, u"rank"},     {107, u"trans"},   {108, u"diag"},  {109, u"tri"},    {110, u"solve"},
    {111, u"syd"},      {112, u"sln"},     {113, u"fv"},    {114, u"pv"},     {115, u"nper"},
    {116, u"pmt"},      {117, u"rate"},    {118, u"db"},    {131, u"1/x"},
};

/// What stands on a cell instead of the label of its key; the chooser's cell 0 is the same on every page.
inline constexpr CellLabel kCellLabels[] = {
    {0, 2, false, u"\u0192(x)\u25BE"},
    {2, 2, false, u"base"},
    {2, 2, true, u"word"},
    {3, 2, false, u"data"},
    {3, 3, false, u"stat"},
    {4, 1, false, u"edit"},
    {5, 1, false, u"TVM"},
    {5, 2, false, u"loan"},
    {5, 3, false, u"mortg"},
};

/// Label of a key code; empty for a code that stands on no key.
constexpr std::u16string_view LabelOfKey(std::int32_t code) {
    for (const KeyLabel& label : kKeyLabels) {
        if (label.code == code) {
            return label.text;
        }
    }
    return {};
}

/// Label that a cell has of its own; empty when the label of its key code stands on it.
constexpr std::u16string_view OwnLabelOfCell(int category, int cell, bool orange) {
    if (cell == 0) {
        return orange ? std::u16string_view{} : kChooserMark;
    }
    for (const CellLabel& label : kCellLabels) {
        if (label.category == category && label.cell == cell && label.orange == orange) {
            return label.text;
        }
    }
    return {};
}

static_assert(
    [] {
        for (std::size_t i = 1; i < std::size(kKeyLabels); ++i) {
            if (kKeyLabels[i - 1].code >= kKeyLabels[i].code) {
                return false;
            }
        }
        return true;
    }(),
    "key labels are sorted by code, each code once");
static_assert(LabelOfKey(19) == u"=" && LabelOfKey(59) == u"\u03C0" && LabelOfKey(118) == u"db");

}  // namespace quorix

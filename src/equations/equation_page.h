#pragma once

// The picture texts of the equation pages.

#include <string>
#include <string_view>
#include <vector>

namespace quorix {

/// Shown while no equation is typed.
inline constexpr std::string_view kEmptyEquation = "aX^4+bX^3+cX^2+dX+e=0";

/// Rows and messages of the page of simultaneous equations. The two wordings of one message are intended.
inline constexpr std::u16string_view kNewEquationRow = u"Tap here to add new equation";
inline constexpr std::u16string_view kNoParameters = u"You must enter some parameters.";
inline constexpr std::u16string_view kTapLastEditor = u"You must tap on the last editor!";
inline constexpr std::u16string_view kInvalidParameters = u"Invalid parameters. Re-enter please!";
inline constexpr std::u16string_view kInvalidParametersAgain = u"Invalid parameters. Please re-enter!";
inline constexpr std::u16string_view kInputTooLong = u"Input string too long!";
inline constexpr std::u16string_view kRemoveAllEquations = u"Do you want to remove all equations?";

/// The polynomial of a line of coefficients, in the notation of the TeX passes: "1 -3 2" is
/// "X^2-(3)X+(2)*=*0". Coefficients are compared by value, so "2/2" counts as 1.
std::u16string PolynomialDisplay(std::u16string_view line);
/// One linear equation: "2 1 5" is "(2)X_1+X_2=(5)".
std::u16string SimultaneousDisplay(std::u16string_view line);

/// The text of the page of single equations for the rasteriser: the equation, then the lines below it.
/// equationText: a line of coefficients, or TeX that holds "\text{". RenderEquation adds the size and the
/// delimiters.
std::string ComposeEquationPage(std::u16string_view equationText, const std::vector<std::string>& lines);
/// The text of one row of the page of simultaneous equations. Empty where kInputTooLong is to be shown: for a
/// text that is empty or overlong.
std::string ComposeSimultaneousRow(std::u16string_view line);

}  // namespace quorix

#pragma once

#include <string_view>
#include <vector>

#include "frontends/display_layout.h"

namespace quorix {

/// The colour of each character of a line: that of its token's class, save that the digits, points and
/// decimal signs directly before a root sign have the colour of a degree, whatever their tokens. Characters
/// beyond the tokens' lengths count as tokens of width 1.
std::vector<Rgb> ColorsOfLine(std::u16string_view text, std::u16string_view tokenLengths,
                              const DisplayColours& colours = kDisplayColours);

}  // namespace quorix

#pragma once

// Numbers of the tools as text and back. None of this depends on the process's locale.

#include <cstdint>
#include <string>
#include <string_view>

namespace quorix {

std::u16string IntegerText(std::int64_t value);
/// `value` with `decimals` digits behind the point; zero without a sign.
std::u16string WideFixedText(double value, int decimals);
/// `value` with up to `digits` significant digits, in exponent form where that is shorter.
std::u16string GeneralText(double value, int digits);

/// The number that `text` begins with, behind blanks; 0 when there is none or it is no finite number.
double ReadNumber(std::u16string_view text);
/// The whole decimal number that `text` begins with, behind blanks; 0 when there is none, the nearest limit
/// when it is too large.
std::int64_t ReadInteger(std::u16string_view text);

}  // namespace quorix

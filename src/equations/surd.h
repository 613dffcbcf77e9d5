#pragma once

#include <string>
#include <string_view>

#include "equations/rational.h"

namespace quorix {

/// outer · text, where text is "sqrt(N)", "sqrt(N/M)" or "0".
struct Surd {
    std::u16string text;
    Rational outer;
};

/// The square root of a mixed fraction "W N/D" that is not negative, squares taken out of numerator and
/// denominator: "8" is 2 and "sqrt(2)", "2 1/2" is 1 and "sqrt(5/2)".
Surd SimplifySurd(std::u16string_view text);

}  // namespace quorix

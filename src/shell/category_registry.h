#pragma once

#include <array>

#include "frontends/categories.h"

namespace quorix {

/// The categories that have a window (or need none) so far. A module enters here when it arrives.
inline constexpr std::array<bool, kCategoryCount> kCategoryAvailable = {
    true, true, true,  // Arithmetic, Trigonometry, Base conversion
};

}  // namespace quorix

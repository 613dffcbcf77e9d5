#pragma once

#include <span>
#include <string_view>

#include "icon_paths.h"
#include "picture.h"
#include "strips.h"

namespace quorix::art {

/// A cell of the upper panel and of the pads of forms, in units.
inline constexpr double kKeyWidth = 39;
inline constexpr double kKeyHeight = 28;

inline constexpr int kNoChooser = -1;

/// What stands on a whole key: cap and label in one picture. A face without style is an empty cell.
struct KeyFace {
    const char* style = nullptr;            ///< Cap and ink by the palette's names.
    std::u16string_view label = {};         ///< One sign, or a word.
    std::span<const IconStroke> icon = {};  ///< On a grid of 24, in the label's stead.
    std::u16string_view orange = {};        ///< Above the label.
    int chooser = kNoChooser;               ///< The chooser key of this category.
    int cells = 1;                          ///< How many cells the key joins.
};

/// Lays rows of `columns` cells at `top` (units): all keys up in the left half of the picture, all keys down
/// in the right half.
void LayKeys(Picture& picture, const Tools& tools, double top, int columns, std::span<const KeyFace> faces);

/// The icon of a category with the caret of the chooser key, in a label of 33 x 24 at `origin` (units).
void LayChooser(Picture& picture, const Tools& tools, QPointF origin, int category);

}  // namespace quorix::art

#pragma once

#include "picture.h"

namespace quorix::art {

/// Whether a sign is drawn as bars and not set from the font.
bool IsDrawnSign(char16_t sign);

/// Lays a drawn sign on `picture`: round-ended bars of whole pixels about `centre` (units); `length` is that
/// of a level bar, in units.
void LaySign(Picture& picture, QPointF centre, double length, const QColor& color, char16_t sign);

}  // namespace quorix::art

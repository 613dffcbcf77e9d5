#pragma once

// What the Base conversion category does beyond the key machine: the line follows base and word size.

#include "frontends/led_display.h"

namespace quorix {

/// Rewrites the line in the next base (DEC, HEX, BIN, OCT, DEC) and moves the display there.
void CycleBase(CLedDisplay& display);
/// Rewrites the line at the next word size (8, 16, 32, 8 bits) in its own base; the display's setting follows
/// by key.
void CutLineToWordSize(CLedDisplay& display);
/// CutLineToWordSize and the word-size key.
void CycleWordSize(CLedDisplay& display);
/// Before an evaluation: cuts every number of the line to the word size. -40 in calcError when nothing is
/// left.
void NormaliseLine(CLedDisplay& display);

}  // namespace quorix

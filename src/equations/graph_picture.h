#pragma once

// The graph as a picture of its own, drawn by the program itself: for captures and the console.

#include "equations/graph_drawing.h"
#include "platform/png_loader.h"

namespace quorix {

/// The surface with axes, ticks, number labels and curves; the mode box and the cross-hair are the window's
/// affair. Labels stand at every so many ticks, in the colour `ink`.
DecodedPicture DrawGraphPicture(const GraphView& view, ColorRef background, ColorRef ink);

}  // namespace quorix

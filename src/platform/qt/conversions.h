#pragma once

// Rectangles and texts between the models and Qt.

#include <QRect>
#include <QString>
#include <string_view>

#include "platform/geometry.h"

namespace quorix {

inline QRect ToQRect(const Rect& rect) {
    return {rect.left, rect.top, rect.Width(), rect.Height()};
}

inline QString ToQString(std::u16string_view text) {
    return QString::fromUtf16(text.data(), static_cast<qsizetype>(text.size()));
}

}  // namespace quorix

#pragma once

#include <QString>
#include <string_view>
#include <vector>

#include "picture.h"
#include "typeface.h"

namespace quorix::art {

/// One text of a key: markup as in key_labels.h, em and base line in units, centred on `centre` (units).
struct LabelText {
    std::u16string_view markup;
    double em;
    double baseline;
    double centre;
    Face face = Face::kMedium;
    double spacing = 0;
    double maxWidth = 0;  ///< Units; wider text is set in the condensed face. 0: no limit.
};

/// Lays a label on the picture in one colour; `origin` (units) is the top left corner of its cell. Raised
/// parts are 68 % of the size and raised by 36 %; a root is a drawn sign with a bar over the radicand.
void LayLabel(Picture& picture, const Typeface& typeface, QPointF origin, const LabelText& label,
              const QColor& color);

}  // namespace quorix::art

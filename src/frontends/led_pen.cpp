// Taps on the display.

#include "frontends/base_conversion.h"
#include "frontends/led_display.h"

namespace quorix {

namespace {

bool Hits(DisplayPart part, Point point, int scale) {
    return DisplayPartRect(part, scale).Contains(point);
}

}  // namespace

void CLedDisplay::PenDown(Point point, int scale) {
    for (const auto& [arrow, key] :
         {std::pair{DisplayPart::leftArrow, KEY_LEFT}, {DisplayPart::rightArrow, KEY_RIGHT}}) {
        if (Hits(arrow, point, scale) && ArrowShown(arrow)) {
            heldKey_ = key;
            if (timers_ != nullptr) {
                timers_->Set(kRepeatTimer, kCursorRepeatMs);
            }
            return;
        }
    }
    if (visibility_.texButton && Hits(DisplayPart::texButton, point, scale)) {
        texButtonPressed_ = true;
        Invalidate();
    }
}

void CLedDisplay::OnTimer(int id) {
    if (id == kRepeatTimer && heldKey_ != KEY_NONE) {
        Key(heldKey_);
    }
}

bool CLedDisplay::GestureAllowedAt(Point point, int scale) const {
    return allowGesture_ && Hits(DisplayPart::textRow, point, scale);
}

void CLedDisplay::TapTextRow(Point point, int scale) {
    const int start = DisplayPartRect(DisplayPart::textRow, scale).left + kTextRowInset * scale;
    const int token = TokenAt(point.x - start);
    SetCursor(token >= 0 ? token : Line().TokenCount());
}

void CLedDisplay::TapWordSize() {
    CutLineToWordSize(*this);
    Key(KEY_WORD_SIZE);
}

void CLedDisplay::PenUp(Point point, int scale) {
    if (timers_ != nullptr) {
        timers_->Kill(kRepeatTimer);
    }
    heldKey_ = KEY_NONE;
    if (texButtonPressed_) {
        texButtonPressed_ = false;
        Invalidate();
    }
    if (visibility_.base && page_ == 2 && Hits(DisplayPart::baseMark, point, scale)) {
        Send(LED_BASE_TAPPED);
    } else if (visibility_.angle && Hits(DisplayPart::angleMark, point, scale)) {
        Key(KEY_ANGLE);
    } else if (visibility_.format && Hits(DisplayPart::formatMark, point, scale)) {
        Key(KEY_FORMAT);
        currentFormat_ = format_;
        if (settings_.IsStringMode()) {
            Send(LED_FORMAT_CHANGED);
        } else {
            ShowBasicValue(basicValue_, format_, false);
            Invalidate();
        }
    } else if (Hits(DisplayPart::leftArrow, point, scale) && ArrowShown(DisplayPart::leftArrow)) {
        Key(KEY_LEFT);
    } else if (Hits(DisplayPart::rightArrow, point, scale) && ArrowShown(DisplayPart::rightArrow)) {
        Key(KEY_RIGHT);
    } else if (Hits(DisplayPart::textRow, point, scale)) {
        TapTextRow(point, scale);
    } else if (visibility_.memory && Hits(DisplayPart::memoryMark, point, scale)) {
        Key(KEY_NEXT_MEMORY);
    } else if (visibility_.lineNumber && Hits(DisplayPart::lineNumber, point, scale)) {
        Key(KEY_NEXT_LINE);
    } else if (visibility_.texButton && Hits(DisplayPart::texButton, point, scale)) {
        Send(LED_TEX_BUTTON);
    } else if (visibility_.wordSize && Hits(DisplayPart::wordSizeMark, point, scale)) {
        TapWordSize();
    }
}

}  // namespace quorix

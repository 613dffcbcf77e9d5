#include "frontends/led_display.h"

#include "engine/calc_context.h"
#include "engine/key_engine.h"

namespace quorix {

namespace {

constexpr std::u16string_view kMacroEditingText = u"macro editing ...";

enum class BaseRule : std::uint8_t { decimal, restored, unchanged };

/// What the display shows in a category. Categories 12 to 15 have no row: they change nothing.
struct CategoryRow {
    int page;
    BaseRule base;
    StatusVisibility visibility;
};

//                                                            line   memory base   angle  format word   TeX
constexpr CategoryRow kCategoryRows[] = {
    /* Arithmetic         */ {0, BaseRule::decimal, {true, true, true, true, true, false, true}},
    /* Trigonometry       */ {0, BaseRule::decimal, {true, true, true, true, true, false, true}},
    /* Base conversion    */ {2, BaseRule::restored, {true, true, true, false, false, true, false}},
    /* Statistics         */ {3, BaseRule::decimal, {false, true, true, false, true, false, true}},
    /* Matrix             */ {4, BaseRule::decimal, {true, false, false, false, false, false, true}},
    /* Finance            */ {5, BaseRule::decimal, {true, true, true, false, true, false, true}},
    /* Tip                */ {6, BaseRule::unchanged, {false, false, false, false, false, false, false}},
    /* Unit converter     */ {7, BaseRule::unchanged, {false, false, false, false, false, false, false}},
    /* Currency converter */ {8, BaseRule::unchanged, {false, false, false, false, false, false, false}},
    /* Constants          */ {0, BaseRule::decimal, {true, true, true, true, true, false, true}},
    /* Biorythm           */ {10, BaseRule::unchanged, {false, false, false, false, false, false, false}},
    /* User's macros      */ {11, BaseRule::decimal, {false, false, false, false, false, false, true}},
};
static_assert(std::size(kCategoryRows) == kPageCount);

}  // namespace

CLedDisplay::CLedDisplay(const CalculatorSettings& settings, Timers* timers, LedParent parent)
    : ExpressionEditor(settings), timers_(timers), parent_(std::move(parent)) {
    KeyEngineReset();
    ApplyToEngine();
}

CLedDisplay::~CLedDisplay() {
    KeyEngineReset();
}

void CLedDisplay::Key(std::int32_t code) {
    showEquals_ = false;
    ClearCalcError();
    if (settings_.inputMode == kModeBasic) {
        pendingOperator_.clear();
    }
    if (code == KEY_SHIFT) {
        shift_ = !shift_;
        Invalidate();
        return;
    }
    if (settings_.IsStringMode()) {
        EditKey(code);
    } else {
        BasicKey(code);
    }
    shift_ = false;
    if (ModeKey(code) && !settings_.IsStringMode() && (code == KEY_BASE || code == KEY_WORD_SIZE)) {
        ApplyToEngine();  // the padding of a radix text reads the engine's word size
        ReformatBasicValue();
    }
    Invalidate();
    ApplyToEngine();
}

void CLedDisplay::ApplyToEngine() const {
    SetAngleUnit(angle_ - ANGLE_DEG);
    calcContext().wordSize = BitsOf(wordSize_);
}

void CLedDisplay::SetCategory(int id) {
    HideToolTip();
    if (id < 0 || id >= kPageCount) {
        return;
    }
    const CategoryRow& row = kCategoryRows[id];
    page_ = row.page;
    visibility_ = row.visibility;
    if (row.base == BaseRule::decimal && base_ != RADIX_DEC) {
        savedBase_ = base_;
        base_ = RADIX_DEC;
    } else if (row.base == BaseRule::restored) {
        base_ = savedBase_;
    }
    shift_ = false;
    showEquals_ = false;
    Invalidate();
}

void CLedDisplay::UpdateView(std::span<const int> tokenWidths, int scale) {
    ShowInRoom(tokenWidths, (kTextRowWidth - kCursorRoom) * scale);
}

bool CLedDisplay::ArrowShown(DisplayPart arrow) const {
    const TokenLine& line = Line();
    return arrow == DisplayPart::leftArrow ? line.FirstVisible() > 0
                                           : line.LastVisible() + 1 < line.TokenCount();
}

void CLedDisplay::Invalidate() const {
    if (parent_.invalidate) {
        parent_.invalidate();
    }
}

void CLedDisplay::HideToolTip() const {
    if (parent_.hideToolTip) {
        parent_.hideToolTip();
    }
}

void CLedDisplay::CursorMoved() const {
    if (settings_.toolTipsEnabled != 0 && settings_.IsStringMode() && parent_.showToolTip) {
        parent_.showToolTip(GetLine(), GetTokenLengths(), Line().Cursor());
    }
}

void CLedDisplay::TextInserted() {
    if (macroEditing_) {
        SetResultText(kMacroEditingText);
    }
}

void CLedDisplay::Restored() {
    KeyEngineReset();
}

void CLedDisplay::Send(LedMessage message) const {
    if (parent_.send) {
        parent_.send(message);
    }
}

}  // namespace quorix

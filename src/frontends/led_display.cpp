#include "frontends/led_display.h"

#include <algorithm>

#include "engine/calc_context.h"
#include "engine/key_engine.h"
#include "engine/number_locale.h"
#include "frontends/engine_text.h"
#include "numerics/qcore.h"

namespace quorix {

namespace {

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

constexpr std::int32_t NextOf(std::int32_t value, std::int32_t first, std::int32_t last) {
    return value >= last || value < first ? first : value + 1;
}

/// The order in which the format key steps.
constexpr std::int32_t kFormatCycle[] = {FORMAT_NORM, FORMAT_FIX, FORMAT_SCI, FORMAT_FRAC};

constexpr std::int32_t NextFormat(std::int32_t format) {
    for (std::size_t i = 0; i < std::size(kFormatCycle); ++i) {
        if (kFormatCycle[i] == format) {
            return kFormatCycle[(i + 1) % std::size(kFormatCycle)];
        }
    }
    return FORMAT_NORM;
}

/// A number alone, with an optional sign: what may be grouped.
bool IsPlainNumber(std::u16string_view text) {
    if (text.starts_with(u'-')) {
        text.remove_prefix(1);
    }
    return !text.empty() && text.find_first_not_of(u"0123456789.") == std::u16string_view::npos;
}

}  // namespace

CLedDisplay::CLedDisplay(const CalculatorSettings& settings, Timers* timers, LedParent parent)
    : settings_(settings), timers_(timers), parent_(std::move(parent)) {
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
        StringKey(code);
    } else {
        BasicKey(code);
    }
    shift_ = false;
    CommonKey(code);
    Invalidate();
    ApplyToEngine();
}

void CLedDisplay::CommonKey(std::int32_t code) {
    switch (code) {
        case KEY_BASE: base_ = NextOf(base_, RADIX_BIN, RADIX_HEX); break;
        case KEY_BIN:
        case KEY_OCT:
        case KEY_DEC:
        case KEY_HEX: base_ = code; break;
        case KEY_ANGLE: angle_ = NextOf(angle_, ANGLE_DEG, ANGLE_GRAD); break;
        case KEY_DEG:
        case KEY_RAD:
        case KEY_GRAD: angle_ = code; break;
        case KEY_FORMAT: format_ = NextFormat(format_); break;
        case KEY_FIX:
        case KEY_NORM:
        case KEY_SCI:
        case KEY_FRAC: format_ = code; break;
        case KEY_WORD_SIZE: wordSize_ = NextOf(wordSize_, WORD_8, WORD_32); break;
        case KEY_8_BIT:
        case KEY_16_BIT:
        case KEY_32_BIT: wordSize_ = code; break;
        default: return;
    }
    if (!settings_.IsStringMode() && (code == KEY_BASE || code == KEY_WORD_SIZE)) {
        ApplyToEngine();  // the padding of a radix text reads the engine's word size
        ReformatBasicValue();
    }
}

void CLedDisplay::ApplyToEngine() const {
    SetAngleUnit(angle_ - ANGLE_DEG);
    calcContext().wordSize = BitsOf(wordSize_);
}

void CLedDisplay::SetCategory(int id) {
    if (parent_.hideToolTip) {
        parent_.hideToolTip();
    }
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

void CLedDisplay::SetResultText(std::u16string_view text) {
    resultText_ = text;
    resultIsValue_ = false;
    Invalidate();
}

void CLedDisplay::ShowResult(std::u16string_view text, const QComplex& value) {
    resultText_ = text;
    resultIsValue_ = true;
    lastValue_ = value;
    Invalidate();
}

void CLedDisplay::SetLine(std::u16string_view text, std::u16string_view lengths) {
    EditedLine().Set(text, lengths);
    EditedLine().MoveRight(Line().TokenCount());
    Invalidate();
}

void CLedDisplay::InsertText(std::u16string_view text, bool clearFirst) {
    if (clearFirst) {
        ClearLine();
    }
    std::u16string shown(text);
    if (IsPlainNumber(shown)) {
        ApplySeparators(shown, settings_.numberLocale, base_);
    } else if (base_ == RADIX_DEC) {
        // An expression stays ungrouped but takes the locale's decimal sign.
        std::replace(shown.begin(), shown.end(), u'.', SignsOf(settings_.numberLocale).decimal);
    }
    EditedLine().InsertCharacters(ToDisplaySigns(shown));
    Invalidate();
}

void CLedDisplay::Paste(std::u16string_view text) {
    EditedLine().InsertCharacters(text);
    Invalidate();
}

bool CLedDisplay::EngineText(std::u16string& out) const {
    auto text = ToEngineText(GetLine(), settings_.numberLocale, RadixOf(base_));
    if (!text) {
        return false;
    }
    out = std::move(*text);
    return true;
}

void CLedDisplay::ClearLine() {
    EditedLine().Clear();
    resultText_.clear();
    resultIsValue_ = false;
    lastValue_ = {};
    format_ = currentFormat_;
    Invalidate();
}

void CLedDisplay::EraseLine() {
    EditedLine().Clear();
    Invalidate();
}

void CLedDisplay::UpdateView(std::span<const int> tokenWidths, int scale) {
    tokenWidths_.assign(tokenWidths.begin(), tokenWidths.end());
    EditedLine().UpdateView(tokenWidths, (kTextRowWidth - kCursorRoom) * scale);
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

void CLedDisplay::Send(LedMessage message) const {
    if (parent_.send) {
        parent_.send(message);
    }
}

}  // namespace quorix

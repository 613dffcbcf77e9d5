#include "frontends/base_conversion.h"

#include "engine/calc_context.h"
#include "engine/radix_conversion.h"
#include "frontends/engine_text.h"

namespace quorix {

namespace {

/// The line's text in `toRadix`; the line stays as it is when nothing can be made of it.
void RewriteLine(CLedDisplay& display, int toRadix) {
    std::u16string text;
    if (!display.EngineText(text)) {
        return;
    }
    if (const auto converted = ConvertExpressionRadix(text, RadixOf(display.GetBase()), toRadix)) {
        display.ReplaceLine(ToDisplaySigns(*converted));
    }
}

/// The base key steps through the identifiers in their order.
constexpr std::int32_t BaseAfter(std::int32_t base) {
    return base == RADIX_HEX ? RADIX_BIN : base + 1;
}

constexpr std::int32_t WordSizeAfter(std::int32_t wordSize) {
    return wordSize == WORD_32 ? WORD_8 : wordSize + 1;
}

}  // namespace

void CycleBase(CLedDisplay& display) {
    const std::int32_t next = BaseAfter(display.GetBase());
    if (!display.GetLine().empty()) {
        ClearCalcError();
        RewriteLine(display, RadixOf(next));
    }
    display.Key(KEY_BASE);
}

void CutLineToWordSize(CLedDisplay& display) {
    if (display.GetLine().empty()) {
        return;
    }
    ClearCalcError();
    calcContext().wordSize = BitsOf(WordSizeAfter(display.GetWordSize()));
    RewriteLine(display, RadixOf(display.GetBase()));
}

void CycleWordSize(CLedDisplay& display) {
    CutLineToWordSize(display);
    display.Key(KEY_WORD_SIZE);
}

void NormaliseLine(CLedDisplay& display) {
    RewriteLine(display, RadixOf(display.GetBase()));
}

}  // namespace quorix

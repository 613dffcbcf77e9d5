// Plays keys: the first byte picks mode and category, every other byte is some key of the calculator.

#include <cstddef>
#include <cstdint>

#include "engine/key_engine.h"
#include "frontends/base_conversion.h"
#include "frontends/equals.h"

namespace {

using namespace quorix;

constexpr std::u16string_view kModes[] = {kModeString, kModeBasic, kModeRpn};
/// Bytes from here on are no key codes but what else a user can do.
constexpr int kFirstGesture = 240;

void Check(bool holds) {
    if (!holds) {
        __builtin_trap();
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    // Longer scripts find nothing new and evaluate long lines again and again.
    if (size < 2 || size > 600) {
        return 0;
    }
    CalculatorSettings settings;
    settings.inputMode = kModes[data[0] % 3];
    settings.numberLocale = data[0] & 0x40 ? u"European" : u"English (US)";
    int category = data[0] / 3 % 12;
    CLedDisplay display(settings, nullptr, {});
    EqualsPath equals(display, nullptr);
    display.SetCategory(category);
    for (std::size_t i = 1; i < size; ++i) {
        const int byte = data[i];
        if (byte == KEY_EQUALS) {
            equals.Run(category);
        } else if (byte < kFirstGesture) {
            display.Key(byte);
        } else if (byte == kFirstGesture) {
            CycleBase(display);
        } else if (byte == kFirstGesture + 1) {
            CycleWordSize(display);
        } else if (byte == kFirstGesture + 2) {
            equals.FormatChanged();
        } else if (byte == kFirstGesture + 3) {
            category = (category + 1) % 12;
            display.SetCategory(category);
        } else if (byte == kFirstGesture + 4) {
            display.Undo();
        } else if (byte == kFirstGesture + 5) {
            display.Redo();
        } else {
            display.PenUp({(byte - kFirstGesture) * 30, 4 + (byte & 1) * 40}, 2);
        }
        const TokenLine& line = display.Line();
        Check(line.Cursor() >= 0 && line.Cursor() <= line.TokenCount());
        Check(line.OffsetOf(line.TokenCount()) == line.Text().size());
        Check(KeyEngineDepth() <= 128);
    }
    return 0;
}

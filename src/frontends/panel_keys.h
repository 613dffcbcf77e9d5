#pragma once

// What the cells of the panels and the characters of a keyboard mean in each category.

#include <cstdint>

#include "frontends/key_codes.h"

namespace quorix {

/// Things a cell opens or toggles instead of sending a key.
enum class PanelCommand : std::uint8_t {
    none,
    chooser,
    functionList,
    cycleBase,
    cycleWordSize,
    statisticsKeyboard,
    statisticsSummary,
    editMatrix,
    timeValueDialog,
    loanCalculator,
    mortgageCalculator,
};

/// A key, a command, or nothing.
struct PanelAction {
    std::int32_t key = KEY_NONE;
    PanelCommand command = PanelCommand::none;
    friend constexpr bool operator==(const PanelAction&, const PanelAction&) = default;
};

/// What an upper cell (0 to 17) does in a category. orange: SHIFT is on or a hold fired. radixId: the
/// display's base, which decides whether A to F live.
PanelAction UpperAction(int category, int cell, bool orange, std::int32_t radixId);

/// Whether a key of the lower panel lives at a base and a page: digits beyond the base and the decimal sign
/// of page 2 are dead.
bool LowerKeyLives(std::int32_t code, std::int32_t radixId, int page);

/// The key of a typed character, or KEY_NONE. Characters of the pad's names ("M", "R", "_" for the sign, Esc
/// for C), parentheses, comma, "x", "^", and A to F in a hexadecimal base. Backspace and Enter are the
/// caller's.
std::int32_t KeyOfCharacter(char16_t character, std::int32_t radixId);

/// The pad's character of a lower key, for windows that take characters: "789/C456*M123-R0.~+=".
char16_t PadCharacterOf(std::int32_t code);

}  // namespace quorix

#include "frontends/panel_keys.h"

#include <string_view>

#include "engine/identifiers.h"
#include "frontends/categories.h"
#include "frontends/display_symbols.h"
#include "frontends/key_panel.h"

namespace quorix {

namespace {

constexpr std::u16string_view kPadCharacters = u"789/C456*M123-R0.~+=";
/// The same for typed characters: Esc is C, "_" changes the sign.
constexpr std::u16string_view kTypedPadCharacters = u"789/\u001B456*M123-R0._+=";
static_assert(kPadCharacters.size() == kLowerCellCount && kTypedPadCharacters.size() == kLowerCellCount);

constexpr PanelAction Key(std::int32_t code) {
    return {code, PanelCommand::none};
}
constexpr PanelAction Command(PanelCommand command) {
    return {KEY_NONE, command};
}

PanelAction ArithmeticAction(int cell, bool orange) {
    if (cell == CELL_MENU) {
        return orange ? Key(KEY_X) : Command(PanelCommand::functionList);
    }
    return Key(cell + (orange ? 32 : 22));
}

PanelAction TrigonometryAction(int cell, bool orange) {
    if (cell == CELL_MENU) {
        return Key(KEY_ANGLE);
    }
    if (orange && cell == 11) {
        return Key(KEY_RECIPROCAL);
    }
    return Key(cell + (orange ? 57 : 48));
}

PanelAction BaseConversionAction(int cell, bool orange, std::int32_t radixId) {
    constexpr std::int32_t kPlain[] = {KEY_AND, KEY_OR, KEY_XOR};
    constexpr std::int32_t kOrange[] = {KEY_NAND, KEY_NOR, KEY_MOD, KEY_SHL, KEY_SHR,
                                        KEY_RTL,  KEY_RTR, KEY_NOT, KEY_CPL};
    if (cell == CELL_MENU) {
        return Command(orange ? PanelCommand::cycleWordSize : PanelCommand::cycleBase);
    }
    if (orange) {
        return Key(kOrange[cell - 3]);
    }
    if (cell < 6) {
        return Key(kPlain[cell - 3]);
    }
    return radixId == RADIX_HEX ? Key(cell - 6 + KEY_HEX_A) : PanelAction{};
}

PanelAction StatisticsAction(int cell, bool orange) {
    switch (cell) {
        case 2: return Command(PanelCommand::statisticsKeyboard);
        case 3: return Command(PanelCommand::statisticsSummary);
        case 4: return Key(KEY_N);
        default: return Key(cell + (orange ? 89 : 82));
    }
}

PanelAction MatrixAction(int cell) {
    return cell == CELL_SHIFT ? Command(PanelCommand::editMatrix) : Key(cell + 99);
}

PanelAction FinanceAction(int cell) {
    switch (cell) {
        case 1: return Command(PanelCommand::timeValueDialog);
        case 2: return Command(PanelCommand::loanCalculator);
        case 3: return Command(PanelCommand::mortgageCalculator);
        default: return Key(cell + 107);
    }
}

}  // namespace

PanelAction UpperAction(int category, int cell, bool orange, std::int32_t radixId) {
    if (cell == CELL_CHOOSER) {
        return Command(PanelCommand::chooser);
    }
    if (category < 0 || category > kLastPanelCategory || cell < 0 || cell >= kUpperCellCount) {
        return {};
    }
    if (cell >= CELL_FIRST_GENERAL) {
        return Key(cell - CELL_FIRST_GENERAL + KEY_OPEN);
    }
    const bool hasShift = category != CATEGORY_MATRIX && category != CATEGORY_FINANCE;
    if (cell == CELL_SHIFT && hasShift) {
        return Key(KEY_SHIFT);
    }
    switch (category) {
        case CATEGORY_ARITHMETIC: return ArithmeticAction(cell, orange);
        case CATEGORY_TRIGONOMETRY: return TrigonometryAction(cell, orange);
        case CATEGORY_BASE_CONVERSION: return BaseConversionAction(cell, orange, radixId);
        case CATEGORY_STATISTICS: return StatisticsAction(cell, orange);
        case CATEGORY_MATRIX: return MatrixAction(cell);
        default: return FinanceAction(cell);
    }
}

bool LowerKeyLives(std::int32_t code, std::int32_t radixId, int page) {
    if (code == KEY_POINT) {
        return page != 2;
    }
    const int digit = DigitOf(code);
    return digit < 0 || digit < RadixOf(radixId) || (radixId == RADIX_DEC && digit < 10);
}

std::int32_t KeyOfCharacter(char16_t character, std::int32_t radixId) {
    const bool upperHex = character >= u'A' && character <= u'F';
    const bool lowerHex = character >= u'a' && character <= u'f';
    if (upperHex || lowerHex) {
        return radixId == RADIX_HEX ? KEY_HEX_A + (character - (upperHex ? u'A' : u'a'))
                                    : std::int32_t{KEY_NONE};
    }
    if (const std::size_t index = kTypedPadCharacters.find(character); index != std::u16string_view::npos) {
        return static_cast<std::int32_t>(index);
    }
    switch (character) {
        case u'(': return KEY_OPEN;
        case u')': return KEY_CLOSE;
        case u',': return KEY_COMMA;
        case u'x': return KEY_X;
        case u'^': return KEY_POWER;
        case u'!': return KEY_FACTORIAL;
        case u'%': return KEY_PERCENT;
        case symbols::kMultiply: return KEY_MULTIPLY;
        case symbols::kDivide: return KEY_DIVIDE;
        case symbols::kMinus: return KEY_MINUS;
        default: return KEY_NONE;
    }
}

char16_t PadCharacterOf(std::int32_t code) {
    return code >= 0 && code < kLowerCellCount ? kPadCharacters[static_cast<std::size_t>(code)] : u'\0';
}

}  // namespace quorix

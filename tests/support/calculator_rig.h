#pragma once

// A display on a bench: keys in, rows of the display out, as a user would read them.

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "engine/variable_store.h"
#include "frontends/equals.h"
#include "frontends/key_codes.h"
#include "frontends/led_display.h"
#include "platform/utf8.h"
#include "support/fake_timers.h"

namespace quorix::testing {

class CalculatorRig {
  public:
    explicit CalculatorRig(std::u16string_view mode = kModeString) {
        ClearAllVariables();
        settings.inputMode = mode;
        display = std::make_unique<CLedDisplay>(
            settings, &timers,
            LedParent{.invalidate = [this] { ++repaints; },
                      .send = [this](LedMessage message) { messages.push_back(message); },
                      .hideToolTip = [this] { hint.reset(); },
                      .showToolTip =
                          [this](std::u16string_view line, std::u16string_view lengths, int cursor) {
                              hint = Hint{std::u16string(line), std::u16string(lengths), cursor};
                          }});
        equals = std::make_unique<EqualsPath>(*display, nullptr);
    }

    void Keys(std::initializer_list<std::int32_t> codes) {
        for (const std::int32_t code : codes) {
            Key(code);
        }
    }
    void Key(std::int32_t code) {
        if (code == KEY_EQUALS) {
            equals->Run(category);
        } else {
            display->Key(code);
        }
    }
    /// Presses the keys of a script, separated by blanks: digits and signs of the pad ("0".."9", ".", "+",
    /// "-", "*",
    /// "/", "=", "(", ")", ",", "^"), or "#CODE" for any key.
    void Type(std::string_view script);
    [[nodiscard]] std::string Row() const { return ToUtf8(display->GetLine()); }
    [[nodiscard]] std::string Result() const { return ToUtf8(display->GetResultText()); }
    void Enter(int id) {
        category = id;
        display->SetCategory(id);
    }

    CalculatorSettings settings;
    FakeTimers timers;
    std::vector<LedMessage> messages;
    /// What the display last handed to its function hints; nothing when they are hidden.
    struct Hint {
        std::u16string line;
        std::u16string lengths;
        int cursor;
    };
    std::optional<Hint> hint;
    int repaints = 0;
    int category = 0;
    std::unique_ptr<CLedDisplay> display;
    std::unique_ptr<EqualsPath> equals;
};

inline void CalculatorRig::Type(std::string_view script) {
    static const std::map<char, std::int32_t> pad = {
        {'0', KEY_0},      {'1', KEY_1},       {'2', KEY_2},     {'3', KEY_3},          {'4', KEY_4},
        {'5', KEY_5},      {'6', KEY_6},       {'7', KEY_7},     {'8', KEY_8},          {'9', KEY_9},
        {'.', KEY_POINT},  {'+', KEY_PLUS},    {'-', KEY_MINUS}, {'*', KEY_MULTIPLY},   {'/', KEY_DIVIDE},
        {'=', KEY_EQUALS}, {'(', KEY_OPEN},    {')', KEY_CLOSE}, {',', KEY_COMMA},      {'^', KEY_POWER},
        {'A', KEY_HEX_A},  {'B', KEY_HEX_B},   {'C', KEY_HEX_C}, {'D', KEY_HEX_D},      {'E', KEY_HEX_E},
        {'F', KEY_HEX_F},  {'~', KEY_SIGN},    {'i', KEY_I},     {'c', KEY_CLEAR},      {'M', KEY_STORE},
        {'R', KEY_RECALL}, {'%', KEY_PERCENT}, {'s', KEY_SHIFT}, {'r', KEY_RECIPROCAL}, {'p', KEY_PI},
        {'a', KEY_ANSWER}, {'<', KEY_LEFT},    {'>', KEY_RIGHT}, {'d', KEY_DELETE},
    };
    for (std::size_t at = 0; at < script.size(); ++at) {
        if (script[at] == '#') {
            std::int32_t code = 0;
            while (at + 1 < script.size() && script[at + 1] >= '0' && script[at + 1] <= '9') {
                code = code * 10 + (script[++at] - '0');
            }
            Key(code);
        } else if (script[at] != ' ') {
            Key(pad.at(script[at]));
        }
    }
}

}  // namespace quorix::testing

// Presses, keys and timers of the main frame.

#include "frontends/base_conversion.h"
#include "shell/main_frame.h"

namespace quorix {

namespace {

/// A pressed cell is released when the pen comes nearer to its edge than this, in device pixels.
constexpr int kLeaveInset = 4;

constexpr char16_t kBackspace = 8;
constexpr char16_t kEnter = 13;

/// The function list of Arithmetic; its items are the keys from KEY_INTEGRAL on, in another order for the
/// first two.
struct FunctionItem {
    std::u16string_view text;
    std::int32_t key;
};

constexpr FunctionItem kFunctionItems[] = {
    {u"Differentiation", KEY_DERIVATIVE},
    {u"Integration", KEY_INTEGRAL},
    {u"Evaluation", KEY_EVALUATE},
    {u"Root", KEY_FN_ROOT},
    {u"Product", KEY_PRODUCT},
    {u"Summation", KEY_SUMMATION},
    {u"Fibonaci", KEY_FIBONACCI},
};

constexpr Point CentreOf(const Rect& rect) {
    return {(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2};
}

}  // namespace

void CMainFrame::SetTimer(int id, int milliseconds) {
    if (timers_ != nullptr) {
        timers_->Set(id, milliseconds);
    }
}

void CMainFrame::KillTimers() {
    if (timers_ != nullptr) {
        for (const int id : {int{TIMER_REPEAT}, int{TIMER_HOLD}, int{TIMER_HOLD_MODULE}}) {
            timers_->Kill(id);
        }
    }
}

void CMainFrame::EndPress() {
    KillTimers();
    const PanelCell pressed = looks_.Pressed();
    looks_.Release();
    pressedKey_ = KEY_NONE;
    if (pressed.panel != Panel::none) {
        host_.InvalidateCell(pressed);
    }
}

void CMainFrame::ButtonDown(Point point) {
    EndPress();
    const PanelCell cell = CellAt(CurrentOrientation(), Scale(), point);
    if (cell.panel == Panel::none) {
        return;
    }
    savedPoint_ = point;
    looks_.Press(cell);
    host_.InvalidateCell(cell);
    if (cell.panel == Panel::upper) {
        UpperDown(cell.cell);
    } else {
        LowerDown(cell.cell);
    }
}

void CMainFrame::UpperDown(int cell) {
    if (cell >= CELL_DELETE) {
        pressedKey_ = cell - CELL_FIRST_GENERAL + KEY_OPEN;
        SetTimer(TIMER_REPEAT, kCursorRepeatMs);
    } else if (preferences_.tapHoldEnabled != 0) {
        const bool module = currentCategory_ == CATEGORY_MATRIX || currentCategory_ == CATEGORY_FINANCE;
        SetTimer(module ? TIMER_HOLD_MODULE : TIMER_HOLD, static_cast<int>(preferences_.tapHoldInterval));
    }
}

void CMainFrame::LowerDown(std::int32_t code) {
    if (code == KEY_EQUALS) {
        if (preferences_.tapHoldEnabled != 0 && currentCategory_ <= kLastPanelCategory) {
            pressedKey_ = KEY_ANSWER;
            SetTimer(TIMER_HOLD, static_cast<int>(preferences_.tapHoldInterval));
        }
    } else if (DigitOf(code) >= 0 && LowerKeyLives(code, display_->GetBase(), display_->GetPage())) {
        pressedKey_ = code;
        SetTimer(TIMER_REPEAT, kDigitRepeatMs);
    }
}

void CMainFrame::ButtonUp(Point point) {
    KillTimers();
    const PanelCell pressed = looks_.Pressed();
    if (pressed.panel == Panel::none) {
        return;
    }
    const std::int32_t key = pressedKey_;
    EndPress();
    if (CellAt(CurrentOrientation(), Scale(), point) != pressed) {
        return;
    }
    if (pressed.panel == Panel::lower) {
        LowerUp(pressed.cell);
    } else if (key != KEY_NONE) {
        display_->Key(key);
    } else {
        UpperUp(pressed.cell);
    }
}

void CMainFrame::MouseMove(Point point) {
    const PanelCell pressed = looks_.Pressed();
    if (pressed.panel == Panel::none) {
        return;
    }
    const Rect rect = CellRect(CurrentOrientation(), pressed).Scaled(Scale());
    if (!rect.Inset(kLeaveInset).Contains(point)) {
        ButtonUp(CentreOf(rect));
    }
}

void CMainFrame::UpperUp(int cell) {
    const PanelAction action = UpperAction(currentCategory_, cell, IsOrange(), display_->GetBase());
    if (action.command != PanelCommand::none) {
        RunCommand(action.command, {Panel::upper, cell});
    } else if (action.key != KEY_NONE) {
        display_->Key(action.key);
    }
}

void CMainFrame::SendLowerKey(std::int32_t code) {
    if (code == KEY_EQUALS) {
        Equals();
    } else if (LowerKeyLives(code, display_->GetBase(), display_->GetPage())) {
        display_->Key(code);
    }
}

void CMainFrame::LowerUp(std::int32_t code) {
    if (!TakesKeys()) {
        return;
    }
    if (IsOrange() && code == KEY_STORE) {
        display_->Key(KEY_NEXT_MEMORY);
    } else if (IsOrange() && code == KEY_RECALL) {
        display_->Key(KEY_CLEAR_MEMORY);
    } else if (IsOrange() && code == KEY_EQUALS) {
        display_->Key(KEY_ANSWER);
    } else {
        SendLowerKey(code);
    }
}

void CMainFrame::RunCommand(PanelCommand command, PanelCell cell) {
    std::vector<std::u16string_view> items;
    switch (command) {
        case PanelCommand::chooser:
            items.assign(kCategoryNames.begin(), kCategoryNames.end());
            host_.OpenPopup(POPUP_CATEGORIES, cell, std::move(items));
            break;
        case PanelCommand::functionList:
            for (const FunctionItem& item : kFunctionItems) {
                items.push_back(item.text);
            }
            host_.OpenPopup(POPUP_FUNCTIONS, cell, std::move(items));
            break;
        case PanelCommand::cycleBase: CycleBase(*display_); break;
        case PanelCommand::cycleWordSize: CycleWordSize(*display_); break;
        default: break;  // the modules' own commands arrive with their windows
    }
}

void CMainFrame::PopupChosen(PopupId id, int item) {
    if (id == POPUP_CATEGORIES) {
        SwitchCategory(item);
    } else if (item >= 0 && static_cast<std::size_t>(item) < std::size(kFunctionItems)) {
        display_->Key(kFunctionItems[item].key);
    }
}

void CMainFrame::OnTimer(int id) {
    switch (id) {
        case TIMER_ONE_SHOT_KEY:
        case TIMER_REPEAT:
            if (pressedKey_ != KEY_NONE) {
                display_->Key(pressedKey_);
            }
            if (id == TIMER_ONE_SHOT_KEY) {
                pressedKey_ = KEY_NONE;
            }
            break;
        case TIMER_HOLD:
        case TIMER_HOLD_MODULE:
            holdFired_ = true;
            ButtonUp(savedPoint_);
            holdFired_ = false;
            break;
        default: break;
    }
}

void CMainFrame::KeyDown(HardKey key) {
    switch (key) {
        case HardKey::left: display_->Key(KEY_LEFT); break;
        case HardKey::right: display_->Key(KEY_RIGHT); break;
        case HardKey::remove: display_->Key(KEY_DELETE); break;
        default: break;
    }
}

void CMainFrame::KeyUp(HardKey key) {
    if (preferences_.hardKeyScrolling == 0) {
        return;
    }
    if (key == HardKey::up) {
        StepCategory(-1);
    } else if (key == HardKey::down) {
        StepCategory(1);
    }
}

bool CMainFrame::TakesKeys() const {
    return currentCategory_ <= kLastPanelCategory || currentCategory_ == CATEGORY_CONSTANTS;
}

void CMainFrame::Character(char16_t character) {
    if (!TakesKeys()) {
        return;
    }
    if (character == kEnter) {
        // Key-by-key entry in reverse Polish order ends a number by Enter.
        if (preferences_.calculator.inputMode == kModeRpn) {
            display_->Key(KEY_OPEN);
        } else {
            Equals();
        }
    } else if (character == kBackspace) {
        display_->Key(KEY_LEFT);
        display_->Key(KEY_DELETE);
    } else if (const std::int32_t code = KeyOfCharacter(character, display_->GetBase()); code != KEY_NONE) {
        SendLowerKey(code);
    }
}

}  // namespace quorix

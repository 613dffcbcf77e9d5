// Presses, keys and timers of the main frame.

#include "frontends/base_conversion.h"
#include "frontends/spoken_names.h"
#include "shell/main_frame.h"

namespace quorix {

namespace {

/// A pressed cell is released when the pen comes nearer to its edge than this, in device pixels.
constexpr int kLeaveInset = 4;

constexpr char16_t kBackspace = 8;
constexpr char16_t kTab = 9;
constexpr char16_t kEnter = 13;
constexpr char16_t kEscape = 27;

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

/// The windows that own lists, to which a choice is handed on.
constexpr std::pair<PopupId, ModuleWindow> kPopupOwners[] = {
    {POPUP_UNITS, ModuleWindow::converter},          {POPUP_UNIT_CATEGORIES, ModuleWindow::converter},
    {POPUP_CURRENCIES, ModuleWindow::converter},     {POPUP_MATRICES, ModuleWindow::matrix},
    {POPUP_STATISTICS, ModuleWindow::statistics},    {POPUP_PERSONS, ModuleWindow::biorythm},
    {POPUP_EQUATIONS, ModuleWindow::equationSolver},
};

constexpr ModuleWindow OwnerOf(PopupId id) {
    for (const auto& [list, owner] : kPopupOwners) {
        if (list == id) {
            return owner;
        }
    }
    return ModuleWindow::none;
}

/// Typed characters whose key sounds in a window that takes characters: Backspace, Tab, ".", "-", Enter, "=",
/// Esc, besides the digits.
constexpr std::u16string_view kSoundingCharacters = u"\b\t.-\r=\u001B";

/// Characters that the open list of names takes as keys.
constexpr std::pair<char16_t, TypeAheadKey> kNameKeys[] = {
    {kEnter, TypeAheadKey::accept},
    {kTab, TypeAheadKey::accept},
    {kBackspace, TypeAheadKey::backspace},
    {kEscape, TypeAheadKey::escape},
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
    names_->Finish();
    const PanelCell cell = CellAt(CurrentOrientation(), Scale(), point);
    const PageGround ground = EntryOf(currentCategory_).ground;
    if (cell.panel == Panel::none || ground == PageGround::window ||
        (cell.panel == Panel::upper && ground != PageGround::panels)) {
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
    if (!TakesKeys()) {
        return;
    }
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
        KeySound();
        display_->Key(key);
    } else {
        UpperUp(pressed.cell);
    }
}

std::u16string_view CMainFrame::SpokenName(PanelCell cell) const {
    const PageGround ground = EntryOf(currentCategory_).ground;
    if (ground == PageGround::window || (cell.panel == Panel::upper && ground != PageGround::panels)) {
        return {};
    }
    return SpokenNameOfCell(cell, currentCategory_, IsOrange(), display_->GetBase());
}

void CMainFrame::PressCell(PanelCell cell) {
    const Point centre = CentreOf(CellRect(CurrentOrientation(), cell).Scaled(Scale()));
    ButtonDown(centre);
    // A short tap: what a held key would have sent is forgotten.
    KillTimers();
    pressedKey_ = KEY_NONE;
    ButtonUp(centre);
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
    if (action != PanelAction{}) {
        KeySound();
    }
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
    if (keyboardTarget_ != ModuleWindow::none) {
        KeySound();
        host_.SendToModule(keyboardTarget_, MSG_PAD_CHARACTER, PadCharacterOf(code), 0);
        return;
    }
    if (!TakesKeys()) {
        if (const CategoryEntry& entry = EntryOf(currentCategory_); entry.keys == KeyRoute::focus) {
            KeySound();
            host_.SendToModule(entry.window, MSG_PAD_KEY, code, 0);
        }
        return;
    }
    KeySound();
    if (currentCategory_ == CATEGORY_MACROS) {
        MacroPadKey(code);
    } else if (IsOrange() && code == KEY_STORE) {
        display_->Key(KEY_NEXT_MEMORY);
    } else if (IsOrange() && code == KEY_RECALL) {
        display_->Key(KEY_CLEAR_MEMORY);
    } else if (IsOrange() && code == KEY_EQUALS) {
        display_->Key(KEY_ANSWER);
    } else {
        SendLowerKey(code);
    }
}

/// The pad under the macro window: some keys serve the macro, and R and "=" stand in for what they cover.
void CMainFrame::MacroPadKey(std::int32_t code) {
    switch (code) {
        case KEY_DIVIDE: SwitchCategory(CATEGORY_ARITHMETIC); break;
        case KEY_CLEAR: macroEditor_->Clear(); break;
        case KEY_MULTIPLY: {
            std::vector<std::u16string> letters;
            for (const char16_t letter : kParameterLetters) {
                letters.emplace_back(1, letter);
            }
            host_.OpenPopup(POPUP_MACRO_LETTERS, {Panel::lower, code}, letters);
            break;
        }
        case KEY_STORE: macroEditor_->Validate(); break;
        case KEY_RECALL: display_->Key(KEY_MULTIPLY); break;
        case KEY_EQUALS: display_->Key(KEY_DIVIDE); break;
        default: SendLowerKey(code); break;
    }
}

void CMainFrame::RunCommand(PanelCommand command, PanelCell cell) {
    switch (command) {
        case PanelCommand::none: break;
        case PanelCommand::chooser: ToggleChooser(); break;
        case PanelCommand::functionList: OpenFunctionList(cell); break;
        case PanelCommand::cycleBase: CycleBase(*display_); break;
        case PanelCommand::cycleWordSize: CycleWordSize(*display_); break;
        case PanelCommand::statisticsKeyboard: host_.ShowMissing(u"Statistics data"); break;
        case PanelCommand::statisticsSummary: host_.ShowMissing(u"Statistics summary"); break;
        case PanelCommand::editMatrix: host_.ShowMissing(u"Edit Matrix"); break;
        case PanelCommand::timeValueDialog: host_.ShowMissing(u"Time value of money"); break;
        case PanelCommand::loanCalculator: host_.ShowMissing(u"Loan calculator"); break;
        case PanelCommand::mortgageCalculator: host_.ShowMissing(u"Mortgage calculator"); break;
    }
}

void CMainFrame::OpenFunctionList(PanelCell cell) {
    std::vector<std::u16string> items;
    for (const FunctionItem& item : kFunctionItems) {
        items.emplace_back(item.text);
    }
    for (const Macro& macro : macros_.All()) {
        items.push_back(CallTextOf(macro) + (macro.remark.empty() ? u"" : u"  " + macro.remark));
    }
    host_.OpenPopup(POPUP_FUNCTIONS, cell, items);
}

void CMainFrame::PopupChosen(PopupId id, int item) {
    const ModuleWindow owner = OwnerOf(id);
    if (owner != ModuleWindow::none) {
        host_.SendToModule(owner, MSG_POPUP_CHOSEN, item, id);
    } else if (item >= 0) {
        const auto index = static_cast<std::size_t>(item);
        if (id == POPUP_FUNCTIONS) {
            ChooseFunction(index);
        } else if (id == POPUP_MACRO_LETTERS && index < kParameterLetters.size()) {
            macroEditor_->InsertLetter(kParameterLetters[index]);
        } else if (id == POPUP_MACRO_NAMES) {
            const std::vector<std::u16string> names = MacroNames();
            macroEditor_->Choose(index < names.size() ? std::u16string_view(names[index]) : u"");
        }
        host_.SendToModule(ModuleWindow::macros, MSG_MACRO_KEYBOARD, 1, 0);
    }
    host_.ClosePopup();
}

void CMainFrame::ChooseFunction(std::size_t item) {
    if (item < std::size(kFunctionItems)) {
        display_->Key(kFunctionItems[item].key);
    } else if (item -= std::size(kFunctionItems); item < macros_.All().size()) {
        const CallTokens call = CallTokensOf(macros_.All()[item]);
        display_->InsertTokens(call.text, call.lengths);
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
    if (keyboardTarget_ != ModuleWindow::none) {
        return;
    }
    ignoreKeyUp_ = (key == HardKey::up && NamesTakeKey(TypeAheadKey::up)) ||
                   (key == HardKey::down && NamesTakeKey(TypeAheadKey::down));
    if (ignoreKeyUp_ || !TakesKeys()) {
        return;
    }
    names_->Close();
    switch (key) {
        case HardKey::left: display_->Key(KEY_LEFT); break;
        case HardKey::right: display_->Key(KEY_RIGHT); break;
        case HardKey::remove: display_->Key(KEY_DELETE); break;
        default: break;
    }
}

void CMainFrame::KeyUp(HardKey key) {
    if (std::exchange(ignoreKeyUp_, false)) {
        return;
    }
    switch (key) {
        case HardKey::up:
        case HardKey::down:
            if (preferences_.hardKeyScrolling != 0) {
                KeySound();
                StepCategory(key == HardKey::up ? -1 : 1);
            }
            break;
        case HardKey::remove:
            if (keyboardTarget_ != ModuleWindow::none) {
                host_.SendToModule(keyboardTarget_, MSG_PAD_CHARACTER, kBackspace, 0);
            }
            break;
        default: KeySound(); break;
    }
}

bool CMainFrame::TakesKeys() const {
    return currentCategory_ <= kLastPanelCategory || currentCategory_ == CATEGORY_CONSTANTS || MacroEditing();
}

bool CMainFrame::CharacterToTarget(char16_t character) {
    if (keyboardTarget_ == ModuleWindow::none) {
        return false;
    }
    if ((character >= u'0' && character <= u'9') ||
        kSoundingCharacters.find(character) != std::u16string_view::npos) {
        KeySound();
    }
    host_.SendToModule(keyboardTarget_, MSG_PAD_CHARACTER, character, 0);
    return true;
}

bool CMainFrame::NamesTakeKey(TypeAheadKey key) {
    return names_->HandleKey(key);
}

void CMainFrame::Character(char16_t character) {
    if (CharacterToTarget(character) || !TakesKeys()) {
        return;
    }
    for (const auto& [typed, key] : kNameKeys) {
        if (character == typed && NamesTakeKey(key)) {
            return;
        }
    }
    if (names_->HandleCharacter(character)) {
        return;
    }
    if (character == kEnter) {
        KeySound();
        // Key-by-key entry in reverse Polish order ends a number by Enter.
        if (preferences_.calculator.inputMode == kModeRpn) {
            display_->Key(KEY_OPEN);
        } else {
            Equals();
        }
    } else if (character == kBackspace) {
        KeySound();
        display_->Key(KEY_LEFT);
        display_->Key(KEY_DELETE);
    } else if (const std::int32_t code = KeyOfCharacter(character, display_->GetBase()); code != KEY_NONE) {
        KeySound();
        SendLowerKey(code);
    }
}

}  // namespace quorix

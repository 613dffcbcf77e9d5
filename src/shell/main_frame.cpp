#include "shell/main_frame.h"

#include <algorithm>

#include "engine/calc_context.h"
#include "engine/number_locale.h"
#include "frontends/base_conversion.h"
#include "matrix/matrix_literal.h"
#include "platform/files.h"
#include "platform/path.h"
#include "platform/utf8.h"

namespace quorix {

namespace {

/// Where a macro under edit can be taken: the pages whose keys it is written with, its own, and Formulas.
constexpr bool ServesMacroEditing(int category) {
    return category == CATEGORY_ARITHMETIC || category == CATEGORY_TRIGONOMETRY ||
           category == CATEGORY_MACROS || category == CATEGORY_FORMULAS;
}

/// Pages that are painted anew when they are chosen a second time.
constexpr bool RepaintsWhenChosenAgain(int category) {
    return category >= CATEGORY_EQUATION_SOLVER && category <= CATEGORY_DATE_TIME;
}

}  // namespace

CMainFrame::CMainFrame(const Surroundings& surroundings, const DeviceScreen& screen)
    : folder_(surroundings.folder),
      host_(surroundings.host),
      timers_(surroundings.frameTimers),
      sound_(surroundings.sound),
      screen_(screen),
      displayFile_(folder_ / kDisplayFileName),
      macroFiles_(folder_) {
    RemoveAbandonedTemporaries(folder_);
    LoadPreferences(folder_ / kPreferencesFileName, surroundings.clock, preferences_);
    display_ = std::make_unique<CLedDisplay>(
        preferences_.calculator, surroundings.displayTimers,
        LedParent{
            .invalidate = [this] { host_.InvalidateDisplay(); },
            .send = [this](LedMessage message) { OnLedMessage(message); },
            .hideToolTip = [this] { host_.ShowHint({}); },
            .showToolTip = [this](std::u16string_view line, std::u16string_view lengths,
                                  int cursor) { host_.ShowHint(hints_.FindHint(line, lengths, cursor)); }});
    names_ = std::make_unique<TypeAhead>(*display_, [this] { host_.NamesChanged(); });
    displayFile_.Restore(*display_);
    macroFiles_.Load(macros_);
    RefreshMacroNames();
    macroEditor_ = std::make_unique<MacroEditor>(macros_, *display_);
    equals_ = std::make_unique<EqualsPath>(
        *display_, surroundings.waitCursor,
        EqualsPath::Hooks{
            .expandMacros = [this](std::u16string& line) { return ExpandMacros(macros_, line); },
            .takeMatrix =
                [this](const CalcValue& matrix) {
                    const char16_t sign = preferences_.calculator.numberLocale == u"European" ? u',' : u'.';
                    return FromUtf8(MatrixText(matrix, sign));
                }});
    previousInputMode_ = preferences_.calculator.inputMode;
}

CMainFrame::~CMainFrame() = default;

void CMainFrame::Start() {
    const int category = preferences_.lastCategory;
    EnterCategory(category);
    CoupleInputMode(CATEGORY_ARITHMETIC, category);
    if (!preferences_.calculator.IsStringMode() && category != CATEGORY_MACROS) {
        // The basic machine starts from 0.
        display_->Key(KEY_CLEAR);
    }
}

void CMainFrame::RefreshMacroNames() {
    std::vector<std::u16string> rows;
    std::vector<TypeAhead::Macro> names;
    for (const Macro& macro : macros_.All()) {
        rows.push_back(CallTextOf(macro));
        names.push_back({macro.name, CallTokensOf(macro).text});
    }
    hints_.SetMacroRows(std::move(rows));
    names_->SetMacros(std::move(names));
}

void CMainFrame::Undo() {
    names_->Close();
    if (TakesKeys()) {
        display_->Undo();
    }
}

void CMainFrame::Redo() {
    names_->Close();
    if (TakesKeys()) {
        display_->Redo();
    }
}

void CMainFrame::EnterCategory(int category) {
    const int previous = currentCategory_;
    names_->Close();
    keyboardTarget_ = ModuleWindow::none;
    EndPress();
    currentCategory_ = category;
    if (!MacroEditing()) {
        display_->SetCategory(category);
    }
    host_.ClosePopup();
    CloseChooser();
    host_.CategoryChanged(category);
    SwitchWindows(previous, category);
    host_.InvalidateAll();
}

void CMainFrame::LeaveWindow(ModuleWindow window) {
    if (!ModuleLive(window)) {
        return;
    }
    if (MacroEditing() && window == ModuleWindow::macros) {
        host_.ShowModule(window, false);
        return;
    }
    host_.DestroyModule(window);
    liveModules_[static_cast<std::size_t>(window)] = false;
}

void CMainFrame::SwitchWindows(int from, int to) {
    const CategoryEntry& entry = EntryOf(to);
    if (const ModuleWindow old = EntryOf(from).window; old != ModuleWindow::none && old != entry.window) {
        LeaveWindow(old);
    }
    if (entry.window == ModuleWindow::none) {
        return;
    }
    if (ModuleLive(entry.window)) {
        host_.ShowModule(entry.window, true);
    } else {
        host_.CreateModule(to);
        liveModules_[static_cast<std::size_t>(entry.window)] = true;
    }
    if (entry.window == ModuleWindow::converter) {
        host_.SendToModule(entry.window, MSG_SET_MODE, entry.mode, 0);
    }
    if (entry.keys == KeyRoute::characters) {
        keyboardTarget_ = entry.window;
        // What the display left pending is no part of the numbers typed here.
        ClearCalcError();
    }
}

void CMainFrame::SwitchCategory(int category) {
    if (category < 0 || category >= kCategoryCount) {
        return;
    }
    if (category == currentCategory_) {
        if (RepaintsWhenChosenAgain(category)) {
            host_.InvalidateAll();
        }
        CloseChooser();
        return;
    }
    if (MacroEditing() && !ServesMacroEditing(category)) {
        return;
    }
    const int previous = currentCategory_;
    if (previous == CATEGORY_BASE_CONVERSION || category == CATEGORY_BASE_CONVERSION) {
        // A line of the base page is not valid elsewhere.
        display_->Key(KEY_CLEAR);
    }
    EnterCategory(category);
    CoupleInputMode(previous, category);
}

void CMainFrame::CoupleInputMode(int from, int to) {
    std::u16string& mode = preferences_.calculator.inputMode;
    const bool basicFrom = from <= kLastBasicModeCategory;
    const bool basicTo = to <= kLastBasicModeCategory;
    if (basicFrom && !basicTo) {
        previousInputMode_ = modeLeft_ = mode;
        mode = kModeString;
    } else if (!basicFrom && basicTo) {
        mode = previousInputMode_;
        if (mode != modeLeft_) {
            // Changed meanwhile: what one machine has on show means nothing to the other.
            display_->Key(KEY_CLEAR);
        }
    }
}

void CMainFrame::StepCategory(int step) {
    if (MacroEditing()) {
        StepWhileEditing(step);
        return;
    }
    const auto& order = preferences_.categoryOrder;
    const auto* const place =
        std::find(order.begin(), order.end(), static_cast<std::uint8_t>(currentCategory_));
    int index = static_cast<int>(place - order.begin());
    for (int tried = 0; tried < kCategoryCount; ++tried) {
        index = (index + step + kCategoryCount) % kCategoryCount;
        const std::uint8_t category = order[static_cast<std::size_t>(index)];
        if (preferences_.categoryEnabled[category] != 0) {
            SwitchCategory(category);
            return;
        }
    }
}

/// Up goes from the later pages to Trigonometry, Arithmetic and Formulas; down goes the other way round.
void CMainFrame::StepWhileEditing(int step) {
    if (step < 0) {
        SwitchCategory(currentCategory_ > CATEGORY_TRIGONOMETRY    ? CATEGORY_TRIGONOMETRY
                       : currentCategory_ == CATEGORY_TRIGONOMETRY ? CATEGORY_ARITHMETIC
                                                                   : CATEGORY_FORMULAS);
    } else {
        SwitchCategory(currentCategory_ > CATEGORY_TRIGONOMETRY    ? CATEGORY_ARITHMETIC
                       : currentCategory_ == CATEGORY_TRIGONOMETRY ? CATEGORY_FORMULAS
                                                                   : CATEGORY_TRIGONOMETRY);
    }
}

void CMainFrame::ToggleChooser() {
    if (chooserOpen_) {
        CloseChooser();
        return;
    }
    host_.ClosePopup();
    chooserOpen_ = true;
    looks_.LatchChooser(true);
    host_.InvalidateCell({Panel::upper, CELL_CHOOSER});
    host_.ShowChooser(true);
}

void CMainFrame::CloseChooser() {
    if (chooserOpen_) {
        chooserOpen_ = false;
        looks_.LatchChooser(false);
        host_.InvalidateCell({Panel::upper, CELL_CHOOSER});
        host_.ShowChooser(false);
    }
}

void CMainFrame::ChooseTool(Tool tool) {
    CloseChooser();
    host_.RunTool(tool);
}

Preferences CMainFrame::UserSettings() const {
    Preferences settings = preferences_;
    if (currentCategory_ > kLastBasicModeCategory) {
        settings.calculator.inputMode = previousInputMode_;
    }
    return settings;
}

void CMainFrame::ApplyPreferences(const Preferences& changed) {
    const bool skinChanged = changed.skinFile != preferences_.skinFile;
    const std::u16string mode = changed.calculator.inputMode;
    const bool modeChanged =
        mode !=
        (currentCategory_ > kLastBasicModeCategory ? previousInputMode_ : preferences_.calculator.inputMode);
    const bool signsChanged = SignsOf(changed.calculator.numberLocale).decimal !=
                              SignsOf(preferences_.calculator.numberLocale).decimal;
    preferences_ = changed;
    if (signsChanged) {
        // Read in the other locale, "1.5" would be fifteen.
        display_->ExchangeDecimalSigns();
        macros_.ExchangeDecimalSigns();
    }
    if (currentCategory_ > kLastBasicModeCategory) {
        // The chosen mode waits for the pages that know it.
        previousInputMode_ = mode;
        preferences_.calculator.inputMode = kModeString;
    } else if (modeChanged) {
        // What one machine has on show means nothing to the other.
        display_->Key(KEY_CLEAR);
    }
    if (skinChanged) {
        host_.ReloadSkin();
    }
    host_.InvalidateAll();
}

void CMainFrame::ToggleMacroEditing() {
    if (!MacroEditing()) {
        macroEditor_->Begin(UserSettings().calculator.inputMode);
    } else if (macroEditor_->End()) {
        StoreMacros();
    }
    host_.InvalidateAll();
}

void CMainFrame::StoreMacros() {
    RefreshMacroNames();
    // At once: a macro is work that a crash should not take.
    macroFiles_.Save(macros_);
}

std::vector<std::u16string> CMainFrame::MacroNames() const {
    std::vector<std::u16string> names;
    for (const Macro& macro : macros_.All()) {
        names.push_back(macro.name);
    }
    return names;
}

void CMainFrame::KeySound() {
    if (sound_ != nullptr && preferences_.soundEnabled != 0 && !preferences_.soundFile.empty()) {
        sound_->Play(ResolvePath(folder_, u"Sounds\\" + preferences_.soundFile));
    }
}

void CMainFrame::SetScreen(const DeviceScreen& screen) {
    EndPress();
    CloseChooser();
    host_.ClosePopup();
    screen_ = screen;
    host_.InvalidateAll();
}

void CMainFrame::Equals() {
    if (MacroEditing()) {
        // The line is a body with parameters; its result would mean nothing and cost the line.
        macroEditor_->Validate();
        return;
    }
    equals_->Run(currentCategory_);
    host_.InvalidateDisplay();
    host_.ResultShown();
}

void CMainFrame::OnLedMessage(LedMessage message) {
    switch (message) {
        case LED_FORMAT_CHANGED: equals_->FormatChanged(); break;
        case LED_BASE_TAPPED: CycleBase(*display_); break;
        case LED_TEX_BUTTON: host_.ShowMissing(u"The equation view"); break;
    }
}

bool CMainFrame::SaveState() {
    if (MacroEditing()) {
        macroEditor_->End();
    }
    const bool macrosWritten = macroFiles_.Save(macros_);
    Preferences saved = UserSettings();
    saved.lastCategory = static_cast<std::uint8_t>(currentCategory_);
    const bool preferencesWritten = SavePreferences(folder_ / kPreferencesFileName, saved);
    const bool displayWritten = displayFile_.Save(*display_);
    return macrosWritten && preferencesWritten && displayWritten;
}

}  // namespace quorix

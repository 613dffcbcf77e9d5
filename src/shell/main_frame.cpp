#include "shell/main_frame.h"

#include <algorithm>

#include "frontends/base_conversion.h"
#include "platform/files.h"
#include "shell/category_registry.h"

namespace quorix {

CMainFrame::CMainFrame(const Surroundings& surroundings, const DeviceScreen& screen)
    : folder_(surroundings.folder),
      host_(surroundings.host),
      timers_(surroundings.frameTimers),
      screen_(screen),
      displayFile_(folder_ / kDisplayFileName) {
    RemoveAbandonedTemporaries(folder_);
    LoadPreferences(folder_ / kPreferencesFileName, surroundings.clock, preferences_);
    display_ =
        std::make_unique<CLedDisplay>(preferences_.calculator, surroundings.displayTimers,
                                      LedParent{.invalidate = [this] { host_.InvalidateDisplay(); },
                                                .send = [this](LedMessage message) { OnLedMessage(message); },
                                                .hideToolTip = {},
                                                .showToolTip = {}});
    displayFile_.Restore(*display_);
    equals_ = std::make_unique<EqualsPath>(*display_, surroundings.waitCursor);
    StartIn(preferences_.lastCategory);
}

CMainFrame::~CMainFrame() = default;

bool CMainFrame::CategoryAvailable(int category) {
    return category >= 0 && category < kCategoryCount &&
           kCategoryAvailable[static_cast<std::size_t>(category)];
}

void CMainFrame::StartIn(int category) {
    previousInputMode_ = preferences_.calculator.inputMode;
    EnterCategory(CategoryAvailable(category) ? category : int{CATEGORY_ARITHMETIC});
    CoupleInputMode(CATEGORY_ARITHMETIC, currentCategory_);
    if (!preferences_.calculator.IsStringMode()) {
        // The basic machine starts from 0.
        display_->Key(KEY_CLEAR);
    }
}

void CMainFrame::EnterCategory(int category) {
    EndPress();
    currentCategory_ = category;
    display_->SetCategory(category);
    host_.CategoryChanged(category);
    host_.InvalidateAll();
}

void CMainFrame::SwitchCategory(int category) {
    if (category == currentCategory_ || !CategoryAvailable(category)) {
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
        previousInputMode_ = mode;
        mode = kModeString;
    } else if (!basicFrom && basicTo) {
        mode = previousInputMode_;
    }
}

void CMainFrame::StepCategory(int step) {
    const auto& order = preferences_.categoryOrder;
    const auto* const place =
        std::find(order.begin(), order.end(), static_cast<std::uint8_t>(currentCategory_));
    int index = static_cast<int>(place - order.begin());
    for (int tried = 0; tried < kCategoryCount; ++tried) {
        index = (index + step + kCategoryCount) % kCategoryCount;
        const std::uint8_t category = order[static_cast<std::size_t>(index)];
        if (preferences_.categoryEnabled[category] != 0 && CategoryAvailable(category)) {
            SwitchCategory(category);
            return;
        }
    }
}

void CMainFrame::SetScreen(const DeviceScreen& screen) {
    EndPress();
    screen_ = screen;
    host_.InvalidateAll();
}

void CMainFrame::Equals() {
    equals_->Run(currentCategory_);
    host_.InvalidateDisplay();
}

void CMainFrame::OnLedMessage(LedMessage message) {
    switch (message) {
        case LED_FORMAT_CHANGED: equals_->FormatChanged(); break;
        case LED_BASE_TAPPED: CycleBase(*display_); break;
        case LED_TEX_BUTTON: break;
    }
}

bool CMainFrame::SaveState() {
    Preferences saved = preferences_;
    saved.lastCategory = static_cast<std::uint8_t>(currentCategory_);
    if (currentCategory_ > kLastBasicModeCategory) {
        saved.calculator.inputMode = previousInputMode_;
    }
    const bool preferencesWritten = SavePreferences(folder_ / kPreferencesFileName, saved);
    const bool displayWritten = displayFile_.Save(*display_);
    return preferencesWritten && displayWritten;
}

}  // namespace quorix

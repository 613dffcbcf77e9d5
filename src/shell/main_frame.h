#pragma once

// The one top-level window's rules: which category is current, to whom a press or a key goes, start and
// shut-down. No window: a host repaints and opens popups.

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string_view>
#include <vector>

#include "frontends/display_file.h"
#include "frontends/equals.h"
#include "frontends/key_panel.h"
#include "frontends/led_display.h"
#include "frontends/panel_keys.h"
#include "platform/clock.h"
#include "platform/screen.h"
#include "platform/timers.h"
#include "shell/preferences.h"

namespace quorix {

/// Timers of the frame.
enum FrameTimer : int {
    TIMER_ONE_SHOT_KEY = 1112,
    TIMER_REPEAT = kRepeatTimer,
    TIMER_HOLD = 1115,
    /// Tap-and-hold in Matrix and Finance.
    TIMER_HOLD_MODULE = 1117,
};

/// Popup lists of the frame, by child id.
enum PopupId : int { POPUP_FUNCTIONS = 1000, POPUP_CATEGORIES = 1001 };

/// Keys of the device and of a keyboard that are no characters.
enum class HardKey : std::uint8_t { up, down, left, right, remove };

/// What the window does for the frame. No call may destroy the frame; only OpenPopup may handle messages
/// before it returns.
class FrameHost {
  public:
    virtual ~FrameHost() = default;
    /// Everything is to be painted anew.
    virtual void InvalidateAll() = 0;
    virtual void InvalidateDisplay() = 0;
    virtual void InvalidateCell(PanelCell cell) = 0;
    /// The category has changed: load its page of labels, show or hide the display.
    virtual void CategoryChanged(int category) = 0;
    /// Opens a list at a cell; the choice comes back through CMainFrame::PopupChosen.
    virtual void OpenPopup(PopupId id, PanelCell at, std::vector<std::u16string_view> items) = 0;
};

class CMainFrame {
  public:
    /// Ports and host outlive the frame; timers and waitCursor may be null. folder: the program folder.
    struct Surroundings {
        std::filesystem::path folder;
        FrameHost& host;
        Clock& clock;
        Timers* frameTimers;
        Timers* displayTimers;
        WaitCursor* waitCursor;
    };

    /// Reads the preferences and the display's file and goes to the saved category.
    CMainFrame(const Surroundings& surroundings, const DeviceScreen& screen);
    ~CMainFrame();
    CMainFrame(const CMainFrame&) = delete;
    CMainFrame& operator=(const CMainFrame&) = delete;

    [[nodiscard]] CLedDisplay& Display() { return *display_; }
    [[nodiscard]] const CLedDisplay& Display() const { return *display_; }
    [[nodiscard]] const Preferences& Settings() const { return preferences_; }
    [[nodiscard]] int CurrentCategory() const { return currentCategory_; }
    [[nodiscard]] Orientation CurrentOrientation() const { return OrientationOf(screen_); }
    [[nodiscard]] int Scale() const { return screen_.Scale(); }
    /// Whether a category (0 to 15) has its window yet.
    [[nodiscard]] static bool CategoryAvailable(int category);
    [[nodiscard]] const PanelLooks& Looks() const { return looks_; }

    /// A rotation or another scale: every window is laid out anew.
    void SetScreen(const DeviceScreen& screen);
    /// The one way to another category, 0 to 15; others, and those without a window yet, do nothing.
    void SwitchCategory(int category);

    /// Pen on the panels; points in device pixels of the frame's client area.
    void ButtonDown(Point point);
    void ButtonUp(Point point);
    void MouseMove(Point point);
    void OnTimer(int id);
    void KeyDown(HardKey key);
    void KeyUp(HardKey key);
    /// A typed character: 8 Backspace, 13 Enter, 27 Esc, else the character itself.
    void Character(char16_t character);
    void PopupChosen(PopupId id, int item);
    /// "=": evaluates the line.
    void Equals();

    /// Shut-down: writes "preferences.dat" and "led.dat". False when one of them could not be written.
    bool SaveState();

  private:
    void StartIn(int category);
    void EnterCategory(int category);
    void CoupleInputMode(int from, int to);
    void StepCategory(int step);
    void UpperDown(int cell);
    void LowerDown(std::int32_t code);
    void UpperUp(int cell);
    void LowerUp(std::int32_t code);
    void RunCommand(PanelCommand command, PanelCell cell);
    void SendLowerKey(std::int32_t code);
    void EndPress();
    void SetTimer(int id, int milliseconds);
    void KillTimers();
    void OnLedMessage(LedMessage message);
    [[nodiscard]] bool IsOrange() const { return holdFired_ || display_->GetShift(); }
    [[nodiscard]] bool TakesKeys() const;

    std::filesystem::path folder_;
    FrameHost& host_;
    Timers* timers_;
    DeviceScreen screen_;
    Preferences preferences_;
    DisplayFile displayFile_;
    std::unique_ptr<CLedDisplay> display_;
    std::unique_ptr<EqualsPath> equals_;
    PanelLooks looks_;
    int currentCategory_ = 0;
    /// The user's mode while a category above 2 forces String mode.
    std::u16string previousInputMode_;
    std::int32_t pressedKey_ = KEY_NONE;
    Point savedPoint_;
    bool holdFired_ = false;
};

}  // namespace quorix

#pragma once

// The one top-level window's rules: which category is current, to whom a press or a key goes, start and
// shut-down. No window: a host repaints and opens popups.

#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

#include "frontends/display_file.h"
#include "frontends/equals.h"
#include "frontends/function_hints.h"
#include "frontends/key_panel.h"
#include "frontends/led_display.h"
#include "frontends/macro_file.h"
#include "frontends/macro_list.h"
#include "frontends/panel_keys.h"
#include "frontends/type_ahead.h"
#include "platform/clock.h"
#include "platform/screen.h"
#include "platform/sound.h"
#include "platform/timers.h"
#include "shell/category_registry.h"
#include "shell/macro_editor.h"
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

/// Popup lists, by child id. What is chosen comes back through CMainFrame::PopupChosen, which carries it out
/// or hands it to the window that owns the list.
enum PopupId : int {
    POPUP_FUNCTIONS = 1000,
    POPUP_UNITS = 1006,
    POPUP_UNIT_CATEGORIES = 1007,
    POPUP_CURRENCIES = 1008,
    POPUP_MACRO_NAMES = 1009,
    POPUP_MACRO_LETTERS = 1010,
    POPUP_MATRICES = 1011,
    POPUP_STATISTICS = 1012,
    POPUP_PERSONS = 1013,
    POPUP_EQUATIONS = 1014,
};

/// The row of tools under the category chooser.
enum class Tool : std::uint8_t { preferences, help, about, exit, count };

/// Keys of the device and of a keyboard that are no characters.
enum class HardKey : std::uint8_t { up, down, left, right, remove, count };

inline constexpr std::size_t kHardKeyCount = static_cast<std::size_t>(HardKey::count);

/// What the window does for the frame. No call may destroy the frame; only RunTool may handle messages
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
    /// Opens a list at a cell. An open one closes first.
    virtual void OpenPopup(PopupId id, PanelCell at, const std::vector<std::u16string>& items) = 0;
    /// Closes an open list, if any.
    virtual void ClosePopup() = 0;
    /// Shows or hides the category chooser.
    virtual void ShowChooser(bool open) = 0;
    virtual void RunTool(Tool tool) = 0;
    /// Shows a function hint at the display's cursor; hides it without one.
    virtual void ShowHint(const std::optional<FunctionHint>& hint) = 0;
    /// The list of function names at the cursor has changed (CMainFrame::Names).
    virtual void NamesChanged() = 0;
    /// "=" has put a result on show.
    virtual void ResultShown() = 0;
    /// A key above the panels wants a window that does not exist.
    virtual void ShowMissing(std::u16string_view name) = 0;

    /// Makes the window of a category, shown at its place (category_registry.h).
    virtual void CreateModule(int category) = 0;
    virtual void DestroyModule(ModuleWindow window) = 0;
    virtual void ShowModule(ModuleWindow window, bool shown) = 0;
    /// Sends a message to a live window; what it returns, or 0.
    virtual std::intptr_t SendToModule(ModuleWindow window, int message, std::intptr_t first,
                                       std::intptr_t second) = 0;
    /// The user has chosen another skin: read it, load its pictures.
    virtual void ReloadSkin() = 0;
};

class CMainFrame {
  public:
    /// Ports and host outlive the frame; timers, waitCursor and sound may be null. folder: the program
    /// folder.
    struct Surroundings {
        std::filesystem::path folder;
        FrameHost& host;
        Clock& clock;
        Timers* frameTimers;
        Timers* displayTimers;
        WaitCursor* waitCursor;
        SoundPlayer* sound;
    };

    /// Reads the preferences and the display's file.
    CMainFrame(const Surroundings& surroundings, const DeviceScreen& screen);
    ~CMainFrame();
    CMainFrame(const CMainFrame&) = delete;
    CMainFrame& operator=(const CMainFrame&) = delete;

    /// Goes to the saved category. Called once, when the host can make windows.
    void Start();

    [[nodiscard]] CLedDisplay& Display() { return *display_; }
    [[nodiscard]] const CLedDisplay& Display() const { return *display_; }
    [[nodiscard]] const Preferences& Settings() const { return preferences_; }
    [[nodiscard]] int CurrentCategory() const { return currentCategory_; }
    [[nodiscard]] Orientation CurrentOrientation() const { return OrientationOf(screen_); }
    [[nodiscard]] int Scale() const { return screen_.Scale(); }
    [[nodiscard]] const PanelLooks& Looks() const { return looks_; }

    /// A rotation or another scale: every window is laid out anew.
    void SetScreen(const DeviceScreen& screen);
    /// The one way to another category, 0 to 15; others do nothing. While a macro is being edited only the
    /// categories that serve editing can be reached.
    void SwitchCategory(int category);

    /// Opens or closes the category chooser.
    void ToggleChooser();
    void CloseChooser();
    [[nodiscard]] bool ChooserOpen() const { return chooserOpen_; }
    /// A tool of the chooser's row; the chooser closes.
    void ChooseTool(Tool tool);

    /// The settings as the user chose them: with his input mode, whatever the category forces.
    [[nodiscard]] Preferences UserSettings() const;
    /// Takes what the preferences dialog gave back; another skin is loaded at once.
    void ApplyPreferences(const Preferences& changed);

    /// Begins or ends the editing of a macro; ending stores it.
    void ToggleMacroEditing();
    [[nodiscard]] bool MacroEditing() const { return macroEditor_->Editing(); }
    [[nodiscard]] MacroEditor& TheMacroEditor() { return *macroEditor_; }
    /// The names of the macros as a list at a place; the choice goes into the editor.
    [[nodiscard]] std::vector<std::u16string> MacroNames() const;
    [[nodiscard]] bool ModuleLive(ModuleWindow window) const {
        return liveModules_[static_cast<std::size_t>(window)];
    }
    /// The window that receives pad keys and typed characters, or none.
    [[nodiscard]] ModuleWindow KeyboardTarget() const { return keyboardTarget_; }
    [[nodiscard]] const MacroList& Macros() const { return macros_; }
    /// Plays the chosen key sound, when sounds are on.
    void KeySound();
    /// The list of names that opens while a letter is typed.
    [[nodiscard]] TypeAhead& Names() { return *names_; }
    /// The spoken name of a cell as it stands now; empty for a dead one. Presses a cell as a short tap does.
    [[nodiscard]] std::u16string_view SpokenName(PanelCell cell) const;
    void PressCell(PanelCell cell);
    /// Takes back the last edit of the line, or does it again.
    void Undo();
    void Redo();
    /// Whether typed characters and pad keys reach the display.
    [[nodiscard]] bool TakesKeys() const;

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

    /// Shut-down: writes the macros, "preferences.dat" and "led.dat". False when one could not be written.
    bool SaveState();

  private:
    void EnterCategory(int category);
    void SwitchWindows(int from, int to);
    void LeaveWindow(ModuleWindow window);
    void CoupleInputMode(int from, int to);
    void StepCategory(int step);
    void StepWhileEditing(int step);
    bool CharacterToTarget(char16_t character);
    void UpperDown(int cell);
    void LowerDown(std::int32_t code);
    void UpperUp(int cell);
    void LowerUp(std::int32_t code);
    void RunCommand(PanelCommand command, PanelCell cell);
    void OpenFunctionList(PanelCell cell);
    void ChooseFunction(std::size_t item);
    void SendLowerKey(std::int32_t code);
    void MacroPadKey(std::int32_t code);
    void StoreMacros();
    void EndPress();
    void SetTimer(int id, int milliseconds);
    void KillTimers();
    void OnLedMessage(LedMessage message);
    [[nodiscard]] bool IsOrange() const { return holdFired_ || display_->GetShift(); }
    void RefreshMacroNames();
    bool NamesTakeKey(TypeAheadKey key);

    std::filesystem::path folder_;
    FrameHost& host_;
    Timers* timers_;
    SoundPlayer* sound_;
    DeviceScreen screen_;
    Preferences preferences_;
    DisplayFile displayFile_;
    std::unique_ptr<CLedDisplay> display_;
    std::unique_ptr<EqualsPath> equals_;
    MacroFiles macroFiles_;
    MacroList macros_;
    std::unique_ptr<MacroEditor> macroEditor_;
    HintTable hints_;
    std::unique_ptr<TypeAhead> names_;
    /// The release of a key whose press went to the list of names.
    bool ignoreKeyUp_ = false;
    PanelLooks looks_;
    int currentCategory_ = 0;
    /// The user's mode while a category above 2 forces String mode.
    std::u16string previousInputMode_;
    /// The mode in which those pages were left.
    std::u16string modeLeft_;
    std::int32_t pressedKey_ = KEY_NONE;
    Point savedPoint_;
    bool holdFired_ = false;
    bool chooserOpen_ = false;
    ModuleWindow keyboardTarget_ = ModuleWindow::none;
    std::array<bool, kModuleWindowCount> liveModules_{};
};

}  // namespace quorix

#pragma once

// A main frame without a window: taps and keys in, rows of the display out.

#include <string>
#include <utility>
#include <vector>

#include "engine/variable_store.h"
#include "platform/utf8.h"
#include "shell/main_frame.h"
#include "support/calculator_rig.h"
#include "support/fake_clock.h"
#include "support/temporary_folder.h"

namespace quorix::testing {

class FakeHost : public FrameHost {
  public:
    void InvalidateAll() override { ++fullRepaints; }
    void InvalidateDisplay() override { ++displayRepaints; }
    void InvalidateCell(PanelCell cell) override { cells.push_back(cell); }
    void CategoryChanged(int category) override { categories.push_back(category); }
    void OpenPopup(PopupId id, PanelCell, const std::vector<std::u16string>& items) override {
        popup = id;
        popupItems = items;
    }
    void ClosePopup() override { popup = 0; }
    void ShowChooser(bool open) override { Log(open ? "chooser" : "no chooser"); }
    void RunTool(Tool tool) override { Log("tool " + std::to_string(static_cast<int>(tool))); }
    void ShowHint(const std::optional<FunctionHint>& shown) override { hint = shown; }
    void NamesChanged() override {}
    void ResultShown() override {}
    void ShowMissing(std::u16string_view name) override { Log("missing " + ToUtf8(name)); }
    void CreateModule(int category) override { Log("create " + std::to_string(category)); }
    void DestroyModule(ModuleWindow window) override { Log("destroy " + Number(window)); }
    void ShowModule(ModuleWindow window, bool shown) override {
        Log((shown ? "show " : "hide ") + Number(window));
    }
    std::intptr_t SendToModule(ModuleWindow window, int message, std::intptr_t first,
                               std::intptr_t second) override {
        Log("send " + Number(window) + ' ' + std::to_string(message) + ' ' + std::to_string(first) + ' ' +
            std::to_string(second));
        return 0;
    }
    void ReloadSkin() override { Log("reload skin"); }
    /// What has been asked of the host since the last call.
    std::vector<std::string> TakeLog() { return std::exchange(log, {}); }
    void Log(std::string what) { log.push_back(std::move(what)); }
    static std::string Number(ModuleWindow window) { return std::to_string(static_cast<int>(window)); }
    std::vector<std::string> log;
    std::optional<FunctionHint> hint;
    int fullRepaints = 0;
    int displayRepaints = 0;
    std::vector<PanelCell> cells;
    std::vector<int> categories;
    int popup = 0;
    std::vector<std::u16string> popupItems;
};

class FakeSound : public SoundPlayer {
  public:
    void Play(const std::filesystem::path& wav) override { played.push_back(wav.filename().string()); }
    std::vector<std::string> played;
};

class FrameRig {
  public:
    /// In a folder of its own.
    explicit FrameRig(DeviceScreen screen = {480, 640}) : FrameRig({}, screen) {}
    explicit FrameRig(const std::filesystem::path& folder, DeviceScreen screen = {480, 640})
        : frame({.folder = folder.empty() ? ownFolder.Path() : folder,
                 .host = host,
                 .clock = clock,
                 .frameTimers = &timers,
                 .displayTimers = &displayTimers,
                 .waitCursor = nullptr,
                 .sound = &sound},
                screen) {
        frame.Start();
    }

    Point CentreOf(PanelCell cell) const {
        const Rect rect = CellRect(frame.CurrentOrientation(), cell).Scaled(frame.Scale());
        return {(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2};
    }
    void Tap(PanelCell cell) {
        frame.ButtonDown(CentreOf(cell));
        frame.ButtonUp(CentreOf(cell));
    }
    /// Taps pad keys by their characters: "1/3=".
    void TapPad(std::string_view keys) {
        for (const char key : keys) {
            for (int code = 0; code < kLowerCellCount; ++code) {
                if (PadCharacterOf(code) == static_cast<char16_t>(key)) {
                    Tap({Panel::lower, code});
                }
            }
        }
    }
    void TypeText(std::u16string_view text) {
        for (const char16_t c : text) {
            frame.Character(c);
        }
    }
    [[nodiscard]] std::string Row() const { return ToUtf8(frame.Display().GetLine()); }
    [[nodiscard]] std::string Result() const { return ToUtf8(frame.Display().GetResultText()); }

    TemporaryFolder ownFolder;
    FakeHost host;
    FakeSound sound;
    FakeClock clock;
    FakeTimers timers;
    FakeTimers displayTimers;
    CMainFrame frame;
};

}  // namespace quorix::testing

#pragma once

// A main frame without a window: taps and keys in, rows of the display out.

#include <string>
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
    void OpenPopup(PopupId id, PanelCell, std::vector<std::u16string_view> items) override {
        popup = id;
        popupItems = std::move(items);
    }
    int fullRepaints = 0;
    int displayRepaints = 0;
    std::vector<PanelCell> cells;
    std::vector<int> categories;
    int popup = 0;
    std::vector<std::u16string_view> popupItems;
};

class FrameRig {
  public:
    explicit FrameRig(const std::filesystem::path& folder, DeviceScreen screen = {480, 640})
        : frame({.folder = folder,
                 .host = host,
                 .clock = clock,
                 .frameTimers = &timers,
                 .displayTimers = &displayTimers,
                 .waitCursor = nullptr},
                screen) {}

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

    FakeHost host;
    FakeClock clock;
    FakeTimers timers;
    FakeTimers displayTimers;
    CMainFrame frame;
};

}  // namespace quorix::testing

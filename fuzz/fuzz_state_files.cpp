// Feeds bytes as the state files. The first byte picks the file. What was read is written and must read the
// same.

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>

#include "frontends/display_file.h"
#include "frontends/led_display.h"
#include "platform/files.h"
#include "scratch_folder.h"
#include "shell/preferences.h"

namespace {

using namespace quorix;

void FuzzDisplay(const std::filesystem::path& path) {
    const CalculatorSettings settings;
    CLedDisplay display(settings, nullptr, {});
    const DisplayFile file(path);
    file.Restore(display);
    display.Key(KEY_NEXT_LINE);
    if (!file.Save(display)) {
        __builtin_trap();
    }
    CLedDisplay again(settings, nullptr, {});
    file.Restore(again);
    for (int page = 0; page < kPageCount; ++page) {
        for (int line = 0; line < kLineCount; ++line) {
            if (again.LineAt(page, line).Text() != display.LineAt(page, line).Text()) {
                __builtin_trap();
            }
        }
    }
}

void FuzzPreferences(const std::filesystem::path& path) {
    SystemClock clock;
    Preferences preferences;
    LoadPreferences(path, clock, preferences);
    Preferences again;
    if (!SavePreferences(path, preferences)) {
        __builtin_trap();
    }
    LoadPreferences(path, clock, again);
    if (again.categoryOrder != preferences.categoryOrder || again.skinFile != preferences.skinFile ||
        again.lastCategory != preferences.lastCategory) {
        __builtin_trap();
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0) {
        return 0;
    }
    const std::filesystem::path path = ScratchFolder() / "state.dat";
    if (!WriteFileAtomically(path, {data + 1, size - 1})) {
        return 0;
    }
    if (data[0] % 2 == 0) {
        FuzzDisplay(path);
    } else {
        FuzzPreferences(path);
    }
    return 0;
}

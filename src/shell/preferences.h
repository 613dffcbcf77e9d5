#pragma once

// The user's settings: process-wide values, read at start and written at shut-down.

#include <array>
#include <cstdint>
#include <filesystem>
#include <string>

#include "frontends/calculator_settings.h"
#include "frontends/categories.h"
#include "platform/clock.h"

namespace quorix {

inline constexpr std::u16string_view kPreferencesFileName = u"preferences.dat";

struct Preferences {
    /// 0 or 1.
    std::uint32_t transparenceEnabled = 1;
    /// Per cent, 0 to 50.
    std::uint32_t transparenceLevel = 8;
    /// 0 or 1: holding a key enters its orange function.
    std::uint32_t tapHoldEnabled = 1;
    /// Milliseconds, 200 to 600.
    std::uint32_t tapHoldInterval = 200;
    /// 0 or 1: Up and Down step through the categories.
    std::uint32_t hardKeyScrolling = 1;
    /// 0 or 1.
    std::uint32_t soundEnabled = 1;
    /// By category id, 0 or 1; read by hard-key scrolling only.
    std::array<std::uint32_t, kCategoryCount> categoryEnabled;
    /// A permutation of 0 to 15.
    std::array<std::uint8_t, kCategoryCount> categoryOrder;
    std::u16string soundFile = u"Sound 01.wav";
    std::u16string skinFile = u"default.inf";
    /// Category to start with, 0 to 15.
    std::uint8_t lastCategory = 0;
    CalendarDay storedDate{1980, 1, 1};
    /// inputMode, numberLocale, fixDigits, fractionLimit, toolTipsEnabled.
    CalculatorSettings calculator;

    Preferences();
};

/// Order 0 to 15.
std::array<std::uint8_t, kCategoryCount> DefaultCategoryOrder();

/// Reads `path`. An absent file leaves the initial values. A damaged one (short, not an archive) is kept as
/// "preferences.dat.bad" and gives the defaults with today's date; tapHoldInterval then keeps what had been
/// read. Values out of range are repaired.
void LoadPreferences(const std::filesystem::path& path, Clock& clock, Preferences& preferences);

/// Writes `path`; false when the disk refuses (the old file then stands untouched).
bool SavePreferences(const std::filesystem::path& path, const Preferences& preferences);

}  // namespace quorix

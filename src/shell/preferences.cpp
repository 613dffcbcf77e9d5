#include "shell/preferences.h"

#include <algorithm>
#include <numeric>

#include "platform/archive.h"
#include "platform/files.h"

namespace quorix {

namespace {

constexpr std::uint32_t kLargestTransparence = 50;
constexpr std::uint32_t kShortestHold = 200;
constexpr std::uint32_t kLongestHold = 600;
constexpr std::uint8_t kMostFixDigits = 32;

void ReadAll(ArchiveReader& archive, Preferences& p) {
    p.transparenceEnabled = archive.ReadU32();
    p.transparenceLevel = archive.ReadU32();
    p.tapHoldEnabled = archive.ReadU32();
    p.tapHoldInterval = archive.ReadU32();
    p.calculator.fixDigits = archive.ReadU8();
    p.hardKeyScrolling = archive.ReadU32();
    p.soundEnabled = archive.ReadU32();
    p.calculator.toolTipsEnabled = archive.ReadU32();
    for (std::uint32_t& enabled : p.categoryEnabled) {
        enabled = archive.ReadU32();
    }
    for (std::uint8_t& category : p.categoryOrder) {
        category = archive.ReadU8();
    }
    p.soundFile = archive.ReadString();
    p.skinFile = archive.ReadString();
    p.lastCategory = archive.ReadU8();
    p.storedDate.year = archive.ReadU32();
    p.storedDate.month = archive.ReadU32();
    p.storedDate.day = archive.ReadU32();
    p.calculator.inputMode = archive.ReadString();
    p.calculator.numberLocale = archive.ReadString();
    p.calculator.fractionLimit = archive.ReadU32();
}

/// Keeps the first occurrence of each category and appends the missing ones.
void RepairOrder(std::array<std::uint8_t, kCategoryCount>& order) {
    std::array<bool, kCategoryCount> seen{};
    std::array<std::uint8_t, kCategoryCount> repaired{};
    std::size_t count = 0;
    const auto take = [&](std::uint8_t category) {
        if (category < kCategoryCount && !seen[category]) {
            seen[category] = true;
            repaired[count++] = category;
        }
    };
    std::for_each(order.begin(), order.end(), take);
    for (std::uint8_t category = 0; category < kCategoryCount; ++category) {
        take(category);
    }
    order = repaired;
}

template <std::size_t N>
void RepairChoice(std::u16string& value, const std::u16string_view (&choices)[N]) {
    if (std::find(std::begin(choices), std::end(choices), value) == std::end(choices)) {
        value = choices[0];
    }
}

/// A name of a file beside the program, never a path that leads out of its folder.
void RepairFileName(std::u16string& name, std::u16string_view fallback) {
    if (name.empty() || name.find_first_of(u"/\\") != std::u16string::npos ||
        name.find(u'\0') != std::u16string::npos) {
        name = fallback;
    }
}

void Repair(Preferences& p) {
    constexpr std::u16string_view kModes[] = {kModeString, kModeBasic, kModeRpn};
    constexpr std::u16string_view kLocales[] = {u"English (US)", u"English (UK)", u"European"};
    p.transparenceLevel = std::min(p.transparenceLevel, kLargestTransparence);
    p.tapHoldInterval = std::clamp(p.tapHoldInterval, kShortestHold, kLongestHold);
    p.calculator.fixDigits = std::min(p.calculator.fixDigits, kMostFixDigits);
    RepairOrder(p.categoryOrder);
    RepairFileName(p.soundFile, Preferences().soundFile);
    RepairFileName(p.skinFile, Preferences().skinFile);
    if (p.lastCategory >= kCategoryCount) {
        p.lastCategory = 0;
    }
    RepairChoice(p.calculator.inputMode, kModes);
    RepairChoice(p.calculator.numberLocale, kLocales);
}

}  // namespace

std::array<std::uint8_t, kCategoryCount> DefaultCategoryOrder() {
    std::array<std::uint8_t, kCategoryCount> order{};
    std::iota(order.begin(), order.end(), std::uint8_t{0});
    return order;
}

Preferences::Preferences() : categoryOrder(DefaultCategoryOrder()) {
    categoryEnabled.fill(1);
}

void LoadPreferences(const std::filesystem::path& path, Clock& clock, Preferences& preferences) {
    preferences = Preferences{};
    const auto bytes = ReadWholeFile(path);
    if (!bytes) {
        return;
    }
    try {
        ArchiveReader archive(*bytes);
        ReadAll(archive, preferences);
    } catch (const ArchiveException&) {
        KeepDamagedFile(path);
        // No default is given to the interval here; this is intended.
        const std::uint32_t interval = preferences.tapHoldInterval;
        preferences = Preferences{};
        preferences.tapHoldInterval = interval;
        preferences.storedDate = clock.Today();
    }
    Repair(preferences);
}

bool SavePreferences(const std::filesystem::path& path, const Preferences& p) {
    ArchiveWriter archive;
    archive.WriteU32(p.transparenceEnabled);
    archive.WriteU32(p.transparenceLevel);
    archive.WriteU32(p.tapHoldEnabled);
    archive.WriteU32(p.tapHoldInterval);
    archive.WriteU8(p.calculator.fixDigits);
    archive.WriteU32(p.hardKeyScrolling);
    archive.WriteU32(p.soundEnabled);
    archive.WriteU32(p.calculator.toolTipsEnabled);
    for (const std::uint32_t enabled : p.categoryEnabled) {
        archive.WriteU32(enabled);
    }
    for (const std::uint8_t category : p.categoryOrder) {
        archive.WriteU8(category);
    }
    archive.WriteString(p.soundFile);
    archive.WriteString(p.skinFile);
    archive.WriteU8(p.lastCategory);
    archive.WriteU32(p.storedDate.year);
    archive.WriteU32(p.storedDate.month);
    archive.WriteU32(p.storedDate.day);
    archive.WriteString(p.calculator.inputMode);
    archive.WriteString(p.calculator.numberLocale);
    archive.WriteU32(p.calculator.fractionLimit);
    return WriteFileAtomically(path, archive.Bytes());
}

}  // namespace quorix

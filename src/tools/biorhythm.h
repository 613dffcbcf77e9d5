#pragma once

// The biorhythm of a person on a day: the graph, the percentages read off it, and the report's HTML.

#include <array>
#include <cstdint>
#include <filesystem>
#include <string>

#include "platform/clock.h"
#include "platform/geometry.h"
#include "tools/biorhythm_advice.h"
#include "tools/biorhythm_curve.h"
#include "tools/biorhythm_cycles.h"
#include "tools/solar_date.h"

namespace quorix {

/// Whole days from birth to `view`; 0 when the birth lies later.
std::int64_t DaysSinceBirth(const SolarDate& birth, const SolarDate& view);

inline constexpr ColorRef kGraphAxisColor = MakeColor(0xC0, 0xC0, 0xC0);

/// What a window paints, in its own coordinates: white ground, an outline one point outside, two axes that
/// are one point longer at each end (both end points belong to them), and the curves in the order of kCycles,
/// one display unit wide.
struct BiorhythmGraph {
    Rect ground;
    Rect outline;
    Point horizontalAxis[2];
    Point verticalAxis[2];
    std::array<BiorhythmCurve, kCycleCount> curves;
};

class Biorhythm {
  public:
    /// The clock's ticks seed the choice among pieces of advice; it must outlive this.
    explicit Biorhythm(Clock& clock) : clock_(&clock) {}

    /// As BiorhythmAdvice::Load.
    bool Load(const std::filesystem::path& path) { return advice_.Load(path); }
    void SetAdvice(BiorhythmAdvice advice) { advice_ = std::move(advice); }

    /// The graph for a rectangle; sets the percentages. A report needs it, since it shows them.
    BiorhythmGraph Draw(const Rect& rectangle, const SolarDate& birth, const SolarDate& view);
    /// By cycle; 0 before the first Draw.
    [[nodiscard]] const std::array<float, kCycleCount>& Percentages() const { return percentages_; }

    /// The report's part on one cycle (period 23, 28, 33 or 38); empty when there is no advice of its class.
    [[nodiscard]] std::u16string AdviceBlock(std::int64_t days, std::int32_t period) const;
    /// The whole report for a day since birth, with the percentages of the last Draw.
    [[nodiscard]] std::u16string BuildReport(std::int64_t days) const;

  private:
    [[nodiscard]] std::u16string HeadTable() const;

    Clock* clock_;
    BiorhythmAdvice advice_;
    std::array<float, kCycleCount> percentages_{};
};

}  // namespace quorix

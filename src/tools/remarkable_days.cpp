#include "tools/remarkable_days.h"

#include <algorithm>
#include <bit>

#include "tools/biorhythm.h"
#include "tools/biorhythm_cycles.h"
#include "tools/calendar_rules.h"

namespace quorix {

namespace {

constexpr std::int32_t kFewestCycles = 2;
constexpr int kGoodIcon = 0;
constexpr int kBadIcon = 1;

/// The days of the four cycles, moved on day by day without divisions.
class CycleDays {
  public:
    explicit CycleDays(std::int64_t days) {
        for (std::size_t i = 0; i < kCycleCount; ++i) {
            days_[i] = static_cast<std::int32_t>(days % kCycles[i].period);
        }
    }

    void Next() {
        for (std::size_t i = 0; i < kCycleCount; ++i) {
            ++days_[i];
            if (days_[i] == kCycles[i].period) {
                days_[i] = 0;
            }
        }
    }

    /// The cycles that stand on the day `day` of theirs, a bit each.
    [[nodiscard]] std::uint32_t CyclesAt(std::int32_t BiorhythmCycle::*day) const {
        std::uint32_t mask = 0;
        for (std::size_t i = 0; i < kCycleCount; ++i) {
            mask |= static_cast<std::uint32_t>(days_[i] == kCycles[i].*day) << i;
        }
        return mask;
    }

  private:
    std::array<std::int32_t, kCycleCount> days_{};
};

std::u16string CycleList(std::uint32_t mask) {
    std::u16string text;
    for (std::size_t i = 0; i < kCycleCount; ++i) {
        if ((mask >> i & 1U) != 0) {
            text += text.empty() ? u"" : u", ";
            text += kCycles[i].name;
        }
    }
    return text;
}

SolarDate DateOfDay(const SolarDate& birth, std::int64_t days) {
    SolarDate date(birth.year, birth.month, birth.day);
    date.AddDays(days);
    return date;
}

}  // namespace

std::vector<RemarkableDay> FindRemarkableDays(const SolarDate& birth, const SolarDate& view,
                                              std::int32_t years, bool showGood, bool showBad,
                                              DateOrder order) {
    const std::int64_t first = DaysSinceBirth(birth, view) + 1;
    constexpr std::int64_t kMostYears = 10000;
    const std::int64_t endYear =
        std::clamp<std::int64_t>(static_cast<std::int64_t>(view.year) + years, view.year,
                                 std::min<std::int64_t>(view.year + kMostYears, INT32_MAX));
    SolarDate end(1, 1, 1);
    end.SetClamped(static_cast<std::int32_t>(endYear), view.month, view.day, 0, 0, 0);
    const std::int64_t last = DaysSinceBirth(birth, end);

    std::vector<RemarkableDay> rows;
    CycleDays cycles(first);
    for (std::int64_t n = first; n < last; ++n, cycles.Next()) {
        const auto add = [&](std::uint32_t mask, bool show, int icon) {
            if (show && std::popcount(mask) >= kFewestCycles) {
                rows.push_back({DateText(DateOfDay(birth, n), order), CycleList(mask), icon});
            }
        };
        add(cycles.CyclesAt(&BiorhythmCycle::maximum), showGood, kGoodIcon);
        add(cycles.CyclesAt(&BiorhythmCycle::minimum), showBad, kBadIcon);
    }
    return rows;
}

ImportantDates::ImportantDates(const SolarDate& birth, const SolarDate& view, DateOrder order)
    : birth_(birth), view_(view), order_(order) {
    Refill();
}

void ImportantDates::SetShowGood(bool show) {
    showGood_ = show;
    Refill();
}

void ImportantDates::SetShowBad(bool show) {
    showBad_ = show;
    Refill();
}

void ImportantDates::ChooseYears(std::size_t index) {
    yearsChoice_ = std::min(index, kRemarkableYears.size() - 1);
    Refill();
}

SolarDate ImportantDates::DateOfRow(std::size_t row) const {
    return ReadDateText(rows_[row].date, order_);
}

void ImportantDates::Refill() {
    rows_ = FindRemarkableDays(birth_, view_, kRemarkableYears[yearsChoice_], showGood_, showBad_, order_);
}

}  // namespace quorix

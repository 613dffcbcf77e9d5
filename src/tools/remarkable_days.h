#pragma once

// Days on which at least two cycles stand at their maximum, or at their minimum.

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "tools/date_order.h"
#include "tools/solar_date.h"

namespace quorix {

struct RemarkableDay {
    /// By the display order.
    std::u16string date;
    /// "Physical, Emotional".
    std::u16string cycles;
    /// 0 for a good day, 1 for a bad one.
    int icon;
};

/// The remarkable days from the one after `view` to before the same date `years` later (28 February for a
/// 29th that this year lacks), in order; a day that is both gives two rows, the good one first.
std::vector<RemarkableDay> FindRemarkableDays(const SolarDate& birth, const SolarDate& view,
                                              std::int32_t years, bool showGood, bool showBad,
                                              DateOrder order);

/// What "for the next ... years" offers.
inline constexpr std::array<std::int32_t, 18> kRemarkableYears = {1,  2,  3,  4,  5,  6,  7,  8,  9,
                                                                  10, 15, 20, 25, 30, 35, 40, 45, 50};

/// The dialog of remarkable days: its choices and its list.
class ImportantDates {
  public:
    ImportantDates(const SolarDate& birth, const SolarDate& view, DateOrder order);

    [[nodiscard]] bool ShowsGood() const { return showGood_; }
    [[nodiscard]] bool ShowsBad() const { return showBad_; }
    /// Index in kRemarkableYears.
    [[nodiscard]] std::size_t YearsChoice() const { return yearsChoice_; }
    [[nodiscard]] const std::vector<RemarkableDay>& Rows() const { return rows_; }

    // Each refills the list.
    void SetShowGood(bool show);
    void SetShowBad(bool show);
    /// Indexes beyond the last count as the last.
    void ChooseYears(std::size_t index);

    /// The date of a row, which becomes the date in view; at midnight. The row must exist.
    [[nodiscard]] SolarDate DateOfRow(std::size_t row) const;

  private:
    void Refill();

    SolarDate birth_;
    SolarDate view_;
    DateOrder order_;
    bool showGood_ = true;
    bool showBad_ = true;
    std::size_t yearsChoice_ = 4;
    std::vector<RemarkableDay> rows_;
};

inline constexpr std::u16string_view kImportantDatesTitle = u"Important dates report";
inline constexpr std::u16string_view kImportantDatesHeading = u"Remarkable days";
inline constexpr std::u16string_view kShowGoodLabel = u"Show good day";
inline constexpr std::u16string_view kShowBadLabel = u"Show bad day";
inline constexpr std::u16string_view kForTheNextLabel = u"for the next";
inline constexpr std::u16string_view kYearsLabel = u"years";

struct ImportantDatesColumn {
    std::u16string_view title;
    /// Logical units.
    int width;
};
inline constexpr std::array<ImportantDatesColumn, 2> kImportantDatesColumns = {
    {{u"Date", 100}, {u"Biorythm", 150}}};

}  // namespace quorix

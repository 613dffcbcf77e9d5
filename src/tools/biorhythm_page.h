#pragma once

// The biorhythm's page: persons, the two dates with their labels, and what follows from a change of either.

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "tools/biorhythm.h"
#include "tools/date_order.h"
#include "tools/persons.h"
#include "tools/remarkable_days.h"

namespace quorix {

/// The first report waits so long (milliseconds), so that the graph has been painted and has percentages.
inline constexpr int kFirstReportTimer = 1000;
inline constexpr int kFirstReportDelay = 100;

class BiorhythmPage {
  public:
    /// birth: from the preferences. The date in view is today by `clock`, which must outlive this.
    BiorhythmPage(Clock& clock, const SolarDate& birth, DateOrder order);

    /// Reads both files of the program's folder and shows the current person. Gives the message to show
    /// (title kAdviceMissingTitle), empty when there is none.
    std::u16string_view Open(const std::filesystem::path& folder);
    /// Writes the persons where Open has read them; false when the disk refuses.
    [[nodiscard]] bool Close() const;

    [[nodiscard]] const SolarDate& Birth() const { return birth_; }
    [[nodiscard]] const SolarDate& View() const { return view_; }
    void SetBirth(const SolarDate& birth);
    void SetView(const SolarDate& view) { view_ = view; }

    void SetOrder(DateOrder order) { order_ = order; }
    [[nodiscard]] DateOrder Order() const { return order_; }
    /// "Date of birth: 31/12/1980", on a landscape screen "B: 31/12/1980".
    [[nodiscard]] std::u16string BirthLabel(bool landscape) const;
    [[nodiscard]] std::u16string ViewLabel(bool landscape) const;

    /// The current person's name; empty without one.
    [[nodiscard]] std::u16string Name() const;
    void SetName(std::u16string_view name) { persons_.Rename(name); }
    /// All names and, last, "New person...".
    [[nodiscard]] std::vector<std::u16string> PersonItems() const;
    /// Makes the chosen person current, or a new one. True for a new one: its name is then to be entered.
    bool ChoosePersonItem(std::size_t item);
    /// Without a person left the dates stay as they are.
    void RemovePerson(std::size_t index);
    [[nodiscard]] const Persons& People() const { return persons_; }

    BiorhythmGraph Draw(const Rect& rectangle);
    /// The report on the present dates; its percentages are those of the graph in the rectangle of the last
    /// Draw, which may still be to be painted anew, and 0 before the first.
    [[nodiscard]] std::u16string BuildReport();
    [[nodiscard]] ImportantDates OpenImportantDates() const { return {birth_, view_, order_}; }

  private:
    void ShowCurrentPerson();

    Biorhythm biorhythm_;
    std::optional<Rect> drawn_;
    Persons persons_;
    std::filesystem::path personsPath_;
    SolarDate birth_;
    SolarDate view_;
    DateOrder order_;
};

}  // namespace quorix

#pragma once

// The table in which rates are edited by hand.

#include <filesystem>
#include <span>
#include <string>
#include <vector>

#include "reference/unit_table.h"

namespace quorix {

/// Row of the table; rate: units of the currency for one of the base.
struct CurrencyTableRow {
    std::u16string symbol;
    std::u16string rate;
    std::u16string name;
};

/// Widths in logical units; a column of width 0 comes first.
struct CurrencyTableColumn {
    std::u16string_view title;
    int width;
    bool centred;
};
inline constexpr CurrencyTableColumn kCurrencyTableColumns[] = {
    {u"", 0, true}, {u"Symbol", 55, true}, {u"Exchange Rate", 100, true}, {u"Name", 150, false}};

/// The model of the rate editor; the unit table outlives it. It shows whatever rows the table holds when it
/// is filled.
class CurrencyTable {
  public:
    explicit CurrencyTable(UnitTable& table) : table_(table) {}

    /// The rows as text, rates with 6 decimals and at most 14 characters.
    const std::vector<CurrencyTableRow>& Fill();
    /// Takes the edited rates, one text a row of Fill, and writes `path`. A rate that is no number above 0
    /// and one that was not edited leave their row as it is, and so does the base its own. False when the
    /// file cannot be written or the rows come from another file than `path`: nothing is changed then but the
    /// factors of rows that come from it.
    bool Store(std::span<const std::u16string> rates, const std::filesystem::path& path);

  private:
    UnitTable& table_;
    std::vector<CurrencyTableRow> rows_;
};

}  // namespace quorix

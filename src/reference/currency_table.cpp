#include "reference/currency_table.h"

#include <algorithm>

#include "reference/currency_file.h"
#include "reference/number_text.h"

namespace quorix {

namespace {

constexpr int kRateDecimals = 6;
constexpr std::size_t kLongestRate = 14;

std::u16string RateText(double factor) {
    const std::string text = FixedDecimals(factor > 0 ? 1 / factor : 0.0, kRateDecimals);
    return std::u16string(text.begin(),
                          text.begin() + static_cast<std::ptrdiff_t>(std::min(text.size(), kLongestRate)));
}

}  // namespace

const std::vector<CurrencyTableRow>& CurrencyTable::Fill() {
    rows_.clear();
    for (const UnitRecord& record : table_.Records()) {
        rows_.push_back({record.symbol, RateText(record.factor), record.name});
    }
    return rows_;
}

bool CurrencyTable::Store(std::span<const std::u16string> rates, const std::filesystem::path& path) {
    // Units of another kind than money must not end up in the file of rates.
    if (table_.LoadedPath() != path) {
        return false;
    }
    const std::size_t count = std::min({rates.size(), rows_.size(), table_.Records().size()});
    for (std::size_t i = 0; i < count; ++i) {
        const UnitRecord& record = table_.Records()[i];
        // An update may have put other rows in the place of those on show.
        const bool isEdited = rates[i] != rows_[i].rate && record.symbol == rows_[i].symbol;
        const double rate = LeadingNumber(rates[i]);
        if (isEdited && rate > 0 && 1 / rate > 0 && !record.IsBase()) {
            table_.SetFactor(i, 1 / rate);
        }
    }
    return SaveCurrency(path, table_.Records());
}

}  // namespace quorix

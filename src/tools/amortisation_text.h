#pragma once

// The result dialogs of loan and mortgage as texts: titles, columns, lines above the table, rows.

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "tools/loan_plan.h"
#include "tools/mortgage_plan.h"

namespace quorix {

struct ResultColumn {
    std::u16string_view title;
    /// Logical units.
    int width;
    bool centred;
};

inline constexpr std::u16string_view kLoanResultTitle = u"Loan result";
inline constexpr std::array<ResultColumn, 5> kLoanColumns = {{{u"Period", 48, true},
                                                              {u"Years", 45, false},
                                                              {u"Balance", 75, false},
                                                              {u"Int", 65, false},
                                                              {u"Principal", 65, false}}};

inline constexpr std::u16string_view kMortgageResultTitle = u"Mortgage result";
inline constexpr std::array<ResultColumn, 5> kMortgageColumns = {{{u"Year", 37, false},
                                                                  {u"Month", 50, false},
                                                                  {u"Prin%", 55, false},
                                                                  {u"Int", 65, false},
                                                                  {u"Balance", 75, false}}};

using ResultRow = std::array<std::u16string, 5>;
using ResultLines = std::array<std::u16string, 4>;

/// Amounts stand with the separators of the number locale.
ResultLines LoanLines(const LoanPlan& plan, std::u16string_view numberLocale);
std::vector<ResultRow> LoanRows(const LoanPlan& plan, std::u16string_view numberLocale);

ResultLines MortgageLines(const MortgagePlan& plan, std::u16string_view numberLocale);
/// Month by month, with a row "Totals" behind each full year: the average of its percentages, the sum of its
/// interests, and the balance one month behind the year's end (0 behind the last year), which is intended.
std::vector<ResultRow> MortgageRows(const MortgagePlan& plan);

}  // namespace quorix

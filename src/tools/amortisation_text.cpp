#include "tools/amortisation_text.h"

#include "engine/identifiers.h"
#include "engine/number_locale.h"
#include "tools/calendar_names.h"
#include "tools/number_text.h"

namespace quorix {

namespace {

constexpr std::size_t kMonths = 12;

std::u16string Separated(double value, int decimals, std::u16string_view numberLocale) {
    std::u16string text = WideFixedText(value, decimals);
    ApplySeparators(text, numberLocale, RADIX_DEC);
    return text;
}

std::u16string Line(std::u16string_view label, double value, std::u16string_view numberLocale) {
    return std::u16string(label) + Separated(value, 2, numberLocale);
}

ResultRow MortgageMonth(std::size_t year, std::size_t month, const MortgageRow& row) {
    return {IntegerText(static_cast<std::int64_t>(year)),
            std::u16string(ShortMonthName(static_cast<std::int32_t>(month))),
            WideFixedText(row.prinPercent, 2), WideFixedText(row.interest, 2), WideFixedText(row.balance, 2)};
}

ResultRow MortgageTotals(std::size_t year, const std::vector<MortgageRow>& table) {
    double percents = 0.0;
    double interests = 0.0;
    for (std::size_t i = kMonths * (year - 1); i < kMonths * year; ++i) {
        percents += table[i].prinPercent;
        interests += table[i].interest;
    }
    const std::size_t next = kMonths * year;
    return {IntegerText(static_cast<std::int64_t>(year)), u"Totals",
            WideFixedText(percents * (1.0 / kMonths), 2), WideFixedText(interests, 2),
            WideFixedText(next < table.size() ? table[next].balance : 0.0, 2)};
}

}  // namespace

ResultLines LoanLines(const LoanPlan& plan, std::u16string_view numberLocale) {
    return {Line(u"Payment per period: ", plan.payment, numberLocale),
            u"Interest rate per period: " + Separated(plan.ratePerPeriod, 4, numberLocale) + u"%",
            Line(u"Total Payments: ", plan.totalPayments, numberLocale),
            Line(u"Total Interest: ", plan.totalInterest, numberLocale)};
}

std::vector<ResultRow> LoanRows(const LoanPlan& plan, std::u16string_view numberLocale) {
    std::vector<ResultRow> rows;
    rows.reserve(plan.table.size());
    for (const LoanRow& row : plan.table) {
        rows.push_back({IntegerText(static_cast<std::int64_t>(rows.size()) + 1), WideFixedText(row.years, 3),
                        Separated(row.balance, 2, numberLocale), Separated(row.interest, 2, numberLocale),
                        Separated(row.principal, 2, numberLocale)});
    }
    return rows;
}

ResultLines MortgageLines(const MortgagePlan& plan, std::u16string_view numberLocale) {
    return {Line(u"Monthly payment:  ", plan.monthlyPayment, numberLocale),
            Line(u"Avg.monthly interest: ", plan.avgMonthlyInterest, numberLocale),
            Line(u"Total Payments: ", plan.totalPayments, numberLocale),
            Line(u"Total Interest: ", plan.totalInterest, numberLocale)};
}

std::vector<ResultRow> MortgageRows(const MortgagePlan& plan) {
    std::vector<ResultRow> rows;
    for (std::size_t number = 1; number <= plan.table.size(); ++number) {
        if (static_cast<double>(number) > static_cast<double>(kMonths) * plan.years) {
            break;
        }
        const std::size_t year = (number - 1) / kMonths + 1;
        const std::size_t month = (number - 1) % kMonths + 1;
        rows.push_back(MortgageMonth(year, month, plan.table[number - 1]));
        if (month == kMonths) {
            rows.push_back(MortgageTotals(year, plan.table));
        }
    }
    return rows;
}

}  // namespace quorix

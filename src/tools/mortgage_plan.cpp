#include "tools/mortgage_plan.h"

#include <algorithm>
#include <cmath>

#include "tools/round_to.h"

namespace quorix {

void MortgagePlan::Compute(double givenAmount, double rate, double length) {
    amount = RoundTo(givenAmount, kMoneyDigits);
    annualRate = RoundTo(rate, kYearlyRateDigits);
    years = RoundTo(length, kCountDigits);
    const double n = RoundTo(years * 12.0, kCountDigits);
    const double i = RoundTo(annualRate * (1.0 / 1200.0), kPeriodRateDigits);
    const double exact = i != 0.0 ? i * amount / (1.0 - std::pow(1.0 + i, -n)) : amount / n;
    monthlyPayment = RoundTo(exact, kMoneyDigits);
    totalInterest = 0.0;
    table.clear();

    double rest = amount;
    const double rows = std::min(std::trunc(n), kMostMortgageRows);
    for (double k = 1.0; k <= rows; k += 1.0) {
        const double interest = RoundTo(i * rest, kMoneyDigits);
        const double principal = monthlyPayment - interest;
        const double percent = monthlyPayment != 0.0 ? RoundTo(principal / monthlyPayment * 100.0, 2) : 0.0;
        rest -= principal;
        totalInterest += interest;
        table.push_back({interest, percent, rest});
    }
    totalPayments = amount + totalInterest;
    avgMonthlyInterest = RoundTo(totalInterest / n, kMoneyDigits);
}

}  // namespace quorix

#include "tools/loan_plan.h"

#include <algorithm>
#include <cmath>

#include "tools/round_to.h"

namespace quorix {

namespace {

/// amount i (1 + i)^n / ((1 + i)^n - 1).
double AnnuityPayment(double amount, double i, double n) {
    if (i == 0.0) {
        return amount / n;
    }
    const double growth = std::pow(1.0 + i, n);
    return amount * i * growth / (growth - 1.0);
}

/// How many payments repay the amount, rounded up. Without meaning when the interest is not covered.
double PaymentsNeeded(double amount, double i, double payment) {
    const double n = i == 0.0 ? amount / payment
                              : (std::log(payment / amount) - std::log(std::fabs(payment / amount - i))) /
                                    std::log(1.0 + i);
    return std::ceil(n);
}

}  // namespace

void LoanPlan::Compute(double amount, double rate, double periods, double count, double givenPayment) {
    balance = RoundTo(amount, kMoneyDigits);
    annualRate = RoundTo(rate, kYearlyRateDigits);
    periodsPerYear = RoundTo(periods, kCountDigits);
    payments = RoundTo(count, kCountDigits);
    payment = RoundTo(givenPayment, kMoneyDigits);
    const double i = RoundTo(annualRate / periodsPerYear * 0.01, kPeriodRateDigits);
    if (payment == kPaymentWanted) {
        payment = RoundTo(AnnuityPayment(balance, i, payments), kMoneyDigits);
    } else if (payment != 0.0) {
        payments = std::min(payments, PaymentsNeeded(balance, i, payment));
    }
    ratePerPeriod = RoundTo(annualRate / periodsPerYear, kYearlyRateDigits);
    totalPayments = 0.0;
    totalInterest = 0.0;
    table.clear();

    double rest = balance;
    const double rows = std::min(std::trunc(payments), kMostLoanRows);
    for (double k = 1.0; k <= rows; k += 1.0) {
        LoanRow row{RoundTo(k / periodsPerYear, 3), rest, RoundTo(rest * i, kMoneyDigits), 0.0};
        totalInterest += row.interest;
        if (row.interest + rest <= payment) {
            row.principal = row.interest + rest;
            totalPayments += row.principal;
            table.push_back(row);
            break;
        }
        row.principal = payment - row.interest;
        totalPayments += payment;
        rest -= row.principal;
        table.push_back(row);
    }
}

}  // namespace quorix

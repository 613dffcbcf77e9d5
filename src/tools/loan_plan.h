#pragma once

// A loan repaid by equal payments, with its amortisation table.

#include <vector>

namespace quorix {

/// Rows that a table has at most, whatever the number of payments.
inline constexpr double kMostLoanRows = 100000.0;

/// Tells Compute to find the payment.
inline constexpr double kPaymentWanted = -1.0;

struct LoanRow {
    /// Since the start, with three decimals.
    double years = 0.0;
    /// Before this payment.
    double balance = 0.0;
    double interest = 0.0;
    /// Of the last row: the rest of the balance and its interest together, which is intended.
    double principal = 0.0;
};

struct LoanPlan {
    double balance = 0.0;
    /// Per cent a year.
    double annualRate = 0.0;
    double periodsPerYear = 0.0;
    double payments = 0.0;
    double payment = 0.0;
    /// Per cent a period.
    double ratePerPeriod = 0.0;
    double totalPayments = 0.0;
    double totalInterest = 0.0;
    std::vector<LoanRow> table;

    /// givenPayment: kPaymentWanted to have it found from the annuity's formula; any other value but 0 may
    /// shorten the loan. 0 and payments below the interest let the balance grow. Values must be positive as
    /// the loan form checks; others give values without meaning, and infinite or no numbers.
    void Compute(double amount, double rate, double periods, double count, double givenPayment);
};

}  // namespace quorix

#pragma once

// A mortgage repaid by equal monthly payments, with its amortisation table.

#include <vector>

namespace quorix {

/// Rows that a table has at most, whatever the length.
inline constexpr double kMostMortgageRows = 100000.0;

struct MortgageRow {
    double interest = 0.0;
    /// Per cent of the payment that repays; 0 without a payment.
    double prinPercent = 0.0;
    /// After this payment.
    double balance = 0.0;
};

struct MortgagePlan {
    double amount = 0.0;
    /// Per cent a year.
    double annualRate = 0.0;
    double years = 0.0;
    double avgMonthlyInterest = 0.0;
    double monthlyPayment = 0.0;
    double totalInterest = 0.0;
    double totalPayments = 0.0;
    std::vector<MortgageRow> table;

    /// Values must be as the mortgage form checks; others give values without meaning, and infinite or no
    /// numbers.
    void Compute(double givenAmount, double rate, double length);
};

}  // namespace quorix

#pragma once

// The forms of the finance category as texts in their boxes. Each number is read from the start of its text,
// 0 when there is none.

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "tools/loan_plan.h"
#include "tools/mortgage_plan.h"

namespace quorix {

inline constexpr std::u16string_view kInputError = u"Input Error!";
inline constexpr std::u16string_view kInputErrorTitle = u"Error";

/// A text of a box that holds whole numbers from 0 to `most`, as it is typed: `most` for a larger one, "0"
/// for a negative one.
std::u16string HeldNumber(std::u16string_view text, int most);

/// Time value of money: five values of which one is computed from the others.
class TvmForm {
  public:
    enum Field : std::uint8_t { NPER, RATE, PV, PMT, FV, PERIODS_PER_YEAR };
    static constexpr std::size_t kFieldCount = 6;
    static constexpr std::u16string_view kTitle = u"TVM Function";

    struct FieldLayout {
        std::u16string_view label;
        /// On wide layouts.
        std::u16string_view shortLabel;
        std::u16string_view opening;
        /// Decimals that its input is rounded to, and a result (-1: it is no target).
        int inputDigits;
        int resultDigits;
    };
    static constexpr std::array<FieldLayout, kFieldCount> kFields = {{
        {u"Total periods (NPER)", u"NPER", u"360", 2, 0},
        {u"Annual interest rate (RATE)", u"RATE", u"6.007", 3, 3},
        {u"Present value (PV)", u"PV", u"200000", 2, 2},
        {u"Payment/period (PMT)", u"PMT", u"1200", 2, 2},
        {u"Future value (FV)", u"FV", u"0", 2, 2},
        {u"Period per year", u"Period per year", u"12", 2, -1},
    }};
    static constexpr std::u16string_view kPaymentTypeLabel = u"Payment type";
    static constexpr std::array<std::u16string_view, 2> kPaymentTypes = {u"End of period",
                                                                         u"Begin of period"};

    TvmForm();

    /// The value to compute: NPER to FV. Its box is disabled, the others are enabled.
    [[nodiscard]] Field Target() const { return target_; }
    void SetTarget(Field target);
    [[nodiscard]] bool IsEnabled(Field field) const { return field != target_; }
    /// Index in kPaymentTypes.
    [[nodiscard]] std::size_t PaymentType() const { return paymentType_; }
    void SetPaymentType(std::size_t type) { paymentType_ = type == 0 ? 0 : 1; }

    [[nodiscard]] const std::u16string& Text(Field field) const { return texts_[field]; }
    void SetText(Field field, std::u16string_view text) { texts_[field] = text; }

    /// Rounds all boxes, computes the target and writes it into its box: 0 when the values allow none.
    void Calculate();

  private:
    std::array<std::u16string, kFieldCount> texts_;
    Field target_ = NPER;
    std::size_t paymentType_ = 0;
};

class LoanForm {
  public:
    enum Field : std::uint8_t { AMOUNT, RATE, PERIODS_PER_YEAR, PAYMENTS, PAYMENT };
    static constexpr std::size_t kFieldCount = 5;
    static constexpr std::u16string_view kTitle = u"Loan calculator";
    static constexpr std::array<std::u16string_view, kFieldCount> kLabels = {
        u"Loan Amount (C)", u"Annual Interest Rate (I%Y)", u"Periods per Year", u"Total Number of Payments",
        u"Payment Each Period \n(Not match to calculate)"};
    static constexpr int kMostPayments = 1200;

    /// The check box is set, all boxes are empty.
    LoanForm();

    [[nodiscard]] const std::u16string& Text(Field field) const { return texts_[field]; }
    /// The number of payments is held within 0 to 1200.
    void SetText(Field field, std::u16string_view text);
    /// The check box at the payment: set, the payment is to be computed and its box holds -1, disabled;
    /// cleared, it is enabled and starts at 0.
    [[nodiscard]] bool IsPaymentComputed() const { return computePayment_; }
    void SetPaymentComputed(bool compute);

    /// Rounds all boxes. Nothing when a value is out of range: kInputError is then to be shown.
    std::optional<LoanPlan> Calculate();

  private:
    std::array<std::u16string, kFieldCount> texts_;
    bool computePayment_ = true;
};

class MortgageForm {
  public:
    enum Field : std::uint8_t { AMOUNT, RATE, YEARS };
    static constexpr std::size_t kFieldCount = 3;
    static constexpr std::u16string_view kTitle = u"Mortgage calculator";
    static constexpr std::array<std::u16string_view, kFieldCount> kLabels = {
        u"Mortgage Amount ", u"Annual Interest Rate (%)", u"Length in Years"};
    static constexpr int kMostYears = 100;

    [[nodiscard]] const std::u16string& Text(Field field) const { return texts_[field]; }
    /// The length is held within 0 to 100.
    void SetText(Field field, std::u16string_view text);

    /// As LoanForm::Calculate.
    std::optional<MortgagePlan> Calculate();

  private:
    std::array<std::u16string, kFieldCount> texts_;
};

}  // namespace quorix

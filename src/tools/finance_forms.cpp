#include "tools/finance_forms.h"

#include <cmath>

#include "engine/calc_context.h"
#include "engine/finance_functions.h"
#include "tools/number_text.h"
#include "tools/round_to.h"

namespace quorix {

namespace {

/// Digits of a number that is written back into its box.
constexpr int kBoxDigits = 15;

/// Reads a box, rounds, and writes the rounded value back.
double RoundBox(std::u16string& text, int digits) {
    const double value = RoundTo(ReadNumber(text), digits);
    text = GeneralText(value, kBoxDigits);
    return value;
}

using AnnuitySolver = double (*)(const Annuity&);

/// By TvmForm::Field.
constexpr std::array<AnnuitySolver, 5> kSolvers = {NumberOfPeriods, YearlyRate, PresentValue, Payment,
                                                   FutureValue};
static_assert(kSolvers.size() == TvmForm::FV + 1);

/// The solver's value, or 0 when it fails; the error code of calculations stays as it was.
double SolvedOrZero(AnnuitySolver solve, const Annuity& annuity) {
    const std::int32_t before = calcContext().calcError;
    ClearCalcError();
    const double value = solve(annuity);
    const bool failed = calcContext().calcError != 0 || !std::isfinite(value);
    ClearCalcError();
    calcContext().calcError = before;
    return failed ? 0.0 : value;
}

}  // namespace

std::u16string HeldNumber(std::u16string_view text, int most) {
    const double value = ReadNumber(text);
    if (value > most) {
        return IntegerText(most);
    }
    return value < 0.0 ? std::u16string(u"0") : std::u16string(text);
}

TvmForm::TvmForm() {
    for (std::size_t i = 0; i < kFieldCount; ++i) {
        texts_[i] = kFields[i].opening;
    }
}

void TvmForm::SetTarget(Field target) {
    if (target <= FV) {
        target_ = target;
    }
}

void TvmForm::Calculate() {
    std::array<double, kFieldCount> values{};
    for (std::size_t i = 0; i < kFieldCount; ++i) {
        values[i] = RoundBox(texts_[i], kFields[i].inputDigits);
    }
    Annuity annuity;
    annuity.nper = values[NPER];
    annuity.rate = values[RATE];
    annuity.pv = values[PV];
    annuity.pmt = values[PMT];
    annuity.fv = values[FV];
    annuity.periodsPerYear = values[PERIODS_PER_YEAR];
    annuity.type = static_cast<double>(paymentType_);
    const double result = SolvedOrZero(kSolvers[target_], annuity);
    texts_[target_] = GeneralText(RoundTo(result, kFields[target_].resultDigits), kBoxDigits);
}

LoanForm::LoanForm() {
    SetPaymentComputed(true);
}

void LoanForm::SetText(Field field, std::u16string_view text) {
    texts_[field] = field == PAYMENTS ? HeldNumber(text, kMostPayments) : std::u16string(text);
}

void LoanForm::SetPaymentComputed(bool compute) {
    computePayment_ = compute;
    texts_[PAYMENT] = compute ? u"-1" : u"0";
}

std::optional<LoanPlan> LoanForm::Calculate() {
    const double amount = RoundBox(texts_[AMOUNT], kMoneyDigits);
    const double rate = RoundBox(texts_[RATE], kYearlyRateDigits);
    const double periods = RoundBox(texts_[PERIODS_PER_YEAR], kCountDigits);
    const double payments = RoundBox(texts_[PAYMENTS], kCountDigits);
    const double payment = RoundBox(texts_[PAYMENT], kMoneyDigits);
    const bool isValid = amount > 0.0 && rate >= 0.0 && periods > 0.0 && payments > 0.0 &&
                         (payment >= 0.0 || payment == kPaymentWanted);
    if (!isValid) {
        return std::nullopt;
    }
    LoanPlan plan;
    plan.Compute(amount, rate, periods, payments, payment);
    return plan;
}

void MortgageForm::SetText(Field field, std::u16string_view text) {
    texts_[field] = field == YEARS ? HeldNumber(text, kMostYears) : std::u16string(text);
}

std::optional<MortgagePlan> MortgageForm::Calculate() {
    const double amount = RoundBox(texts_[AMOUNT], kMoneyDigits);
    const double rate = RoundBox(texts_[RATE], kYearlyRateDigits);
    const double years = RoundBox(texts_[YEARS], kCountDigits);
    if (!(amount > 0.0 && rate >= 0.0 && years > 0.0)) {
        return std::nullopt;
    }
    MortgagePlan plan;
    plan.Compute(amount, rate, years);
    return plan;
}

}  // namespace quorix

// Rounding, amortisation tables and the forms over them.

#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "engine/calc_context.h"
#include "tools/amortisation_text.h"
#include "tools/finance_forms.h"
#include "tools/number_text.h"
#include "tools/round_to.h"

namespace quorix {
namespace {

constexpr std::u16string_view kUs = u"English (US)";

TEST(RoundTo, RoundsHalvesAndNegativesDown) {
    struct Row {
        double x;
        int digits;
        double expected;
    };
    const Row rows[] = {{2.125, 2, 2.12},   {0.125, 2, 0.12},  {1.005, 2, 1.0}, {2.126, 2, 2.13},
                        {-1.001, 2, -1.01}, {-1.0, 2, -1.0},   {-2.9, 0, -3.0}, {7.5, 0, 7.0},
                        {1e300, 2, 1e300},  {1e307, 4, 1e307}, {0.0, 3, 0.0}};
    for (const Row& row : rows) {
        EXPECT_EQ(RoundTo(row.x, row.digits), row.expected) << row.x;
    }
}

TEST(LoanPlan, TablesAddUp) {
    std::mt19937 random(3);
    std::uniform_real_distribution<double> amount(100, 1e6), rate(0, 30), count(1, 500);
    for (int i = 0; i < 300; ++i) {
        LoanPlan plan;
        plan.Compute(amount(random), i % 10 == 0 ? 0.0 : rate(random), i % 3 == 0 ? 12 : 4, count(random),
                     i % 2 == 0 ? kPaymentWanted : RoundTo(amount(random) / 20, 2));
        const double periodic = RoundTo(plan.annualRate / plan.periodsPerYear * 0.01, 7);
        double balance = plan.balance, interests = 0.0, paid = 0.0;
        for (std::size_t k = 0; k < plan.table.size(); ++k) {
            const LoanRow& row = plan.table[k];
            ASSERT_EQ(row.balance, balance);
            ASSERT_EQ(row.interest, RoundTo(balance * periodic, 2));
            interests += row.interest;
            const bool last = row.interest + balance <= plan.payment;
            ASSERT_TRUE(!last || k + 1 == plan.table.size());
            ASSERT_EQ(row.principal, last ? row.interest + balance : plan.payment - row.interest);
            paid += last ? row.principal : plan.payment;
            balance -= row.principal;
        }
        ASSERT_EQ(plan.totalInterest, interests);
        ASSERT_EQ(plan.totalPayments, paid);
        ASSERT_LE(static_cast<double>(plan.table.size()), std::max(plan.payments, 0.0));
    }
}

TEST(LoanPlan, HasItsSpecialCases) {
    LoanPlan plan;
    plan.Compute(1000, 12, 12, 12, kPaymentWanted);
    EXPECT_EQ(plan.payment, 88.85);
    EXPECT_EQ(plan.ratePerPeriod, 1.0);
    ASSERT_EQ(plan.table.size(), 12U);
    EXPECT_NEAR(plan.table.back().principal, 88.84, 1e-9);
    EXPECT_NEAR(plan.totalPayments, 1000 + plan.totalInterest, 1e-9);

    plan.Compute(1200, 0, 12, 12, kPaymentWanted);
    EXPECT_EQ(plan.payment, 100.0);
    EXPECT_EQ(plan.totalInterest, 0.0);

    plan.Compute(1000, 12, 12, 3, 0);  // nothing is paid back
    ASSERT_EQ(plan.table.size(), 3U);
    EXPECT_EQ(plan.table[2].principal, -10.2);
    EXPECT_EQ(plan.table[2].balance, 1020.1);

    plan.Compute(1000, 12, 12, 60, 2000);
    ASSERT_EQ(plan.table.size(), 1U);
    EXPECT_EQ(plan.payments, 1.0);
    EXPECT_EQ(plan.table[0].principal, 1010.0);

    plan.Compute(1000, 12, 12, 60, 5);  // below the interest: the number of payments stays or loses sense
    EXPECT_LE(plan.table.size(), 60U);
    plan.Compute(1000, 12, 12, 1e15, 10);
    EXPECT_LE(plan.table.size(), static_cast<std::size_t>(kMostLoanRows));
}

TEST(LoanForm, ChecksAndRoundsItsInput) {
    LoanForm form;
    EXPECT_FALSE(form.Calculate().has_value());
    form.SetText(LoanForm::AMOUNT, u"1000.006");
    form.SetText(LoanForm::RATE, u"12");
    form.SetText(LoanForm::PERIODS_PER_YEAR, u"12");
    form.SetText(LoanForm::PAYMENTS, u"1201");
    EXPECT_EQ(form.Text(LoanForm::PAYMENTS), u"1200");
    form.SetText(LoanForm::PAYMENTS, u"-3");
    EXPECT_EQ(form.Text(LoanForm::PAYMENTS), u"0");
    EXPECT_FALSE(form.Calculate().has_value());
    form.SetText(LoanForm::PAYMENTS, u"12");
    const auto plan = form.Calculate();
    ASSERT_TRUE(plan.has_value());
    EXPECT_EQ(form.Text(LoanForm::AMOUNT), u"1000.01");
    EXPECT_EQ(plan->payment, 88.85);
    form.SetPaymentComputed(false);
    EXPECT_EQ(form.Text(LoanForm::PAYMENT), u"0");
    for (const auto& [text, valid] :
         {std::pair{u"0", true}, {u"-1", true}, {u"-0.5", false}, {u"900", true}}) {
        form.SetText(LoanForm::PAYMENT, text);
        EXPECT_EQ(form.Calculate().has_value(), valid);
    }
    form.SetText(LoanForm::RATE, u"-1");
    EXPECT_FALSE(form.Calculate().has_value());
}

TEST(LoanResult, IsWritten) {
    LoanPlan plan;
    plan.Compute(100000, 6, 12, 24, kPaymentWanted);
    const std::u16string_view comma = u"\u00B8";
    const ResultLines lines = LoanLines(plan, kUs);
    EXPECT_EQ(lines[0], u"Payment per period: 4" + std::u16string(comma) + u"432.06");
    EXPECT_EQ(lines[1], u"Interest rate per period: 0.5000%");
    const auto rows = LoanRows(plan, u"European");
    ASSERT_EQ(rows.size(), plan.table.size());
    EXPECT_EQ(rows[0], (ResultRow{u"1", u"0.083", u"100.000\u00B800", u"500\u00B800", u"3.932\u00B806"}));
}

TEST(MortgagePlan, TablesAddUp) {
    std::mt19937 random(4);
    std::uniform_real_distribution<double> amount(1000, 1e6), rate(0, 20), years(0.1, 40);
    for (int i = 0; i < 200; ++i) {
        MortgagePlan plan;
        plan.Compute(amount(random), i % 10 == 0 ? 0.0 : rate(random), years(random));
        const double n = RoundTo(plan.years * 12, 2), periodic = RoundTo(plan.annualRate * (1.0 / 1200.0), 7);
        ASSERT_EQ(static_cast<double>(plan.table.size()), std::trunc(n));
        double balance = plan.amount, interests = 0.0;
        for (const MortgageRow& row : plan.table) {
            ASSERT_EQ(row.interest, RoundTo(periodic * balance, 2));
            balance -= plan.monthlyPayment - row.interest;
            interests += row.interest;
            ASSERT_EQ(row.balance, balance);
        }
        ASSERT_EQ(plan.totalInterest, interests);
        ASSERT_EQ(plan.totalPayments, plan.amount + interests);
        if (n == std::trunc(n)) {
            // What rounding to cents leaves over, and it bears interest.
            ASSERT_LT(std::fabs(balance), 0.01 * n * std::pow(1 + periodic, n));
        }
    }
}

TEST(MortgageResult, HasTotalsBehindFullYears) {
    MortgageForm form;
    form.SetText(MortgageForm::AMOUNT, u"100000");
    form.SetText(MortgageForm::RATE, u"6");
    form.SetText(MortgageForm::YEARS, u"101");
    EXPECT_EQ(form.Text(MortgageForm::YEARS), u"100");
    form.SetText(MortgageForm::YEARS, u"2.5");
    const auto plan = form.Calculate();
    ASSERT_TRUE(plan.has_value());
    EXPECT_EQ(plan->monthlyPayment, 3597.89);
    const auto rows = MortgageRows(*plan);
    ASSERT_EQ(rows.size(), 32U);
    EXPECT_EQ(rows[0], (ResultRow{u"1", u"Jan", u"86.10", u"500.00", u"96902.11"}));
    EXPECT_EQ(rows[12][1], u"Totals");
    EXPECT_EQ(rows[12][4], rows[13][4]);  // the balance of the month behind the year
    EXPECT_EQ(rows[31][1], u"Jun");
    EXPECT_EQ(MortgageLines(*plan, kUs)[0], u"Monthly payment:  3\u00B8597.89");
    MortgagePlan whole;
    whole.Compute(1200, 0, 1);
    const auto year = MortgageRows(whole);
    ASSERT_EQ(year.size(), 13U);
    EXPECT_EQ(year[12], (ResultRow{u"1", u"Totals", u"100.00", u"0.00", u"0.00"}));
    whole.Compute(120.12, 0, 1);
    EXPECT_LT(whole.table.back().balance, 0);
    EXPECT_EQ(MortgageRows(whole)[11][4], u"0.00");
    form.SetText(MortgageForm::AMOUNT, u"1e400");
    EXPECT_FALSE(form.Calculate().has_value());
}

TEST(TvmForm, SolvesForEachValueInTurn) {
    // One set of values that fit together; the yearly rate is 6, the payment follows from it.
    const std::u16string_view fitting[] = {u"360", u"6", u"200000", u"-1199.1", u"0", u"12"};
    const double tolerance[] = {1.0, 0.001, 1.0, 0.0101, 20.0};  // negative payments are rounded downward
    for (const std::size_t type : {0U, 1U}) {
        for (int target = TvmForm::NPER; target <= TvmForm::FV; ++target) {
            const auto field = static_cast<TvmForm::Field>(target);
            TvmForm form;
            form.SetPaymentType(type);
            for (std::size_t i = 0; i < TvmForm::kFieldCount; ++i) {
                form.SetText(static_cast<TvmForm::Field>(i), fitting[i]);
            }
            if (type == 1) {
                form.SetText(TvmForm::PMT, u"-1193.13");  // paid a month earlier
            }
            const double wanted = ReadNumber(form.Text(field));
            form.SetTarget(field);
            EXPECT_FALSE(form.IsEnabled(field));
            form.SetText(field, u"1");
            form.Calculate();
            EXPECT_NEAR(ReadNumber(form.Text(field)), wanted, tolerance[target])
                << target << " type " << type;
        }
    }
}

TEST(TvmForm, OpensReadyAndShowsZeroForFailures) {
    TvmForm form;
    EXPECT_EQ(form.Target(), TvmForm::NPER);
    form.Calculate();
    EXPECT_EQ(form.Text(TvmForm::NPER), u"-122");  // money that only comes in: rounded downward
    EXPECT_EQ(form.Text(TvmForm::RATE), u"6.007");
    form.SetText(TvmForm::FV, u"5");  // of the sign of the present value
    form.Calculate();
    EXPECT_EQ(form.Text(TvmForm::NPER), u"0");
    EXPECT_EQ(calcContext().calcError, 0);
    form.SetTarget(TvmForm::FV);
    form.SetText(TvmForm::PERIODS_PER_YEAR, u"none");
    form.Calculate();
    EXPECT_EQ(form.Text(TvmForm::FV), u"0");
    EXPECT_EQ(form.Text(TvmForm::PERIODS_PER_YEAR), u"0");
}

}  // namespace
}  // namespace quorix

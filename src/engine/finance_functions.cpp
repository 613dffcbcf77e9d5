#include "engine/finance_functions.h"

#include <cmath>

#include "engine/calc_context.h"
#include "engine/engine_errors.h"
#include "engine/root_search.h"
#include "numerics/qcore.h"

namespace quorix {

namespace {

constexpr double kMonths = 12.0;
/// The periodic rate is searched between these.
constexpr double kLowestRate = 1e-12;
constexpr double kHighestRate = 5.0;
/// Sums of payments below this need no rate.
constexpr double kBalanced = 1e-12;

double Fail(std::int32_t code) {
    calcContext().calcError = code;
    return 0.0;
}

double PeriodicRate(const Annuity& a) {
    return a.rate / (a.periodsPerYear * 100.0);
}

double StraightLine(double cost, double salvage, double life) {
    return life > 0.0 ? (cost - salvage) / life : Fail(ERROR_FINANCE);
}

double SumOfYears(double cost, double salvage, double life, double period) {
    return life > 0.0 ? (life - period + 1.0) * (cost - salvage) * 2.0 / ((life + 1.0) * life)
                      : Fail(ERROR_FINANCE);
}

/// Fixed declining balance with a rate of three decimals.
double DecliningBalance(double cost, double salvage, double life, double period, double months) {
    if (!(cost > 0.0 && life > 0.0 && period > 0.0 && period <= life + 1.0)) {
        return Fail(ERROR_FINANCE);
    }
    const double scaled = (1.0 - std::pow(salvage / cost, 1.0 / life)) * 1000.0;
    const double whole = std::floor(scaled);
    const double rate = (scaled - whole > 0.5 ? whole + 1.0 : whole) / 1000.0;
    double depreciation = cost * rate * months / kMonths;
    double total = depreciation;
    for (double p = 2.0; p <= std::floor(period) && calcContext().calcError == 0; p += 1.0) {
        const double before = total;
        depreciation = (cost - total) * rate;
        total += depreciation;
        if (total == before) {
            break;  // nothing is left to write off, whatever the number of periods
        }
    }
    if (total > cost - salvage) {
        depreciation = (kMonths - months) * depreciation / kMonths;
    }
    return depreciation;
}

/// nper, pmt, pv, fv: which of the four values stand in the arguments, in the order of the function.
Annuity ReadAnnuity(NamedFunction function, NamedArguments& arguments) {
    Annuity a;
    if (function != NAMED_RATE) {
        a.rate = arguments.Double();
    }
    if (function != NAMED_NPER) {
        a.nper = arguments.Double();
    }
    if (function != NAMED_PMT) {
        a.pmt = arguments.Double();
    }
    if (function != NAMED_PV) {
        a.pv = arguments.Double();
    }
    if (function != NAMED_FV) {
        a.fv = arguments.Double();
    }
    a.periodsPerYear = arguments.Double();
    a.type = arguments.OptionalDouble(0.0) == 0.0 ? 0.0 : 1.0;
    return a;
}

double Depreciation(NamedFunction function, NamedArguments& arguments) {
    const double cost = arguments.Double();
    const double salvage = arguments.Double();
    const double life = arguments.Double();
    if (function == NAMED_SLN) {
        return calcContext().calcError == 0 ? StraightLine(cost, salvage, life) : 0.0;
    }
    const double period = arguments.Double();
    const double months = function == NAMED_DB ? arguments.OptionalDouble(kMonths) : kMonths;
    if (calcContext().calcError != 0) {
        return 0.0;
    }
    return function == NAMED_SYD ? SumOfYears(cost, salvage, life, period)
                                 : DecliningBalance(cost, salvage, life, period, months);
}

double SolveAnnuity(NamedFunction function, const Annuity& a) {
    switch (function) {
        case NAMED_PV: return PresentValue(a);
        case NAMED_NPER: return NumberOfPeriods(a);
        case NAMED_RATE: return YearlyRate(a);
        case NAMED_PMT: return Payment(a);
        default: return FutureValue(a);
    }
}

}  // namespace

double FutureValue(const Annuity& a) {
    if (!(a.periodsPerYear > 0.0 && a.nper > 0.0)) {
        return Fail(ERROR_FINANCE);
    }
    const double r = PeriodicRate(a);
    if (r == 0.0) {
        return -a.pv - a.nper * a.pmt;
    }
    const double growth = std::pow(1.0 + r, a.nper);
    return -a.pv * growth - std::pow(1.0 + r, a.type) * a.pmt * (growth - 1.0) / r;
}

double PresentValue(const Annuity& a) {
    if (!(a.rate >= 0.0 && a.periodsPerYear > 0.0 && a.nper > 0.0)) {
        return Fail(ERROR_FINANCE);
    }
    const double r = PeriodicRate(a);
    if (r == 0.0) {
        return -a.nper * a.pmt - a.fv;
    }
    const double growth = std::pow(1.0 + r, a.nper);
    return (-std::pow(1.0 + r, a.type) * a.pmt * (growth - 1.0) / r - a.fv) / growth;
}

double Payment(const Annuity& given) {
    Annuity a = given;
    a.periodsPerYear = std::fabs(a.periodsPerYear);
    a.nper = std::fabs(a.nper);
    if (a.periodsPerYear == 0.0 || a.nper == 0.0) {
        return Fail(ERROR_FINANCE);
    }
    const double r = PeriodicRate(a);
    if (r == 0.0) {
        return (-a.pv - a.fv) / a.nper;
    }
    const double growth = std::pow(1.0 + r, a.nper);
    return r * (-a.pv * growth - a.fv) / (std::pow(1.0 + r, a.type) * (growth - 1.0));
}

double NumberOfPeriods(const Annuity& a) {
    if (!(a.pv * a.fv <= 0.0)) {
        return Fail(ERROR_FINANCE);
    }
    const double r = PeriodicRate(a);
    if (r == 0.0) {
        return (a.pv + a.fv) / -a.pmt;
    }
    const double due = std::pow(1.0 + r, a.type) * a.pmt;
    const double numerator = -r * a.fv + due;
    const double denominator = r * a.pv + due;
    if (denominator == 0.0 || !(numerator / denominator > 0.0)) {
        return Fail(ERROR_FINANCE);
    }
    return std::log(numerator / denominator) / std::log(1.0 + r);
}

double YearlyRate(const Annuity& a) {
    if (std::fabs(a.nper * a.pmt + a.pv + a.fv) < kBalanced) {
        return 0.0;
    }
    const auto balance = [&a](double rate) {
        const double growth = std::pow(1.0 + rate, a.nper);
        return -a.pv * growth - std::pow(1.0 + rate, a.type) * a.pmt * (growth - 1.0) / rate - a.fv;
    };
    return BrentRoot(balance, kLowestRate, kHighestRate) * a.periodsPerYear * 100.0;
}

QReal CallFinance(NamedFunction function, NamedArguments& arguments) {
    double value = 0.0;
    if (function <= NAMED_SLN) {
        value = Depreciation(function, arguments);
    } else {
        const Annuity annuity = ReadAnnuity(function, arguments);
        if (calcContext().calcError == 0) {
            value = SolveAnnuity(function, annuity);
        }
    }
    QReal result;
    if (std::isfinite(value)) {
        etoq(value, result);
    } else if (calcContext().calcError == 0) {
        calcContext().calcError = ERROR_FINANCE;
    }
    return result;
}

}  // namespace quorix

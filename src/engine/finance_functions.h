#pragma once

#include "engine/named_arguments.h"
#include "engine/named_functions.h"
#include "numerics/qreal.h"

namespace quorix {

/// Payments of an annuity, in doubles. Money paid out is negative; rates are per cent a year.
struct Annuity {
    double rate = 0.0;
    double nper = 0.0;
    double pmt = 0.0;
    double pv = 0.0;
    double fv = 0.0;
    double periodsPerYear = 1.0;
    /// 0: payments at the end of each period, 1: at its start.
    double type = 0.0;
};

/// Each solves -pv G - T pmt (G - 1)/r - fv = 0 for one value, with r = rate/(100 periodsPerYear), G = (1 +
/// r)^nper, T = (1 + r)^type. -51 for preconditions that do not hold, -12 when no rate is found.
double FutureValue(const Annuity& a);
double PresentValue(const Annuity& a);
double Payment(const Annuity& a);
double NumberOfPeriods(const Annuity& a);
double YearlyRate(const Annuity& a);

/// A finance function (NAMED_DB to NAMED_FV) of its arguments.
QReal CallFinance(NamedFunction function, NamedArguments& arguments);

}  // namespace quorix

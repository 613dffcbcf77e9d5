#include "engine/list_statistics.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <numeric>
#include <span>

#include "engine/calc_context.h"
#include "engine/engine_errors.h"
#include "engine/variable_store.h"
#include "numerics/qcore.h"
#include "numerics/qfunctions.h"

namespace quorix {

namespace {

using Values = std::span<const double>;

double Fail(std::int32_t code) {
    calcContext().calcError = code;
    return 0.0;
}

double Count(Values x) {
    return static_cast<double>(x.size());
}
double Sum(Values x) {
    return std::accumulate(x.begin(), x.end(), 0.0);
}
double SumOfSquares(Values x) {
    return std::accumulate(x.begin(), x.end(), 0.0, [](double sum, double v) { return sum + v * v; });
}
double Mean(Values x) {
    return Sum(x) / Count(x);
}

QReal Extended(double value) {
    QReal extended;
    etoq(value, extended);
    return extended;
}

/// Square root of (n ssq - sum²) over n · divisor. In extended reals: doubles would lose the difference where
/// the values lie close together, and the squares of large ones.
double Deviation(Values x, double divisor) {
    QReal sum, squares, square, count = Extended(Count(x));
    for (const double value : x) {
        const QReal v = Extended(value);
        qadd(v, sum, sum);
        qmul(v, v, square);
        qadd(square, squares, squares);
    }
    qmul(sum, sum, sum);
    qmul(count, squares, squares);
    qsub(sum, squares, squares);
    if (squares.IsNegative()) return 0.0;
    qmul(Extended(divisor), count, count);
    qdiv(count, squares, squares);
    qsqrt(squares, squares);
    return qtoe(squares);
}
double PopulationDeviation(Values x) {
    return Deviation(x, Count(x));
}
double SampleDeviation(Values x) {
    return x.size() < 2 ? Fail(ERROR_DIVISION) : Deviation(x, Count(x) - 1.0);
}

double Smallest(Values x) {
    return *std::min_element(x.begin(), x.end());
}
double Largest(Values x) {
    return *std::max_element(x.begin(), x.end());
}

/// In extended reals, since the rounding of the mean would weigh as much as small deviations.
double MeanDeviation(Values x) {
    QReal mean, sum, distance;
    const QReal count = Extended(Count(x));
    for (const double value : x) qadd(Extended(value), mean, mean);
    qdiv(count, mean, mean);
    for (const double value : x) {
        qsub(mean, Extended(value), distance);
        qabs(distance);
        qadd(distance, sum, sum);
    }
    qdiv(count, sum, sum);
    return qtoe(sum);
}

double SumOfSquaredDeviations(Values x) {
    const double mean = Mean(x);
    return std::accumulate(x.begin(), x.end(), 0.0,
                           [mean](double sum, double v) { return sum + (v - mean) * (v - mean); });
}

double Median(Values x) {
    std::vector<double> sorted(x.begin(), x.end());
    std::sort(sorted.begin(), sorted.end(), std::greater<>());
    const std::size_t middle = sorted.size() / 2;
    return sorted.size() % 2 == 1 ? sorted[middle] : (sorted[middle - 1] + sorted[middle]) / 2.0;
}

/// The most frequent value, the earliest in the list on a tie.
double Mode(Values x) {
    std::vector<double> sorted(x.begin(), x.end());
    std::sort(sorted.begin(), sorted.end());
    double mode = x.front();
    std::ptrdiff_t most = 0;
    for (const double value : x) {
        const auto [first, last] = std::equal_range(sorted.begin(), sorted.end(), value);
        if (last - first > most) {
            most = last - first;
            mode = value;
        }
    }
    return mode;
}

double GeometricMean(Values x) {
    const bool isNegative = std::count_if(x.begin(), x.end(), [](double v) { return v < 0.0; }) % 2 == 1;
    if (std::find(x.begin(), x.end(), 0.0) != x.end()) return 0.0;
    if (isNegative && x.size() % 2 == 0) return Fail(ERROR_SQUARE_ROOT);
    const double product = std::fabs(std::accumulate(x.begin(), x.end(), 1.0, std::multiplies<>()));
    double mean = std::pow(product, 1.0 / Count(x));
    if (!std::isnormal(product)) {
        // The product leaves the doubles where the mean does not.
        mean = std::exp(std::accumulate(x.begin(), x.end(), 0.0,
                                        [](double sum, double v) { return sum + std::log(std::fabs(v)); }) /
                        Count(x));
    }
    return isNegative ? -mean : mean;
}

struct StatisticRow {
    NamedFunction function;
    double (*compute)(Values);
};

// In the order of NamedFunction.
constexpr StatisticRow kStatistics[] = {
    {NAMED_SUM, Sum},
    {NAMED_SSQ, SumOfSquares},
    {NAMED_N, Count},
    {NAMED_AVG, Mean},
    {NAMED_SDV, PopulationDeviation},
    {NAMED_SSD, SampleDeviation},
    {NAMED_MIN, Smallest},
    {NAMED_MAX, Largest},
    {NAMED_AVD, MeanDeviation},
    {NAMED_MEDIAN, Median},
    {NAMED_MD, Mode},
    {NAMED_DSQ, SumOfSquaredDeviations},
    {NAMED_GM, GeometricMean},
};
static_assert(std::size(kStatistics) == NAMED_GM - NAMED_SUM + 1);
static_assert(kStatistics[NAMED_GM - NAMED_SUM].function == NAMED_GM);

}  // namespace

QReal ListStatistic(NamedFunction function) {
    const CalcValue& list = Variable(SLOT_LIST);
    if (list.kind != KIND_MATRIX || list.cols != 1 || list.data.empty()) {
        Fail(ERROR_NO_LIST);
        return {};
    }
    const double value = kStatistics[function - NAMED_SUM].compute(list.data);
    QReal result;
    if (std::isfinite(value)) {
        etoq(value, result);
    } else {
        Fail(ERROR_OUT_OF_RANGE);
    }
    return result;
}

}  // namespace quorix

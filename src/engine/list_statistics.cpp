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

/// n ssq - sum², which rounding may push below 0.
double ScaledVariance(Values x) {
    return std::fmax(0.0, Count(x) * SumOfSquares(x) - Sum(x) * Sum(x));
}
double PopulationDeviation(Values x) {
    return std::sqrt(ScaledVariance(x) / (Count(x) * Count(x)));
}
double SampleDeviation(Values x) {
    return x.size() < 2 ? Fail(ERROR_DIVISION) : std::sqrt(ScaledVariance(x) / (Count(x) * (Count(x) - 1.0)));
}

double Smallest(Values x) {
    return *std::min_element(x.begin(), x.end());
}
double Largest(Values x) {
    return *std::max_element(x.begin(), x.end());
}

double MeanDeviation(Values x) {
    const double mean = Mean(x);
    return std::accumulate(x.begin(), x.end(), 0.0,
                           [mean](double sum, double v) { return sum + std::fabs(v - mean); }) /
           Count(x);
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
    const double product = std::accumulate(x.begin(), x.end(), 1.0, std::multiplies<>());
    if (product >= 0.0) {
        return std::pow(product, 1.0 / Count(x));
    }
    return x.size() % 2 == 0 ? Fail(ERROR_SQUARE_ROOT) : -std::pow(-product, 1.0 / Count(x));
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

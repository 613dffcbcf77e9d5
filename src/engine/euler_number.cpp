#include "engine/euler_number.h"

#include "numerics/constants.h"
#include "numerics/qcore.h"

namespace quorix {
namespace {

// e = 1 + 1(1 + 1/2(1 + 1/3(1 + ...))) from the inside out: 71 factorial is above 2^336.
QReal SumSeries() {
    constexpr std::int32_t kTerms = 75;
    QReal sum = constants::kOne;
    for (std::int32_t n = kTerms; n > 0; --n) {
        QReal divisor;
        ltoq(n, divisor);
        qdiv(divisor, sum, sum);
        qadd(constants::kOne, sum, sum);
    }
    return sum;
}

}  // namespace

const QReal& EulerNumber() {
    static const QReal e = SumSeries();
    return e;
}

}  // namespace quorix

#include "engine/euler_number.h"

#include "numerics/constants.h"
#include "numerics/qfunctions.h"

namespace quorix {

const QReal& EulerNumber() {
    static const QReal e = [] {
        QReal value;
        qexp(constants::kOne, value);
        return value;
    }();
    return e;
}

}  // namespace quorix

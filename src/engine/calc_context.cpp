#include "engine/calc_context.h"

#include "numerics/qcore.h"

namespace quorix {

void ClearCalcError() {
    calcContext().calcError = 0;
    ClearNumericError();
}

void SetAngleUnit(std::int32_t unit) {
    calcContext().angleUnit = unit;
}

}  // namespace quorix

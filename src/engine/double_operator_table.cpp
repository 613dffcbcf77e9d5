#include "engine/double_operator_table.h"

#include <array>

#include "engine/double_arithmetic_operators.h"

namespace quorix {
namespace {

constexpr auto kRows = std::to_array<OperatorRow<DComplex>>({
    {u"+", 2, DoubleAdd, RealAdd},
    {u"*", 2, DoubleMultiply, RealMultiply},
    {u"-", 2, DoubleSubtract, RealSubtract, RealNegate},
    {u"/", 2, DoubleDivide, RealDivide},
});

constexpr OperatorTable<DComplex> kTable(kRows);

}  // namespace

const OperatorTable<DComplex>& DoubleOperatorTable() {
    return kTable;
}

}  // namespace quorix

#include "engine/double_operator_table.h"

#include <array>

#include "engine/double_arithmetic_operators.h"

namespace quorix {
namespace {

constexpr auto kRows = std::to_array<OperatorRow<DComplex>>({
    {u"+", 2, DoubleAdd},
    {u"*", 2, DoubleMultiply},
    {u"-", 2, DoubleSubtract},
    {u"/", 2, DoubleDivide},
});

constexpr OperatorTable<DComplex> kTable(kRows);

}  // namespace

const OperatorTable<DComplex>& DoubleOperatorTable() {
    return kTable;
}

}  // namespace quorix

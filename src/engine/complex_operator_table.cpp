#include "engine/complex_operator_table.h"

#include <array>

#include "engine/arithmetic_operators.h"

namespace quorix {
namespace {

constexpr auto kRows = std::to_array<OperatorRow<QComplex>>({
    {u"+", 2, ComplexAdd},
    {u"-", 2, ComplexSubtract},
    {u"*", 2, ComplexMultiply},
    {u"/", 2, ComplexDivide},
});

constexpr OperatorTable<QComplex> kTable(kRows);

}  // namespace

const OperatorTable<QComplex>& ComplexOperatorTable() {
    return kTable;
}

}  // namespace quorix

#pragma once

// The fast lane of the double evaluator: an expression as instructions on plain doubles. It serves while
// every value is real; where one is not, or an operator fails, the evaluator walks the complex way instead,
// which gives the same bits.

#include <cstdint>
#include <vector>

#include "engine/compiled_expression.h"
#include "numerics/qreal.h"

namespace quorix {

struct DoubleNumber {
    double value = 0.0;

    static DoubleNumber FromText(std::u16string_view text);
};

using DoubleExpression = CompiledExpression<DComplex, DoubleNumber>;

class RealProgram {
  public:
    /// Operand counts follow from the tokens alone, so that each operator's place on the stack is settled
    /// here. An expression that fails by its form, or has an operator without a real form, gives an unusable
    /// program.
    void Build(const DoubleExpression& expression);
    [[nodiscard]] bool IsUsable() const { return !instructions_.empty(); }
    /// Value at boundValue. Result: false when the lane must be left; `result` is then unchanged.
    bool Run(double boundValue, double& result);
    /// Name of the last operator, empty when there is none.
    [[nodiscard]] std::u16string_view LastOperator() const { return lastOperator_; }

  private:
    // The second five take their right operand from the values instead of the stack.
    enum class Code : std::uint8_t {
        push,
        add,
        subtract,
        multiply,
        divide,
        callTwo,
        addValue,
        subtractValue,
        multiplyValue,
        divideValue,
        callTwoValue,
        negate,
        square,
        callOne,
    };
    struct Instruction {
        Code code = Code::push;
        std::uint32_t value = 0;
        union {
            RealFunction function = nullptr;
            RealOperation operation;
        };
    };

    static Code CodeOf(RealOperation operation);
    bool Append(const ResolvedToken<DComplex>& token, const DoubleExpression& expression);
    bool AppendOperation(const OperatorRow<DComplex>& row);
    void AppendFunction(RealFunction function);
    void AppendBinary(RealOperation operation);
    bool AppendConstant(double constant);
    bool AppendPush(std::uint32_t value);

    std::vector<Instruction> instructions_;
    /// The bound variable, then the constants.
    std::vector<double> values_;
    std::u16string_view lastOperator_;
    std::int32_t depth_ = 0;
    BaseStack bases_;
};

}  // namespace quorix

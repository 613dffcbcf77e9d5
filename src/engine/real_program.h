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
    struct Instruction;
    /// Does an instruction and all that follow, and gives the result: each handler ends in a call of the
    /// next, which compilers turn into a jump. below: the operands under the last one; x: the bound variable.
    using Handler = double (*)(const Instruction* at, double* below, double last, double x);
    struct Instruction {
        Handler handler;
        double constant = 0.0;
        RealFunction function = nullptr;
        RealOperation operation = nullptr;
    };

    /// Operand counts follow from the tokens alone, so that each operator's place on the stack is settled
    /// here. An expression that fails by its form, leaves more than its result, or has an operator without a
    /// real form gives an unusable program.
    void Build(const DoubleExpression& expression);
    [[nodiscard]] bool IsUsable() const { return !instructions_.empty(); }
    /// Value at x; not a number when the lane must be left. The program must be usable.
    [[nodiscard]] double Run(double x) const;
    /// Name of the last operator, empty when there is none.
    [[nodiscard]] std::u16string_view LastOperator() const { return lastOperator_; }

  private:
    /// What the last instruction pushes; an operator that follows takes it over.
    enum class Pushed : std::uint8_t { nothing, boundVariable, constant };

    bool AppendAll(const DoubleExpression& expression);
    bool Append(const ResolvedToken<DComplex>& token, const DoubleExpression& expression);
    bool AppendOperation(const OperatorRow<DComplex>& row);
    void AppendFunction(RealFunction function);
    void AppendBinary(RealOperation operation);
    bool AppendPush(Pushed pushed, double constant);

    std::vector<Instruction> instructions_;
    std::u16string_view lastOperator_;
    std::int32_t depth_ = 0;
    Pushed pushed_ = Pushed::nothing;
    BaseStack bases_;
};

}  // namespace quorix

#pragma once

// The fast lane of the double evaluator: an expression as instructions on plain doubles. It serves while
// every value is real; where one is not, or an operator fails, the evaluator walks the complex way instead,
// which gives the same bits.

#include <cstddef>
#include <cstdint>
#include <span>
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
    /// Points that are done at once.
    static constexpr std::size_t kBlock = 32;

    struct Instruction;
    /// Does an instruction and all that follow, and gives the result: each handler ends in a call of the
    /// next, which compilers turn into a jump. below: the operands under the last one; x: the bound variable.
    using Handler = double (*)(const Instruction* at, double* below, double last, double x);
    /// Does one instruction for `count` points at once. An operand is a column of kBlock values; last: the
    /// column of the last operand. Returns the one that is the last then.
    using BlockHandler = double* (*)(const Instruction& at, double* last, const double* x, std::size_t count);
    struct Handlers {
        Handler one;
        BlockHandler block;
    };
    struct Instruction {
        Handlers handlers;
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
    /// The same at up to kBlock points; y is as long as x.
    void RunBlock(std::span<const double> x, std::span<double> y) const;
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

#pragma once

// The fast lane of the double evaluator: an expression as instructions on plain doubles. It serves while
// every value is real; where one is not, or an operator fails, the evaluator walks the complex way instead,
// which gives the same bits.

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "engine/real_steps.h"

namespace quorix {

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

    /// Of no steps the program is unusable.
    void Build(std::span<const RealStep> steps);
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

    void AppendPush(Pushed pushed, double constant);
    void AppendFunction(RealFunction function);
    void AppendBinary(RealOperation operation);

    std::vector<Instruction> instructions_;
    std::u16string_view lastOperator_;
    Pushed pushed_ = Pushed::nothing;
};

}  // namespace quorix

#pragma once

// Operators: the only place where the evaluators do mathematics. A row is a name and a function on an operand
// stack.

#include <cstdint>
#include <limits>
#include <span>
#include <string_view>

#include "engine/calc_context.h"
#include "engine/engine_errors.h"
#include "engine/word_hash.h"
#include "numerics/qreal.h"

namespace quorix {

/// Depth that the stacks of the text evaluators allow.
inline constexpr std::int32_t kEvaluatorStackDepth = 1024;

/// Operands, the last entered on top. The entries belong to the evaluator; entries.size() is the capacity.
template <class Value>
struct OperandStack {
    std::span<Value> entries;
    std::int32_t depth = 0;

    [[nodiscard]] bool IsFull() const { return static_cast<std::size_t>(depth) >= entries.size(); }
    /// The entry `below` places under the top; depth must be above `below`.
    [[nodiscard]] Value& Top(std::int32_t below = 0) const {
        return entries[static_cast<std::size_t>(depth - 1 - below)];
    }
    /// Leaves -1 in calcError and changes nothing when the stack is full.
    bool Push(const Value& value) {
        if (IsFull()) {
            calcContext().calcError = ERROR_SYNTAX;
            return false;
        }
        entries[static_cast<std::size_t>(depth++)] = value;
        return true;
    }
};

/// Pops its operands, pushes its result. base: the depth at the innermost open parenthesis; the operands at
/// hand are those above it. On failure a code is left in calcError and the stack is usable but unspecified;
/// with too few operands the code is -1 and the stack is unchanged.
template <class Value>
using OperatorFunction = void (*)(OperandStack<Value>& stack, std::int32_t base);

template <class Value>
struct OperatorRow {
    std::u16string_view name;
    /// Operands it takes: 1 or 2 (minus takes 2, or 1 when there is only one).
    int operands;
    OperatorFunction<Value> function;
};

/// The same on plain doubles, for operands whose imaginary parts are zero. A result that is not a number
/// (kNoRealResult) tells that the outcome is none, no real number or an error; nothing else may then have
/// changed. An operand that is not a number gives such a result, whatever the other one is.
using RealFunction = double (*)(double operand);
using RealOperation = double (*)(double left, double right);
inline constexpr double kNoRealResult = std::numeric_limits<double>::quiet_NaN();

/// A row of the double table also knows its real forms for one and for two operands, null where it has none.
template <>
struct OperatorRow<DComplex> {
    std::u16string_view name;
    int operands;
    OperatorFunction<DComplex> function;
    RealFunction realOfOne = nullptr;
    RealOperation realOfTwo = nullptr;
};

/// A function that is divided by at once: "a/f(x)" takes both rows together instead of f and "/", where the
/// quotient has a value though f(x) has none.
template <class Value>
struct DividedFunction {
    OperatorRow<Value> function;
    OperatorRow<Value> divide;
};

/// A table of operators searched by name; of rows with the same name the first one is found. The rows are not
/// copied. At most 120 rows.
template <class Value>
class OperatorTable {
  public:
    constexpr OperatorTable() = default;
    constexpr explicit OperatorTable(std::span<const OperatorRow<Value>> rows,
                                     std::span<const DividedFunction<Value>> divided = {})
        : rows_(rows), divided_(divided) {
        for (const OperatorRow<Value>& row : rows_) index_.Append(row.name);
    }

    /// Null when no row has the name.
    [[nodiscard]] constexpr const OperatorRow<Value>* Find(std::u16string_view name) const {
        const int row = index_.Find(name, [this](std::size_t i) { return rows_[i].name; });
        return row < 0 ? nullptr : &rows_[static_cast<std::size_t>(row)];
    }
    /// Null when a division by `function` is no more than its two rows.
    [[nodiscard]] constexpr const DividedFunction<Value>* FindDivided(std::u16string_view function) const {
        for (const DividedFunction<Value>& divided : divided_) {
            if (divided.function.name == function) return &divided;
        }
        return nullptr;
    }
    [[nodiscard]] constexpr std::span<const OperatorRow<Value>> Rows() const { return rows_; }

  private:
    std::span<const OperatorRow<Value>> rows_;
    std::span<const DividedFunction<Value>> divided_;
    WordHash<256> index_;
};

/// Whether `count` operands lie above `base`; leaves -1 in calcError when they do not.
template <class Value>
bool HasOperands(const OperandStack<Value>& stack, std::int32_t base, std::int32_t count) {
    if (stack.depth - base >= count) return true;
    calcContext().calcError = ERROR_SYNTAX;
    return false;
}

}  // namespace quorix

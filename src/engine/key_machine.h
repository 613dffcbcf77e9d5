#pragma once

// State and shared steps of the two key engines.

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "engine/key_engine.h"
#include "engine/operator_table.h"

namespace quorix {

inline constexpr std::size_t kKeyOperands = 128;
inline constexpr std::size_t kPendingOperators = 1024;

class KeyMachine {
  public:
    /// The operators and "(" not yet applied, innermost last.
    std::vector<std::u16string> pending;
    EntryState entryState = ENTRY_NONE;
    /// Digits entered behind the point.
    int fractionDigits = 0;
    /// Whether the token before this one was "=": then "=" repeats.
    bool equalsBefore = false;

    [[nodiscard]] int Depth() const { return stack_.depth; }
    /// Zero when the stack is empty.
    [[nodiscard]] QComplex Top() const { return stack_.depth > 0 ? stack_.Top() : QComplex{}; }
    [[nodiscard]] std::span<QComplex> Operands() {
        return std::span(operands_).first(static_cast<std::size_t>(stack_.depth));
    }
    /// -1 in calcError and nothing changed when 128 operands are there.
    bool Push(const QComplex& value) { return stack_.Push(value); }
    void DropTop() { stack_.depth -= stack_.depth > 0 ? 1 : 0; }
    void ReplaceTop(const QComplex& value);
    void Reset();

    /// Applies an operator to the stack; -1 when no table has it. An error that stands already survives. What
    /// an overflow has left is no operand: -56, and it stays on top.
    void Apply(std::u16string_view name);
    /// What an engine answers: the top, with -56 when an overflow has left it.
    [[nodiscard]] QComplex Answer() const;

    /// The tokens that mean the same to both engines: change of sign, pop, point, clear entry, clear and pi.
    /// Result: what the engine answers, or nothing when the token is none of them.
    std::optional<QComplex> HandleShared(std::u16string_view token, std::int32_t radixId);
    /// A digit of the radix, or in decimal a whole number.
    void EnterDigits(std::u16string_view token, std::int32_t radixId);

  private:
    bool TakesOverflow(std::int32_t operands);
    void Negate();
    QComplex Pop();
    void EnterPoint(std::int32_t radixId);
    void ClearEntry();
    void Clear();
    void EnterPi();
    void StartNumber(const QComplex& number);
    void ExtendInteger(int digit, int radix);
    void ExtendFraction(int digit);

    std::array<QComplex, kKeyOperands> operands_{};
    OperandStack<QComplex> stack_{operands_};
};

/// The one machine of the process.
KeyMachine& keyMachine();

/// Whether a part is the pattern that an overflow leaves.
bool HasOverflowed(const QComplex& value);

/// Row of an operator for the key engines, null when there is none. "exp" is the exponential of the top here.
const OperatorRow<QComplex>* FindKeyOperator(std::u16string_view name);

/// Tokens that take two operands, and those that are applied to the top at once.
bool IsBinaryKey(std::u16string_view token);
bool IsFunctionKey(std::u16string_view token);

}  // namespace quorix

#include <algorithm>
#include <utility>

#include "engine/complex_operands.h"
#include "engine/identifiers.h"
#include "engine/key_machine.h"
#include "engine/keyword_table.h"

namespace quorix {
namespace {

constexpr std::u16string_view kOpen = u"(";

void ApplyHead(KeyMachine& machine) {
    const std::u16string head = std::move(machine.pending.back());
    machine.pending.pop_back();
    machine.Apply(head);
}

void ApplyOnePending(KeyMachine& machine) {
    machine.entryState = ENTRY_NONE;
    if (!machine.pending.empty()) ApplyHead(machine);
}

bool PushPending(KeyMachine& machine, std::u16string_view token) {
    if (machine.pending.size() >= kPendingOperators) {
        calcContext().calcError = ERROR_SYNTAX;
        return false;
    }
    machine.pending.emplace_back(token);
    return true;
}

// Applies the last operation to the last result. A function acts on the result alone; a binary operator takes
// the right operand of last time.
void RepeatLastOperation(KeyMachine& machine, const OperatorRow<QComplex>& row) {
    RepeatRegisters& registers = repeatRegisters();
    ClearCalcError();
    std::array<QComplex, 2> entries = {registers.left, registers.right};
    OperandStack<QComplex> stack{entries, row.operands};
    row.function(stack, 0);
    if (calcContext().calcError != 0) {
        registers.Clear();
        machine.ReplaceTop({});
        return;
    }
    registers.left = entries[0];
    machine.ReplaceTop(entries[0]);
}

// An incomplete entry (a syntax error) is forgiven; the first error of another kind stays.
void ApplyAllPending(KeyMachine& machine) {
    std::int32_t& error = calcContext().calcError;
    std::int32_t firstError = 0;
    while (!machine.pending.empty()) {
        ClearCalcError();
        ApplyHead(machine);
        if (error == ERROR_SYNTAX) ClearCalcError();
        if (firstError == 0) firstError = error;
    }
    error = firstError;
}

void Equals(KeyMachine& machine, bool equalsBefore) {
    machine.entryState = ENTRY_NONE;
    machine.equalsBefore = true;
    if (!machine.pending.empty()) {
        ApplyAllPending(machine);
    } else if (equalsBefore) {
        if (const auto* row = FindKeyOperator(repeatRegisters().lastOperator)) {
            RepeatLastOperation(machine, *row);
            return;
        }
    }
    repeatRegisters().left = machine.Top();
}

// Applies what binds at least as tightly; equal levels apply the older one, "^" included.
void ApplyTighterPending(KeyMachine& machine, std::u16string_view token) {
    const int level = OperatorPrecedence(token);
    while (!machine.pending.empty() && level <= OperatorPrecedence(machine.pending.back()))
        ApplyHead(machine);
}

void BinaryOperator(KeyMachine& machine, std::u16string_view token) {
    if (machine.pending.empty()) {
        if (machine.Depth() == 0) machine.EnterDigits(u"0", RADIX_DEC);
    } else {
        const bool replaces = machine.entryState == ENTRY_OPERATOR && machine.pending.back() != kOpen;
        if (replaces) machine.pending.pop_back();
        ApplyTighterPending(machine, token);
    }
    if (PushPending(machine, token)) machine.entryState = ENTRY_OPERATOR;
}

void CloseParenthesis(KeyMachine& machine) {
    machine.entryState = ENTRY_NONE;
    if (std::ranges::find(machine.pending, kOpen) == machine.pending.end()) {
        calcContext().calcError = ERROR_PARENTHESIS;
        return;
    }
    while (machine.pending.back() != kOpen) ApplyHead(machine);
    machine.pending.pop_back();
}

// 200 + 10 % is 220: behind a sum the percentage is one of the left operand.
bool IsPercentOfLeftOperand(const KeyMachine& machine) {
    return machine.Depth() > 1 && !machine.pending.empty() &&
           (machine.pending.back() == u"+" || machine.pending.back() == u"-");
}

void PercentOfLeftOperand(KeyMachine& machine) {
    QComplex& percentage = machine.Operands().back();
    const QComplex& whole = *(machine.Operands().end() - 2);
    if (HasOverflowed(percentage) || HasOverflowed(whole)) {
        calcContext().calcError = ERROR_INVALID_PARAMETER;
        return;
    }
    if (!IsBelowTiny(percentage.im) || !IsBelowTiny(whole.im)) {
        calcContext().calcError = ERROR_COMPLEX_UNSUPPORTED;
        return;
    }
    QReal hundred;
    ltoq(100, hundred);
    qmul(percentage.re, whole.re, percentage.re);
    qdiv(hundred, percentage.re, percentage.re);
    FoldNumericError();
}

void Function(KeyMachine& machine, std::u16string_view token) {
    machine.entryState = ENTRY_NONE;
    if (token == u"%" && IsPercentOfLeftOperand(machine)) {
        PercentOfLeftOperand(machine);
    } else {
        machine.Apply(token);
    }
}

}  // namespace

QComplex KeyEngineStandard(std::u16string_view token, std::int32_t radixId) {
    KeyMachine& machine = keyMachine();
    const bool equalsBefore = std::exchange(machine.equalsBefore, false);
    if (const std::optional<QComplex> shared = machine.HandleShared(token, radixId)) return *shared;
    if (token == u"DoNothing") {
        ApplyOnePending(machine);
    } else if (token == u"=") {
        Equals(machine, equalsBefore);
    } else if (IsBinaryKey(token)) {
        BinaryOperator(machine, token);
    } else if (token == kOpen) {
        if (PushPending(machine, token)) machine.entryState = ENTRY_NONE;
    } else if (token == u")") {
        CloseParenthesis(machine);
    } else if (IsFunctionKey(token)) {
        Function(machine, token);
    } else {
        machine.EnterDigits(token, radixId);
    }
    return machine.Answer();
}

}  // namespace quorix

#include "engine/key_engine.h"

#include "engine/key_machine.h"
#include "engine/repeat_registers.h"
#include "numerics/qcore.h"

namespace quorix {

void KeyEngineReset() {
    keyMachine().Reset();
}

// The value of the last "=" put back by the display leaves its repeat in force; any other value ends it.
void KeyEngineSetResult(const QComplex& value) {
    KeyMachine& machine = keyMachine();
    const bool isLastResult = machine.equalsBefore && value == repeatRegisters().left;
    machine.Reset();
    machine.Push(value);
    machine.equalsBefore = isLastResult;
}

EntryState KeyEngineEntryState() {
    return keyMachine().entryState;
}
void KeyEngineSetEntryState(EntryState state) {
    keyMachine().entryState = state;
}
int KeyEngineFractionDigits() {
    return keyMachine().fractionDigits;
}
int KeyEngineDepth() {
    return keyMachine().Depth();
}
QComplex KeyEngineTop() {
    return keyMachine().Top();
}

void KeyEnginePush(const QComplex& value) {
    keyMachine().Push(value);
    keyMachine().equalsBefore = false;
}

void KeyEngineClearImaginary() {
    for (QComplex& operand : keyMachine().Operands()) qclear(operand.im);
    qclear(repeatRegisters().left.im);
    qclear(repeatRegisters().right.im);
}

}  // namespace quorix

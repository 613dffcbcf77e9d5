#include "engine/key_machine.h"

namespace quorix {

QComplex KeyEngineRpn(std::u16string_view token, std::int32_t radixId) {
    KeyMachine& machine = keyMachine();
    machine.equalsBefore = false;
    if (const std::optional<QComplex> shared = machine.HandleShared(token, radixId)) return *shared;
    if (token == u"=") return machine.Answer();
    if (token == u"(" || token == u")" || token == u"DoNothing") {  // The parentheses are the Enter key.
        machine.entryState = ENTRY_NONE;
    } else if (IsBinaryKey(token)) {
        machine.Apply(token);  // The entry state stays: a digit typed now appends to the result.
    } else if (IsFunctionKey(token)) {
        machine.entryState = ENTRY_NONE;
        machine.Apply(token);
    } else {
        machine.EnterDigits(token, radixId);
    }
    return machine.Answer();
}

}  // namespace quorix

#include "engine/repeat_registers.h"

namespace quorix {

RepeatRegisters& repeatRegisters() {
    static constinit RepeatRegisters registers;
    return registers;
}

}  // namespace quorix

// Feeds bytes as a unit definition. The terms that come out, joined again, mean the same.

#include <cstddef>
#include <cstdint>
#include <string>

#include "reference/unit_definition.h"

namespace {

using Terms = std::vector<std::u16string>;

std::u16string Join(const Terms& above, const Terms& below) {
    std::u16string text = u"(";
    for (const std::u16string& term : above) {
        text += term + u"*";
    }
    text += u"/";
    for (const std::u16string& term : below) {
        text += term + u"*";
    }
    return text;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::u16string text(data, data + size);
    Terms above;
    Terms below;
    if (!quorix::ParseUnitDefinition(text, above, below)) {
        return 0;
    }
    Terms againAbove;
    Terms againBelow;
    if (!quorix::ParseUnitDefinition(Join(above, below), againAbove, againBelow) || againAbove != above ||
        againBelow != below) {
        __builtin_trap();
    }
    return 0;
}

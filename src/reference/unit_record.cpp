#include "reference/unit_record.h"

#include <algorithm>

#include "reference/unit_definition.h"

namespace quorix {

namespace {

constexpr std::string_view kBaseMark = "!";

void RestoreBlanks(std::vector<std::u16string>& terms) {
    for (std::u16string& term : terms) {
        std::replace(term.begin(), term.end(), u'_', u' ');
    }
}

}  // namespace

bool ReadUnitRow(FieldCutter& fields, UnitRecord& record) {
    const std::string_view name = fields.Next();
    const std::string_view symbol = fields.Next();
    const std::string_view third = fields.Next();
    if (third.empty()) {
        return false;
    }
    record.name = NameOfField(name);
    record.symbol = NameOfField(symbol);
    record.factor = 1;
    record.offset = 0;
    record.numerators.clear();
    record.denominators.clear();
    if (third == kBaseMark) {
        return true;
    }
    const auto factor = NumberOfField(third);
    const auto offset = NumberOfField(fields.Next());
    const std::string_view definition = fields.Next();
    if (!factor || !offset || definition.empty()) {
        return false;
    }
    record.factor = *factor;
    record.offset = *offset;
    if (!ParseUnitDefinition(WidenField(definition), record.numerators, record.denominators)) {
        return false;
    }
    RestoreBlanks(record.numerators);
    RestoreBlanks(record.denominators);
    return true;
}

}  // namespace quorix

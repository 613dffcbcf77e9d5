#include "console/assignment.h"

#include <algorithm>
#include <array>

#include "engine/text_fold.h"
#include "engine/variable_store.h"
#include "platform/trim.h"

namespace quorix {
namespace {

constexpr std::array<std::u16string_view, 10> kMatrixWords = {u"solve", u"inv",  u"trans", u"det",  u"eigl",
                                                              u"eigv",  u"rank", u"diag",  u"orth", u"tri"};
// VLRE, which lies behind them, only keeps its place.
constexpr int kLastUserSlot = SLOT_LIST - 2;

int SettableSlot(std::u16string_view name) {
    const int slot = FindVariable(name);
    return slot == SLOT_LIST || (slot >= SLOT_FIRST_USER && slot <= kLastUserSlot) ? slot : -1;
}

}  // namespace

std::optional<Assignment> FindAssignment(std::u16string_view line) {
    const std::size_t sign = line.find(u'=');
    if (sign == std::u16string_view::npos) return std::nullopt;
    const std::u16string_view target = Trimmed(line.substr(0, sign));
    std::u16string_view name = target;
    if (target.size() >= 2 && target.front() == u'[' && target.back() == u']') {
        name = Trimmed(target.substr(1, target.size() - 2));
        if (!std::ranges::all_of(name, IsWordCharacter)) return std::nullopt;
    } else if (!EqualsIgnoringCase(target, VariableNames()[SLOT_LIST])) {
        return std::nullopt;
    }
    return Assignment{SettableSlot(name), target, Trimmed(line.substr(sign + 1))};
}

bool IsMatrixExpression(std::u16string_view engineText) {
    for (std::size_t at = 0; at < engineText.size(); ++at) {
        if (!IsWordCharacter(engineText[at])) continue;
        const std::size_t begin = at;
        while (at < engineText.size() && IsWordCharacter(engineText[at])) ++at;
        if (IsDigit(engineText[begin])) continue;
        const std::u16string_view word = engineText.substr(begin, at - begin);
        const int slot = FindVariable(word);
        if (slot >= 0 && Variable(slot).kind == KIND_MATRIX) return true;
        if (std::ranges::any_of(kMatrixWords, [word](auto known) { return EqualsIgnoringCase(word, known); }))
            return true;
    }
    return false;
}

}  // namespace quorix

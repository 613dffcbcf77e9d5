#include "engine/variable_store.h"

#include <array>

#include "engine/text_fold.h"
#include "numerics/qcore.h"

namespace quorix {
namespace {

// VW stands behind VZ, out of alphabetical order, because the slots are numbered in files. VLRE only keeps
// its place.
constexpr std::array<std::u16string_view, kVariableCount> kVariableNames = {
    u"VVV", u"VRE", u"VA", u"VB", u"VC", u"VD", u"VE", u"VF", u"VG",   u"VH",
    u"VI",  u"VJ",  u"VK", u"VL", u"VM", u"VN", u"VO", u"VP", u"VQ",   u"VR",
    u"VS",  u"VT",  u"VU", u"VV", u"VX", u"VY", u"VZ", u"VW", u"VLRE", u"LIST"};
static_assert(kVariableNames[SLOT_LAST_RESULT] == u"VRE" && kVariableNames[SLOT_FIRST_USER] == u"VA" &&
              kVariableNames[SLOT_LIST] == u"LIST");

std::array<CalcValue, kVariableCount>& VariableStore() {
    static std::array<CalcValue, kVariableCount> store;
    return store;
}

}  // namespace

std::span<const std::u16string_view> VariableNames() {
    return kVariableNames;
}

int FindVariable(std::u16string_view name) {
    for (int slot = 0; slot < kVariableCount; ++slot) {
        if (EqualsIgnoringCase(name, kVariableNames[static_cast<std::size_t>(slot)])) return slot;
    }
    return -1;
}

CalcValue& Variable(int slot) {
    return VariableStore().at(static_cast<std::size_t>(slot));
}

void SetVariableNumber(int slot, const QComplex& value) {
    CalcValue& record = Variable(slot);
    const QReal realPart = value.re;  // `value` may be this slot's own number.
    record.Clear();
    record.number.re = realPart;
}

void SetVariableComplex(int slot, const QComplex& value) {
    CalcValue& record = Variable(slot);
    const QComplex number = value;
    record.Clear();
    record.kind = number.im.IsZero() ? KIND_REAL : KIND_COMPLEX;
    record.number = number;
}

void SetVariableMatrix(int slot, std::uint16_t rows, std::uint16_t cols, std::span<const double> data) {
    CalcValue matrix;
    matrix.kind = KIND_MATRIX;
    matrix.rows = rows;
    matrix.cols = cols;
    matrix.data.assign(data.begin(), data.end());
    matrix.data.resize(static_cast<std::size_t>(rows) * cols);
    Variable(slot) = std::move(matrix);
}

void ClearVariable(int slot) {
    Variable(slot).Clear();
}

void ClearAllVariables() {
    for (CalcValue& record : VariableStore()) record.Clear();
}

}  // namespace quorix

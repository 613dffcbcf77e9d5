#include "reference/unit_table.h"

#include <bit>

#include "platform/files.h"
#include "platform/utf8.h"

namespace quorix {

namespace {

/// Slots for each entry of the index, at least: probes stay short.
constexpr std::size_t kSlotsPerEntry = 2;

std::uint32_t HashOf(std::u16string_view text) {
    std::uint64_t hash = 0x9E3779B97F4A7C15U ^ text.size();
    for (const char16_t c : text) {
        hash = (hash ^ c) * 0xFF51AFD7ED558CCDU;
        hash ^= hash >> 32;
    }
    return static_cast<std::uint32_t>(hash);
}

}  // namespace

bool UnitTable::Load(const std::filesystem::path& path) {
    const auto bytes = ReadWholeFile(path);
    if (!bytes) {
        error_ = DATA_NOT_OPENED;
        return false;
    }
    error_ = DATA_NO_ERROR;
    loadedPath_ = path;
    records_.clear();
    DataLines lines({reinterpret_cast<const char*>(bytes->data()), bytes->size()}, kLongestTableLine);
    for (DataLine line; lines.Next(line);) {
        FieldCutter fields(line.text, FieldSeparators::blanks);
        if (fields.Rest().empty() || fields.Rest().starts_with('#') || fields.Rest().starts_with('@')) {
            continue;
        }
        if (records_.size() >= kMostDataRows) {
            error_ = DATA_OVERFLOW;
            break;
        }
        records_.emplace_back();
        if (line.damaged || !ReadUnitRow(fields, records_.back())) {
            records_.pop_back();
            error_ = line.number;
            break;
        }
    }
    reduced_.clear();
    reduced_.resize(records_.size());
    BuildIndex();
    return error_ == DATA_NO_ERROR;
}

void UnitTable::Clear() {
    records_.clear();
    reduced_.clear();
    slots_.clear();
    loadedPath_.clear();
}

void UnitTable::BuildIndex() {
    slots_.assign(std::bit_ceil(2 * records_.size() * kSlotsPerEntry + 1), {});
    for (std::uint32_t position = 0; position < records_.size(); ++position) {
        AddToIndex(2 * position + 1);
        AddToIndex(2 * position + 2);
    }
}

std::u16string_view UnitTable::TextOfEntry(std::uint32_t entry) const {
    const UnitRecord& record = records_[(entry - 1) / 2];
    return entry % 2 == 1 ? record.name : record.symbol;
}

// The first row of a text wins.
void UnitTable::AddToIndex(std::uint32_t entry) {
    const std::u16string_view text = TextOfEntry(entry);
    const std::uint32_t hash = HashOf(text);
    const std::size_t mask = slots_.size() - 1;
    std::size_t at = hash & mask;
    for (; slots_[at].entry != 0; at = (at + 1) & mask) {
        if (slots_[at].hash == hash && TextOfEntry(slots_[at].entry) == text) {
            return;
        }
    }
    slots_[at] = {hash, entry};
}

std::size_t UnitTable::FindIndex(std::u16string_view nameOrSymbol) const {
    if (slots_.empty()) {
        return 0;
    }
    const std::uint32_t hash = HashOf(nameOrSymbol);
    const std::size_t mask = slots_.size() - 1;
    for (std::size_t at = hash & mask; slots_[at].entry != 0; at = (at + 1) & mask) {
        if (slots_[at].hash == hash && TextOfEntry(slots_[at].entry) == nameOrSymbol) {
            return (slots_[at].entry - 1) / 2 + 1;
        }
    }
    return 0;
}

bool UnitTable::IsBaseUnit(std::u16string_view nameOrSymbol) const {
    const std::size_t index = FindIndex(nameOrSymbol);
    return index != 0 && records_[index - 1].IsBase();
}

bool UnitTable::CopyRecord(std::size_t position, UnitRecord& record) const {
    if (position >= records_.size()) {
        return false;
    }
    record = records_[position];
    return true;
}

void UnitTable::ReleaseRecord(UnitRecord& record) {
    record = {};
}

void UnitTable::SetFactor(std::size_t position, double factor) {
    records_.at(position).factor = factor;
    for (auto& reduced : reduced_) {
        reduced.reset();
    }
}

std::u16string UnitTable::ErrorText() const {
    if (error_ > 0) {
        return u"Error on line " + FromUtf8(std::to_string(error_)) + u" in data file.";
    }
    switch (error_) {
        case DATA_NO_ERROR: return u"No Error.";
        case DATA_NOT_OPENED: return u"Error open date file.";
        case UNITS_NOT_SAME: return u"Not same Unit.";
        case UNIT_UNKNOWN: return u"Unknown Unit.";
        default: return u"Unknown Error.";
    }
}

}  // namespace quorix

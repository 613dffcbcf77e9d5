#include "matrix/statistics_list.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <optional>
#include <system_error>
#include <vector>

#include "engine/variable_store.h"
#include "matrix/data_text.h"
#include "platform/files.h"

namespace quorix {
namespace {

// Characters of the line of items that are read; the buffer of 8192 has room for its end.
constexpr std::size_t kLongestLine = 8191;

bool IsList(const CalcValue& value) {
    return value.kind == KIND_MATRIX && value.cols == 1;
}

void StoreItems(std::span<const double> items) {
    if (items.empty()) {
        ClearVariable(SLOT_LIST);
    } else {
        SetVariableMatrix(SLOT_LIST, static_cast<std::uint16_t>(items.size()), 1, items);
    }
}

std::vector<double> CopyOfItems() {
    const std::span<const double> items = StatisticsItems();
    return {items.begin(), items.end()};
}

}  // namespace

std::span<const double> StatisticsItems() {
    const CalcValue& list = Variable(SLOT_LIST);
    return IsList(list) ? std::span<const double>(list.data) : std::span<const double>();
}

std::string StatisticsCountLabel() {
    return "N : " + std::to_string(StatisticsItems().size());
}

StatisticsLoad LoadStatistics(const std::filesystem::path& path) {
    const std::optional<std::vector<std::uint8_t>> bytes = ReadWholeFile(path);
    std::error_code error;
    if (!bytes && !std::filesystem::is_regular_file(path, error)) return StatisticsLoad::none;
    if (bytes && bytes->empty()) return StatisticsLoad::none;
    const StatisticsLoad outcome = bytes ? ReadStatistics(*bytes) : StatisticsLoad::damaged;
    if (outcome != StatisticsLoad::good) KeepDamagedFile(path);
    return outcome;
}

StatisticsLoad ReadStatistics(std::span<const std::uint8_t> bytes) {
    DataText text(bytes);
    const std::int32_t count = text.TakeInteger().value_or(0);
    text.SkipLine();
    const std::optional<DataText::Line> line = text.TakeLine(kLongestLine);
    if (count < 1 || count > static_cast<std::int32_t>(kMostItems) || !line) return StatisticsLoad::none;
    std::vector<double> items(static_cast<std::size_t>(count));
    const bool isGood = ReadNumbers(line->text, items) && !line->isCut;
    StoreItems(items);
    return isGood ? StatisticsLoad::good : StatisticsLoad::damaged;
}

bool SaveStatistics(const std::filesystem::path& path) {
    if (StatisticsItems().size() > kMostItems) return false;
    const std::string text = StatisticsFileText();
    return WriteFileAtomically(path, {reinterpret_cast<const std::uint8_t*>(text.data()), text.size()});
}

std::string StatisticsFileText() {
    const std::span<const double> items = StatisticsItems();
    if (items.empty()) return {};
    std::string text = std::to_string(items.size()) + "\r\n";
    AppendNumbers(text, items);
    return text;
}

bool InsertItem(std::size_t index, double value) {
    std::vector<double> items = CopyOfItems();
    if (index > items.size() || items.size() >= kMostItems || !std::isfinite(value)) return false;
    items.insert(items.begin() + static_cast<std::ptrdiff_t>(index), value);
    StoreItems(items);
    return true;
}

bool SetItem(std::size_t index, double value) {
    CalcValue& list = Variable(SLOT_LIST);
    if (!IsList(list) || index >= list.data.size() || !std::isfinite(value)) return false;
    list.data[index] = value;
    return true;
}

bool DeleteItem(std::size_t index) {
    std::vector<double> items = CopyOfItems();
    if (index >= items.size()) return false;
    items.erase(items.begin() + static_cast<std::ptrdiff_t>(index));
    StoreItems(items);
    return true;
}

void ClearItems() {
    ClearVariable(SLOT_LIST);
}

}  // namespace quorix

#include "matrix/matrix_store.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <system_error>

#include "engine/variable_store.h"
#include "matrix/data_text.h"
#include "matrix/fixed_text.h"
#include "matrix/matrix_algebra.h"
#include "platform/files.h"

namespace quorix {
namespace {

// Characters of a row that are read; the buffer of 2048 has room for its end.
constexpr std::size_t kLongestRow = 2047;
constexpr int kResultDecimals = 2;
// VLRE, which lies behind the user's variables, only keeps its place.
constexpr int kLastUserSlot = SLOT_LIST - 2;

constexpr std::array<std::u16string_view, 5> kMenu = {u"New Matrix", u"Copy to", u"Clear", u"Delete",
                                                      u"Delete All"};

bool IsWithin(std::int32_t value, std::int32_t least, std::int32_t most) {
    return value >= least && value <= most;
}

bool IsUserSlot(int slot) {
    return IsWithin(slot, SLOT_FIRST_USER, kLastUserSlot);
}

std::size_t SizeOf(int rows, int cols) {
    return static_cast<std::size_t>(rows) * static_cast<std::size_t>(cols);
}

std::string IntegerRow(std::span<const int> values) {
    std::string text;
    for (const int value : values) text.append(text.empty() ? "" : " ").append(std::to_string(value));
    return text + "\r\n";
}

}  // namespace

/// One reading of a file.
struct MatrixStore::Reading {
    DataText text;
    MatrixLoad outcome = MatrixLoad::good;

    void Note(MatrixLoad other) { outcome = std::max(outcome, other); }

    // Whether reading can go on.
    bool ReadRecord(MatrixStore& store) {
        std::array<std::int32_t, 3> head{};
        for (std::int32_t& number : head) {
            const std::optional<std::int32_t> read = text.TakeInteger();
            if (!read) return false;
            number = *read;
        }
        const auto [slot, rows, cols] = head;
        if (!IsWithin(slot, 0, kVariableCount - 1) || !IsWithin(rows, 1, kLargestMatrixSide) ||
            !IsWithin(cols, 1, kLargestMatrixSide)) {
            Note(MatrixLoad::skipped);
            return true;
        }
        text.SkipLine();
        std::vector<double> data(SizeOf(rows, cols));
        for (int row = 0; row < rows; ++row) {
            ReadRow(std::span(data).subspan(SizeOf(row, cols), static_cast<std::size_t>(cols)));
        }
        store.Put(slot, rows, cols, data);
        return true;
    }

    void ReadRow(std::span<double> row) {
        const DataText::Line line = text.TakeLine(kLongestRow).value_or(DataText::Line{{}, true});
        const bool isGood = ReadNumbers(line.text, row);
        if (!isGood || line.isCut) Note(MatrixLoad::damaged);
    }
};

std::span<const std::u16string_view> MatrixMenu() {
    return kMenu;
}

MatrixLoad MatrixStore::Load(const std::filesystem::path& path) {
    DeleteAll();
    const std::optional<std::vector<std::uint8_t>> bytes = ReadWholeFile(path);
    std::error_code error;
    if (!bytes && !std::filesystem::is_regular_file(path, error)) return MatrixLoad::good;
    const MatrixLoad outcome = bytes ? Read(*bytes) : MatrixLoad::damaged;
    if (outcome != MatrixLoad::good) KeepDamagedFile(path);
    return outcome;
}

MatrixLoad MatrixStore::Read(std::span<const std::uint8_t> bytes) {
    DeleteAll();
    Reading reading{DataText(bytes)};
    const std::optional<std::int32_t> count = reading.text.TakeInteger();
    if (!count) return MatrixLoad::damaged;
    if (!IsWithin(*count, 0, static_cast<std::int32_t>(kMostMatrices))) return MatrixLoad::skipped;
    reading.text.SkipLine();
    for (std::int32_t i = 0; i < *count; ++i) {
        if (!reading.ReadRecord(*this)) return MatrixLoad::damaged;
    }
    return reading.outcome;
}

bool MatrixStore::Save(const std::filesystem::path& path) const {
    const std::string text = FileText();
    return WriteFileAtomically(path, {reinterpret_cast<const std::uint8_t*>(text.data()), text.size()});
}

std::string MatrixStore::FileText() const {
    std::string records;
    int count = 0;
    for (const int slot : slots_) {
        const CalcValue& matrix = Variable(slot);
        if (!IsMatrix(matrix) || !IsWithin(matrix.rows, 1, kLargestMatrixSide) ||
            !IsWithin(matrix.cols, 1, kLargestMatrixSide)) {
            continue;
        }
        ++count;
        records += IntegerRow(std::array<int, 3>{slot, matrix.rows, matrix.cols});
        for (int row = 0; row < matrix.rows; ++row) {
            AppendNumbers(records, std::span(matrix.data).subspan(SizeOf(row, matrix.cols), matrix.cols));
        }
    }
    return IntegerRow(std::array{count}) + records;
}

std::u16string_view MatrixStore::NameAt(std::size_t index) const {
    return VariableNames()[static_cast<std::size_t>(slots_[index])];
}

const CalcValue& MatrixStore::MatrixAt(std::size_t index) const {
    static const CalcValue none = MakeMatrix(1, 1);
    const CalcValue& value = Variable(slots_[index]);
    return IsMatrix(value) ? value : none;
}

std::vector<int> MatrixStore::FreeSlots() const {
    std::vector<int> free;
    for (int slot = SLOT_FIRST_USER; slot <= kLastUserSlot; ++slot) {
        if (std::ranges::find(slots_, slot) == slots_.end()) free.push_back(slot);
    }
    return free;
}

void MatrixStore::Refresh() {
    std::erase_if(slots_, [](int slot) { return !IsMatrix(Variable(slot)); });
}

bool MatrixStore::CanHold(int slot) const {
    return IsUserSlot(slot) &&
           (slots_.size() < kMostMatrices || std::ranges::find(slots_, slot) != slots_.end());
}

void MatrixStore::Put(int slot, int rows, int cols, std::span<const double> data) {
    SetVariableMatrix(slot, static_cast<std::uint16_t>(rows), static_cast<std::uint16_t>(cols), data);
    if (std::ranges::find(slots_, slot) == slots_.end()) slots_.push_back(slot);
}

bool MatrixStore::New(int slot, int rows, int cols) {
    if (!CanHold(slot) || !IsWithin(rows, 1, kLargestNewSide) || !IsWithin(cols, 1, kLargestNewSide)) {
        return false;
    }
    Put(slot, rows, cols, std::vector<double>(SizeOf(rows, cols)));
    return true;
}

bool MatrixStore::CopyTo(std::size_t index, int slot) {
    if (index >= slots_.size() || !CanHold(slot)) return false;
    const CalcValue copy = MatrixAt(index);
    Put(slot, copy.rows, copy.cols, copy.data);
    return true;
}

bool MatrixStore::Resize(std::size_t index, int rows, int cols) {
    if (index >= slots_.size() || !IsWithin(rows, 1, kLargestMatrixSide) ||
        !IsWithin(cols, 1, kLargestMatrixSide)) {
        return false;
    }
    const CalcValue old = MatrixAt(index);
    std::vector<double> data(SizeOf(rows, cols));
    for (int row = 0; row < std::min<int>(rows, old.rows); ++row) {
        std::copy_n(old.data.begin() + row * old.cols, std::min<int>(cols, old.cols),
                    data.begin() + row * cols);
    }
    Put(slots_[index], rows, cols, data);
    return true;
}

void MatrixStore::Clear(std::size_t index) {
    if (index < slots_.size()) std::ranges::fill(Variable(slots_[index]).data, 0.0);
}

void MatrixStore::Delete(std::size_t index) {
    if (index >= slots_.size()) return;
    ClearVariable(slots_[index]);
    slots_.erase(slots_.begin() + static_cast<std::ptrdiff_t>(index));
}

void MatrixStore::DeleteAll() {
    for (const int slot : slots_) ClearVariable(slot);
    slots_.clear();
}

bool MatrixStore::SetElement(std::size_t index, int row, int col, double value) {
    if (index >= slots_.size() || !std::isfinite(value)) return false;
    CalcValue& matrix = Variable(slots_[index]);
    if (!IsMatrix(matrix) || !IsWithin(row, 0, matrix.rows - 1) || !IsWithin(col, 0, matrix.cols - 1)) {
        return false;
    }
    matrix.data[SizeOf(row, matrix.cols) + static_cast<std::size_t>(col)] = value;
    return true;
}

std::string MatrixSizeLabel(int rows, int cols) {
    return "Size: " + std::to_string(rows) + "x" + std::to_string(cols);
}

std::string MatrixColumnHead(int number) {
    return std::to_string(number) + "    ";
}

std::string MatrixRowHead(int number) {
    const std::string digits = std::to_string(number);
    return digits.size() < 2 ? " " + digits : digits;
}

std::string MatrixResultTeX(const CalcValue& value) {
    if (!IsMatrix(value)) return "[VANS]=\\left[?\\right]";
    std::string text = "[VANS]=\\left[\\begin{matrix}";
    for (int row = 0; row < value.rows; ++row) {
        for (int col = 0; col < value.cols; ++col) {
            text += FixedText(value.data[SizeOf(row, value.cols) + static_cast<std::size_t>(col)],
                              kResultDecimals);
            text += col + 1 < value.cols ? " & " : " \\\\ ";
        }
    }
    return text + "\\end{matrix}\\right]";
}

}  // namespace quorix

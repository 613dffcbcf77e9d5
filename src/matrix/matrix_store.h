#pragma once

// The named matrices of the category "Matrix": which of the engine's variables hold one, their file, and the
// commands of the editor. The elements live in the variables alone.

#include <cstdint>
#include <filesystem>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "engine/calc_value.h"

namespace quorix {

inline constexpr std::u16string_view kMatrixFileName = u"matrix.dat";
/// Limits of the file.
inline constexpr std::size_t kMostMatrices = 25;
inline constexpr int kLargestMatrixSide = 30;
/// Limit of the editor for new matrices.
inline constexpr int kLargestNewSide = 15;

inline constexpr std::u16string_view kMatrixDataError = u"Matrix data error";
inline constexpr std::u16string_view kAskDeleteMatrix = u"Do you want to delete this matrix?";
inline constexpr std::u16string_view kAskDeleteAllMatrices = u"Do you want to delete all matrix?";

/// The rows of the editor's menu, in order.
enum class MatrixCommand { newMatrix, copyTo, clear, deleteOne, deleteAll };
std::span<const std::u16string_view> MatrixMenu();

enum class MatrixLoad {
    good,     ///< read, or there is no file
    skipped,  ///< records outside the limits were left out; no message
    damaged,  ///< the file breaks off or holds what is no number: kMatrixDataError is shown
};

class MatrixStore {
  public:
    /// Replaces the list by the file's. What can be read of a damaged file is taken; the file itself is kept
    /// as NAME.bad whenever something of it is left out, or all of it cannot be read. The variables of the
    /// old list are cleared.
    MatrixLoad Load(const std::filesystem::path& path);
    /// The same for the bytes of a file.
    MatrixLoad Read(std::span<const std::uint8_t> bytes);
    /// Writes the whole list; false, with the old file untouched, when the file cannot be written.
    [[nodiscard]] bool Save(const std::filesystem::path& path) const;
    /// What Save writes. Entries whose variables hold no matrix of the file's sizes any more are left out.
    [[nodiscard]] std::string FileText() const;

    [[nodiscard]] std::size_t Count() const { return slots_.size(); }
    /// Slots in the order of the list.
    [[nodiscard]] std::span<const int> Slots() const { return slots_; }
    [[nodiscard]] std::u16string_view NameAt(std::size_t index) const;
    /// A matrix always.
    [[nodiscard]] const CalcValue& MatrixAt(std::size_t index) const;
    /// Slots of the user's variables that hold no matrix of the list, in order: the names for a new one.
    [[nodiscard]] std::vector<int> FreeSlots() const;
    /// Leaves out the entries whose variables hold no matrix any more.
    void Refresh();

    /// A matrix of zeros, 1 to 15 rows and columns, at the end of the list, or in the place of the one of
    /// that slot. False when a limit is passed or the slot is not one of the user's variables.
    bool New(int slot, int rows, int cols);
    /// A copy of the matrix in another slot. False under the conditions of New.
    bool CopyTo(std::size_t index, int slot);
    /// Other sizes, 1 to 30; the elements that lie in both stay, new ones are 0.
    bool Resize(std::size_t index, int rows, int cols);
    /// All elements 0.
    void Clear(std::size_t index);
    /// The variable becomes unset.
    void Delete(std::size_t index);
    void DeleteAll();
    /// False when there is no such element, or the value is not finite.
    bool SetElement(std::size_t index, int row, int col, double value);

  private:
    struct Reading;

    [[nodiscard]] bool CanHold(int slot) const;
    void Put(int slot, int rows, int cols, std::span<const double> data);

    std::vector<int> slots_;
};

/// "Size: 2x3".
std::string MatrixSizeLabel(int rows, int cols);
/// Heads of the grid; numbers count from 1.
std::string MatrixColumnHead(int number);
std::string MatrixRowHead(int number);

/// The TeX text of a matrix result; "[VANS]=\left[?\right]" for what is no matrix.
std::string MatrixResultTeX(const CalcValue& value);

}  // namespace quorix

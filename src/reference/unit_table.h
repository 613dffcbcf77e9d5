#pragma once

// The rows of one data file of units or currencies, flat, and what converts between them.

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "reference/data_errors.h"
#include "reference/unit_record.h"

namespace quorix {

/// Definitions nested deeper, circular ones among them, and those that expand to more terms than this on one
/// side relate to nothing: UNITS_NOT_SAME.
inline constexpr int kDeepestDefinition = 32;
inline constexpr std::size_t kMostExpandedTerms = 4096;

class UnitTable {
  public:
    /// Replaces the rows by those of a file, groups not regarded; lines that begin with "#" or "@" are
    /// skipped. False with the number of the line that stopped it in Error(); the rows before it stay. A file
    /// that cannot be opened is DATA_NOT_OPENED and keeps the old rows.
    bool Load(const std::filesystem::path& path);

    /// Drops the rows; the error stays.
    void Clear();

    [[nodiscard]] std::span<const UnitRecord> Records() const { return records_; }
    /// The file of the rows; empty when none was loaded.
    [[nodiscard]] const std::filesystem::path& LoadedPath() const { return loadedPath_; }
    /// The position plus 1 of the first row of that name or symbol, or 0.
    [[nodiscard]] std::size_t FindIndex(std::u16string_view nameOrSymbol) const;
    /// False for an unknown one too.
    [[nodiscard]] bool IsBaseUnit(std::u16string_view nameOrSymbol) const;
    /// A copy of row `position`; false when there is none.
    bool CopyRecord(std::size_t position, UnitRecord& record) const;
    /// Empties a copy.
    static void ReleaseRecord(UnitRecord& record);
    /// A new factor for row `position`, which must exist.
    void SetFactor(std::size_t position, double factor);

    /// The pair that turns a value of the first unit into the second: value * factor + offset. Units go by
    /// name or symbol. False with UNIT_UNKNOWN, or with UNITS_NOT_SAME where the two have no common terms or
    /// the pair is not finite.
    bool GetConversion(std::u16string_view fromName, std::u16string_view toName, double& factor,
                       double& offset);

    /// A DataError, or the number of the line that stopped Load.
    [[nodiscard]] std::int32_t Error() const { return error_; }
    /// The words of Error(); they differ from those of DataFileReader, which is intended.
    [[nodiscard]] std::u16string ErrorText() const;

  private:
    /// A record's definition in base units, cancelled, its terms sorted.
    struct ReducedUnit {
        bool failed = false;
        double factor = 1;
        double offset = 0;
        std::vector<std::u16string> numerators;
        std::vector<std::u16string> denominators;
    };
    struct Slot {
        std::uint32_t hash = 0;
        /// Twice the position, plus 1 for a symbol, plus 1; 0 in an empty slot.
        std::uint32_t entry = 0;
    };

    void BuildIndex();
    void AddToIndex(std::uint32_t entry);
    [[nodiscard]] std::u16string_view TextOfEntry(std::uint32_t entry) const;
    const ReducedUnit& Reduced(std::size_t position);
    bool Relate(std::size_t from, std::size_t to, double& factor, double& offset);
    bool RelateByExpansion(std::size_t from, std::size_t to, double& factor, double& offset);

    std::vector<UnitRecord> records_;
    std::vector<std::unique_ptr<ReducedUnit>> reduced_;
    std::vector<Slot> slots_;
    std::filesystem::path loadedPath_;
    std::int32_t error_ = DATA_NO_ERROR;
};

}  // namespace quorix

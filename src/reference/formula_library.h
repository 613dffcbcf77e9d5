#pragma once

// The formula library on disk: a folder with indexfor.dat, fordes.dat, fordetail.dat and fortree.dat.
// A change of the four files is all or nothing, also when the program is killed in the middle.

#include <filesystem>
#include <optional>
#include <vector>

#include "reference/formula_import.h"
#include "reference/formula_records.h"
#include "reference/formula_tree.h"

namespace quorix {

struct FormulaFiles;

struct FormulaImportResult {
    bool done = false;
    std::size_t formulas = 0;
    /// Why nothing was changed, when not done.
    ImportProblem problem;
};

class FormulaLibrary {
  public:
    /// folder: "Formulas" of the program's folder; it need not exist. Brings a change to its end that was
    /// written out but not put in place.
    explicit FormulaLibrary(std::filesystem::path folder);

    /// Empty when the file cannot be read.
    [[nodiscard]] std::vector<FormulaIndexEntry> ReadIndex() const;
    [[nodiscard]] FormulaTree ReadTree() const;
    /// Nothing when the file cannot be read or the record at the offset is not that of `id`.
    [[nodiscard]] std::optional<FormulaDescription> ReadDescription(FormulaId id, std::uint32_t offset) const;
    [[nodiscard]] std::optional<FormulaDetail> ReadDetail(FormulaId id, std::uint32_t offset) const;

    /// With `append`, adds to the library if there is one; otherwise the text becomes the library. Nothing
    /// changes when the text is refused, when it holds nothing and would replace a library, or when writing
    /// fails.
    FormulaImportResult ImportFormulas(const std::filesystem::path& path, bool append);

    /// Deletes the formulas and tree nodes ids[k] with marks[k] set; both have the same length. False:
    /// nothing has changed. Damaged files are kept as NAME.bad when records of other formulas cannot be read.
    bool DeleteFormulas(const std::vector<FormulaId>& ids, const std::vector<bool>& marks);

  private:
    [[nodiscard]] std::filesystem::path File(std::u16string_view name) const;
    /// The program's own file, named as written; the others are found whatever their case.
    [[nodiscard]] std::filesystem::path Temporary(std::u16string_view name) const;
    /// Nothing when one of the files is there and cannot be read.
    [[nodiscard]] std::optional<FormulaFiles> Load() const;
    void KeepCopies() const;
    bool Commit(const FormulaFiles& files);
    [[nodiscard]] bool FinishChange() const;

    std::filesystem::path folder_;
};

/// The entry of `id`, the last one where it repeats; null when there is none.
const FormulaIndexEntry* FindFormula(std::span<const FormulaIndexEntry> index, FormulaId id);

}  // namespace quorix

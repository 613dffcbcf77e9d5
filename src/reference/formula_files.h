#pragma once

// The four files of the formula library as bytes in memory, and what import and deletion do to them.

#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "reference/formula_import.h"
#include "reference/formula_records.h"

namespace quorix {

/// indexfor.dat as entries, fordes.dat, fordetail.dat, fortree.dat.
struct FormulaFiles {
    std::vector<FormulaIndexEntry> index;
    std::vector<std::uint8_t> descriptions;
    std::vector<std::uint8_t> details;
    std::string tree;
};

/// Appends every record, index entry and tree line; nothing is sorted, and identifiers may repeat.
void AppendImport(FormulaFiles& files, const FormulaImport& import);

/// Writes the records of all other identifiers anew and drops the tree lines of these; the tree is then
/// sorted. Gives how many records of other identifiers could not be read and are lost by that.
std::size_t RemoveFormulas(FormulaFiles& files, std::span<const FormulaId> ids);

}  // namespace quorix

#pragma once

// The binary records of the formula library: the index, descriptions and details. All integers are 32 bits,
// little-endian; a counted text is its length and that many bytes. Reading never trusts a length, a count or
// an offset.

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "reference/formula_identifier.h"

namespace quorix {

/// Longest counted text, in bytes.
inline constexpr std::size_t kLongestFormulaText = 1023;
/// Most parameters, solved forms or pictures of one formula.
inline constexpr std::size_t kMostFormulaEntries = 256;

struct FormulaIndexEntry {
    FormulaId id = 0;
    std::uint32_t descriptionOffset = 0;
    std::uint32_t detailOffset = 0;
    friend bool operator==(const FormulaIndexEntry&, const FormulaIndexEntry&) = default;
};

struct FormulaDescription {
    FormulaId id = 0;
    std::string name;
    std::string description;
    /// The formula in the TeX subset of the equation view.
    std::string mime;
    /// File names of pictures; empty names are dropped on reading.
    std::vector<std::string> images;
    friend bool operator==(const FormulaDescription&, const FormulaDescription&) = default;
};

/// The five texts of a parameter, in the order of the files.
struct FormulaParameter {
    /// As it stands in the solved forms.
    std::string symbol;
    std::string description;
    /// In TeX; "^o" is the degree of angles.
    std::string unit;
    /// The symbol in TeX.
    std::string label;
    /// What its field holds at first: the value of a constant, or nothing.
    std::string preset;
    friend bool operator==(const FormulaParameter&, const FormulaParameter&) = default;
};

struct FormulaDetail {
    FormulaId id = 0;
    std::vector<FormulaParameter> parameters;
    /// Entry k gives parameter k from the others; an empty or absent one: there is none.
    std::vector<std::string> solvedForms;
    friend bool operator==(const FormulaDetail&, const FormulaDetail&) = default;
};

/// The entries; fewer than the count says when the bytes end early. Nothing when there is no count or a
/// negative one.
std::optional<std::vector<FormulaIndexEntry>> ParseFormulaIndex(std::span<const std::uint8_t> bytes);
/// The record at `offset`; nothing when it is not that of `id`, or does not lie wholly inside of `bytes`
/// within the limits above.
std::optional<FormulaDescription> ParseFormulaDescription(std::span<const std::uint8_t> bytes, FormulaId id,
                                                          std::uint32_t offset);
std::optional<FormulaDetail> ParseFormulaDetail(std::span<const std::uint8_t> bytes, FormulaId id,
                                                std::uint32_t offset);

std::vector<std::uint8_t> FormulaIndexBytes(std::span<const FormulaIndexEntry> entries);
/// Both append a record and give its offset. The texts and counts must keep the limits above.
std::uint32_t AppendFormulaDescription(std::vector<std::uint8_t>& bytes, const FormulaDescription& record);
std::uint32_t AppendFormulaDetail(std::vector<std::uint8_t>& bytes, const FormulaDetail& record);

}  // namespace quorix

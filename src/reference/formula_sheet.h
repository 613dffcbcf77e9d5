#pragma once

// The fields of one formula: all but one are filled in, and the empty one is computed.

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/geometry.h"
#include "reference/formula_records.h"

namespace quorix {

/// Where the window shows messages, in logical units.
inline constexpr Rect kFormulaMessageRect{11, 98, 225, 195};

struct FormulaOutcome {
    /// When true the field `field` now holds its value; otherwise `message` is to be shown.
    bool solved = false;
    std::size_t field = 0;
    std::u16string message;
};

class FormulaSheet {
  public:
    /// The fields hold the presets of the parameters.
    explicit FormulaSheet(FormulaDetail detail);

    [[nodiscard]] const std::vector<FormulaParameter>& Parameters() const { return detail_.parameters; }
    /// Whether parameter k can be computed from the others.
    [[nodiscard]] bool HasSolvedForm(std::size_t k) const;
    /// False when a parameter is an angle in degrees: the sheet then always computes in degrees.
    [[nodiscard]] bool MayChooseAngleUnit() const { return mayChooseAngleUnit_; }

    /// Fields are in the engine's notation with "." as decimal sign, also those that Calculate fills.
    [[nodiscard]] const std::u16string& Field(std::size_t k) const { return fields_[k]; }
    void SetField(std::size_t k, std::u16string_view text) { fields_[k] = text; }
    /// Empties every field that has no preset.
    void Reset();

    /// Computes the one field that holds nothing but blanks. angleUnit: the user's, used when it may be
    /// chosen; the process-wide unit and error are left as they were found.
    FormulaOutcome Calculate(std::int32_t angleUnit);

  private:
    [[nodiscard]] std::u16string FilledForm(std::size_t k) const;

    FormulaDetail detail_;
    std::vector<std::u16string> fields_;
    bool mayChooseAngleUnit_ = true;
};

/// `form` with each symbol that stands as a word of its own replaced by "(value)", or
/// "*(value)" right behind a number or another value. Words in front of a "("
/// are functions and stay. Symbols and values have the same number of entries.
std::u16string SubstituteSymbols(std::u16string_view form, std::span<const std::u16string> symbols,
                                 std::span<const std::u16string> values);

/// A number with an exponent, "1.5E-7", as the expression "1.5*10^(-7)"; other texts unchanged.
std::u16string ExponentAsPower(std::u16string_view number);

}  // namespace quorix

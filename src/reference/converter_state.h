#pragma once

// What the converter shows and remembers, and the file that keeps it between runs.

#include <array>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>

namespace quorix {

enum class ConverterMode : std::uint8_t { units, currency, constants, nestedConstants };

enum class ConverterField : std::uint8_t {
    status,
    curFrom,
    curTo,
    catField,
    unitFrom,
    unitTo,
    constGroup,
    constItem,
    constSubGroup,
    constSubItem,
    constValue,
};
inline constexpr std::size_t kConverterFields = 11;

/// The texts of one field; the label is a symbol or a name.
struct FieldText {
    std::u16string value;
    std::u16string label;
    friend bool operator==(const FieldText&, const FieldText&) = default;
};

/// What stands behind one of two fields: the long name of its unit and the position in its list.
struct ConverterSide {
    std::u16string name;
    int index = 0;
    friend bool operator==(const ConverterSide&, const ConverterSide&) = default;
};

struct ConverterState {
    std::array<FieldText, kConverterFields> fields;
    /// First and second side.
    std::array<ConverterSide, 2> units;
    std::array<ConverterSide, 2> currencies{ConverterSide{}, ConverterSide{{}, 1}};
    int unitCategoryIndex = 0;
    int constGroupIndex = 0;
    int constSubGroupIndex = 0;
    int constItemIndex = 0;
    ConverterMode lastConstMode = ConverterMode::constants;

    [[nodiscard]] FieldText& Field(ConverterField field) { return fields[static_cast<std::size_t>(field)]; }
    [[nodiscard]] const FieldText& Field(ConverterField field) const {
        return fields[static_cast<std::size_t>(field)];
    }
    friend bool operator==(const ConverterState&, const ConverterState&) = default;
};

/// Reads "Converter.dat". An absent file changes nothing. A damaged one is kept as "NAME.bad"; every field is
/// then empty and every index 0.
void ReadConverterState(const std::filesystem::path& path, ConverterState& state);
/// Writes it; false when the disk refuses (the old file then stands). The position of the unit category is
/// not kept; positions above 255 are kept as 0.
bool WriteConverterState(const std::filesystem::path& path, const ConverterState& state);

}  // namespace quorix

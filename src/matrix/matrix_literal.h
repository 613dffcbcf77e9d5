#pragma once

// Matrices as the terminal writes them: "[1 2;3 4]".

#include <optional>
#include <string>
#include <string_view>

#include "engine/calc_value.h"

namespace quorix {

/// Most rows and columns of a matrix that is typed in.
inline constexpr std::size_t kLongestMatrixSide = 30;

/// A value, or in plain words (UTF-8) what is wrong with its text.
struct ParsedMatrix {
    CalcValue value;
    std::string error;
};

/// Whether `text` is meant as a matrix: it begins with a bracket and no name in it.
bool IsMatrixLiteral(std::u16string_view text);

/// Rows part at ";", elements at blanks; elements are numbers in base 10 with an optional sign. decimalSign:
/// u'.' or u','.
ParsedMatrix ParseMatrixLiteral(std::u16string_view text, char16_t decimalSign);

/// Numbers parted by blanks or ";", in brackets or not, as a matrix of one column.
ParsedMatrix ParseList(std::u16string_view text, char16_t decimalSign);

/// "[1 2;3 4]": each element in the shortest form that reads back as the same double.
std::string MatrixText(const CalcValue& matrix, char16_t decimalSign);

}  // namespace quorix

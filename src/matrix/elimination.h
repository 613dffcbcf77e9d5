#pragma once

// Row reduction of matrices of doubles, without scaling and without a pivot search by size.

#include "engine/calc_value.h"

namespace quorix {

/// One step on row `row` and column `column` (row above column): clears element (row, column) by the first
/// row p = column, column + 1, ... above `row` whose element (p, column) is not zero; elements of the updated
/// row below 1e-8 become exactly 0. Without such a row, rows `row` and `row` - 1 swap. matrix: KIND_MATRIX.
void EliminateStep(CalcValue& matrix, int row, int column);

/// EliminateStep for every column from the left and in it every row from the bottom up.
void Reduce(CalcValue& matrix);

/// The smaller of the number of rows and of columns of the reduced matrix that hold anything but exact zeros.
int RankOf(CalcValue matrix);

/// Index of the first row of exact zeros, or the row count.
int FirstZeroRow(const CalcValue& matrix);

}  // namespace quorix

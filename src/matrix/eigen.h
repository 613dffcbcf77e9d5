#pragma once

// Eigenvalues by unshifted QR rounds, eigenvectors by the null spaces of A - lambda.

#include <span>
#include <vector>

#include "engine/calc_value.h"

namespace quorix {

/// Number of QR rounds; there is no test of convergence.
inline constexpr int kQrRounds = 300;

struct EigenResult {
    /// n values in the order of the columns.
    std::vector<double> values;
    /// n by n, row by row: eigenvectors of unit length in the columns.
    std::vector<double> vectors;
    /// Two diagonal elements are exactly equal; the vectors of such columns are not finite.
    bool repeated = false;
};

/// a: n by n doubles, row by row. Orthogonal iteration: B = A·Q, B = Q·R, 300 times; the values are the
/// diagonal of Q^T·A·Q. The columns of B are orthogonalised twice; one whose length falls below 1e-14 of what
/// it was is replaced by the first unit vector that is not negligible itself, so that singular matrices come
/// out right.
EigenResult EigenDecompose(std::span<const double> a, int n);

/// The values alone.
std::vector<double> EigenvaluesOf(std::span<const double> a, int n);

/// Orthonormal eigenvectors of a square matrix in the columns of the result. Stores -47 when a reduced matrix
/// vanishes, -48 when the vectors are dependent; gives false then.
bool EigenvectorsOf(const CalcValue& matrix, CalcValue& vectors);

}  // namespace quorix

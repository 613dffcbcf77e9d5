#include "matrix/matrix_algebra.h"

#include <gtest/gtest.h>

#include <Eigen/Dense>
#include <algorithm>
#include <cmath>
#include <random>

#include "engine/calc_context.h"
#include "matrix/determinant.h"
#include "matrix/eigen.h"
#include "matrix/elimination.h"
#include "matrix/inversion.h"
#include "matrix/orthonormalise.h"
#include "matrix/qr_rounds.h"

namespace quorix {
namespace {

CalcValue Matrix(int rows, int cols, std::vector<double> data) {
    CalcValue matrix = MakeMatrix(rows, cols);
    matrix.data = std::move(data);
    return matrix;
}

CalcValue Random(std::mt19937& random, int n, bool symmetric) {
    std::uniform_real_distribution<double> element(-5, 5);
    CalcValue matrix = MakeMatrix(n, n);
    for (int i = 0; i < n; ++i) {
        for (int j = 0; j < n; ++j) {
            const auto at = static_cast<std::size_t>(i * n + j);
            matrix.data[at] =
                symmetric && j < i ? matrix.data[static_cast<std::size_t>(j * n + i)] : element(random);
        }
    }
    return matrix;
}

/// Eigenvalues of a symmetric matrix, ascending, by another program.
std::vector<double> EigenvaluesByLibrary(const CalcValue& a) {
    const Eigen::Map<const Eigen::MatrixXd> matrix(a.data.data(), a.rows, a.cols);
    const Eigen::VectorXd values = matrix.selfadjointView<Eigen::Upper>().eigenvalues();
    return {values.begin(), values.end()};
}

/// One factor Q of B = Q·R, written down plainly.
std::vector<double> PlainFactor(const std::vector<double>& b, std::size_t n) {
    std::vector<std::vector<double>> q;
    const auto dot = [](std::vector<double> v, std::vector<double> w) {
        const std::size_t padded = (v.size() + kPartialSums - 1) / kPartialSums * kPartialSums;
        v.resize(padded);
        w.resize(padded);
        double s[kPartialSums];
        for (std::size_t i = 0; i < padded; ++i) {
            s[i % kPartialSums] = i < kPartialSums ? v[i] * w[i] : s[i % kPartialSums] + v[i] * w[i];
        }
        return ((s[0] + s[4]) + (s[2] + s[6])) + ((s[1] + s[5]) + (s[3] + s[7]));
    };
    const auto length = [&](const std::vector<double>& v) { return std::sqrt(dot(v, v)); };
    const auto projectTogether = [&](std::vector<double>& v) {
        std::vector<double> sums(n, 0.0);
        for (const std::vector<double>& earlier : q) {
            const double d = dot(v, earlier);
            for (std::size_t i = 0; i < n; ++i) {
                sums[i] += d * earlier[i];
            }
        }
        for (std::size_t i = 0; i < n; ++i) {
            v[i] -= sums[i];
        }
    };
    for (std::size_t j = 0; j < n; ++j) {
        std::vector<double> v(n);
        for (std::size_t i = 0; i < n; ++i) {
            v[i] = b[i * n + j];
        }
        const double before = length(v);
        for (const std::vector<double>& earlier : q) {
            const double d = dot(earlier, v);
            for (std::size_t i = 0; i < n; ++i) {
                v[i] -= d * earlier[i];
            }
        }
        projectTogether(v);
        bool negligible = !(length(v) > 1e-14 * before);
        for (std::size_t unit = 0; negligible && unit < n; ++unit) {
            v.assign(n, 0.0);
            v[unit] = 1.0;
            projectTogether(v);
            projectTogether(v);
            negligible = !(length(v) > 1e-14);
        }
        const double reciprocal = 1.0 / length(v);
        for (double& element : v) {
            element *= reciprocal;
        }
        q.push_back(v);
    }
    std::vector<double> rows(n * n);
    for (std::size_t i = 0; i < n; ++i) {
        for (std::size_t j = 0; j < n; ++j) {
            rows[i * n + j] = q[j][i];
        }
    }
    return rows;
}

class MatrixAlgebra : public ::testing::Test {
  protected:
    MatrixAlgebra() { ClearCalcError(); }
    ~MatrixAlgebra() override { ClearCalcError(); }
};

TEST_F(MatrixAlgebra, InversesAndDeterminantsOfRandomMatrices) {
    std::mt19937 random(1);
    for (const int n : {1, 2, 3, 5, 8, 13, 30}) {
        for (int round = 0; round < 20; ++round) {
            const CalcValue a = Random(random, n, false);
            CalcValue inverse = a;
            ASSERT_TRUE(InvertInPlace(inverse));
            CalcValue product;
            MatrixMultiply(a, inverse, product);
            for (int i = 0; i < n; ++i) {
                for (int j = 0; j < n; ++j) {
                    EXPECT_NEAR(product.data[static_cast<std::size_t>(i * n + j)], i == j ? 1 : 0, 1e-8);
                }
            }
            const double d = DeterminantOf(a);
            if (n <= 5) {  // the inverse of larger ones falls below the cut-off
                EXPECT_NEAR(d * DeterminantOf(inverse), 1.0, 1e-8);
            }
            EXPECT_NEAR(DeterminantOf(Transposed(a)) / d, 1.0, 1e-9);
        }
    }
}

TEST_F(MatrixAlgebra, CutOffs) {
    EXPECT_EQ(DeterminantOf(Matrix(1, 1, {1e-11})), 0.0);
    EXPECT_EQ(DeterminantOf(Matrix(1, 1, {1e-9})), 1e-9);
    EXPECT_EQ(DeterminantOf(Matrix(2, 2, {1e-151, 0, 0, 1e200})), 1e49);
    EXPECT_EQ(DeterminantOf(Matrix(2, 2, {1e-301, 0, 0, 1e300})), 0.0);
    EXPECT_EQ(DeterminantOf(Matrix(2, 2, {1, 2, 3, 4})), -2.0);
    CalcValue nearlySingular = Matrix(2, 2, {1e-6, 0, 0, 1e-5});
    EXPECT_FALSE(InvertInPlace(nearlySingular));
    EXPECT_EQ(nearlySingular.data[0], 1e-6);  // nothing is touched
    CalcValue product;
    MatrixMultiply(Matrix(1, 2, {1, 1}), Matrix(2, 1, {1, -1 + 1e-13}), product);
    EXPECT_EQ(product.data[0], 0.0);
    ScaleMatrix(product = Matrix(1, 1, {1e-13}), 0.5);
    EXPECT_EQ(product.data[0], 5e-14);
    EXPECT_EQ(calcContext().calcError, 0);
    EXPECT_EQ(DeterminantOf(Matrix(2, 3, {1, 2, 3, 4, 5, 6})), 0.0);
    EXPECT_EQ(calcContext().calcError, -44);
}

TEST_F(MatrixAlgebra, ReductionAndRank) {
    CalcValue m = Matrix(3, 3, {1, 2, 3, 4, 5, 6, 7, 8, 9});
    EXPECT_EQ(RankOf(m), 2);
    Reduce(m);
    EXPECT_EQ(m.data, (std::vector<double>{1, 2, 3, 0, -3, -6, 0, 0, 0}));
    EXPECT_EQ(FirstZeroRow(m), 2);
    EXPECT_EQ(RankOf(MakeMatrix(4, 4)), 0);
    EXPECT_EQ(RankOf(Matrix(2, 3, {0, 0, 1, 1, 0, 0})), 2);
    EXPECT_EQ(RankOf(Matrix(3, 1, {0, 0, 7})), 1);
}

TEST_F(MatrixAlgebra, EigenvaluesOfSymmetricMatricesAgreeWithTheLibrary) {
    std::mt19937 random(2);
    for (const int n : {1, 2, 3, 4, 6, 10}) {
        for (int round = 0; round < 8; ++round) {
            CalcValue a = Random(random, n, true);
            // Separated magnitudes, so that 300 rounds converge.
            for (int i = 0; i < n; ++i) {
                a.data[static_cast<std::size_t>(i * n + i)] += (i % 2 == 0 ? 1 : -1) * std::pow(3.0, i + 3);
            }
            std::vector<double> values = EigenvaluesOf(a.data, n);
            std::sort(values.begin(), values.end());
            const std::vector<double> expected = EigenvaluesByLibrary(a);
            for (std::size_t i = 0; i < values.size(); ++i) {
                EXPECT_NEAR(values[i], expected[i], 1e-9 * std::fabs(expected.back()) + 1e-9) << n;
            }
        }
    }
}

TEST_F(MatrixAlgebra, EigenvaluesOfSingularAndPlainCases) {
    const struct {
        CalcValue matrix;
        std::vector<double> values;
    } cases[] = {{Matrix(2, 2, {1, 1, 1, 1}), {2, 0}},
                 {MakeMatrix(3, 3), {0, 0, 0}},
                 {Matrix(2, 2, {2, 0, 0, 3}), {2, 3}},  // a diagonal start stays as it stands
                 {Matrix(2, 2, {0, 1, 1, 0}), {0, 0}},  // equal magnitudes never converge; the diagonal is
                                                        // what stands there
                 {Matrix(2, 2, {4, 1, 2, 3}), {5, 2}},
                 {Matrix(3, 3, {1, 2, 3, 2, 4, 6, 3, 6, 9}), {14, 0, 0}},
                 {Matrix(2, 2, {-5, 0, 0, 2}), {-5, 2}}};
    for (const auto& [matrix, values] : cases) {
        const std::vector<double> found = EigenvaluesOf(matrix.data, matrix.rows);
        for (std::size_t i = 0; i < values.size(); ++i) {
            EXPECT_NEAR(found[i], values[i], 1e-12) << matrix.data[0] << " " << i;
        }
    }
}

TEST_F(MatrixAlgebra, TheRoundsInVectorsEqualThePlainRounds) {
    std::mt19937 random(3);
    for (const int n : {0, 1, 2, 3, 7, 8, 12, 17, 30, 35}) {
        for (const bool symmetric : {false, true}) {
            CalcValue a = Random(random, n, symmetric);
            if (n == 7) {
                std::fill(a.data.begin() + 7, a.data.begin() + 14, 0.0);  // dependent columns
            }
            const auto size = static_cast<std::size_t>(n);
            std::vector<double> q(size * size, 0.0);
            for (std::size_t i = 0; i < size; ++i) {
                q[i * size + i] = 1.0;
            }
            for (int round = 0; round < kQrRounds; ++round) {
                std::vector<double> b(size * size, 0.0);
                for (std::size_t i = 0; i < size; ++i) {
                    for (std::size_t j = 0; j < size; ++j) {
                        for (std::size_t k = 0; k < size; ++k) {
                            b[i * size + j] += a.data[i * size + k] * q[k * size + j];
                        }
                    }
                }
                q = PlainFactor(b, size);
            }
            for (const std::size_t width : {2U, 4U, 8U}) {
                EXPECT_EQ(QrRounds(a.data, size, kQrRounds, width), q) << n << symmetric << width;
            }
        }
    }
}

TEST_F(MatrixAlgebra, EigenvectorsSpanTheirSpaces) {
    std::mt19937 random(4);
    for (const int n : {2, 3, 4}) {
        CalcValue a = Random(random, n, true);
        for (int i = 0; i < n; ++i) {
            a.data[static_cast<std::size_t>(i * n + i)] += 12.0 * (i + 1);
        }
        CalcValue vectors;
        ASSERT_TRUE(EigenvectorsOf(a, vectors)) << n;
        CalcValue rotated;
        MatrixMultiply(a, vectors, rotated);
        MatrixMultiply(Transposed(vectors), rotated, rotated);
        std::vector<double> diagonal;
        for (int i = 0; i < n; ++i) {
            for (int j = 0; j < n; ++j) {
                const double element = rotated.data[static_cast<std::size_t>(i * n + j)];
                if (i == j) {
                    diagonal.push_back(element);
                } else {
                    EXPECT_NEAR(element, 0, 1e-6);
                }
            }
        }
        std::sort(diagonal.begin(), diagonal.end());
        const std::vector<double> expected = EigenvaluesByLibrary(a);
        for (std::size_t i = 0; i < diagonal.size(); ++i) {
            EXPECT_NEAR(diagonal[i], expected[i], 1e-6);
        }
    }
    // The pivot columns are taken to be the leading ones, so a diagonal matrix has dependent vectors; this is
    // intended.
    CalcValue none;
    EXPECT_FALSE(EigenvectorsOf(Matrix(2, 2, {2, 0, 0, 3}), none));
    EXPECT_EQ(calcContext().calcError, -48);
    const EigenResult result = EigenDecompose(Matrix(2, 2, {4, 1, 2, 3}).data, 2);
    EXPECT_FALSE(result.repeated);
    for (std::size_t c = 0; c < 2; ++c) {
        const double x = result.vectors[c];
        const double y = result.vectors[2 + c];
        EXPECT_NEAR(4 * x + y, result.values[c] * x, 1e-12);
        EXPECT_NEAR(2 * x + 3 * y, result.values[c] * y, 1e-12);
    }
    EXPECT_TRUE(EigenDecompose(Matrix(2, 2, {1, 0, 0, 1}).data, 2).repeated);
}

TEST_F(MatrixAlgebra, OrthonormalisingDependentColumnsChangesNothing) {
    CalcValue m = Matrix(2, 2, {1, 2, 2, 4});
    const std::vector<double> before = m.data;
    EXPECT_FALSE(Orthonormalise(m));
    EXPECT_EQ(calcContext().calcError, -48);
    EXPECT_EQ(m.data, before);
    m = Matrix(3, 2, {3, 1, 4, 0, 0, 2});
    ClearCalcError();
    ASSERT_TRUE(Orthonormalise(m));
    EXPECT_NEAR(m.data[0], 0.6, 1e-15);
    EXPECT_NEAR(m.data[0] * m.data[1] + m.data[2] * m.data[3] + m.data[4] * m.data[5], 0, 1e-15);
}

}  // namespace
}  // namespace quorix

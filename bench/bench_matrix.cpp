// Matrix algebra at 30 x 30 beside Eigen.

#include <Eigen/Dense>
#include <random>
#include <tuple>

#include "matrix/determinant.h"
#include "matrix/eigen.h"
#include "matrix/inversion.h"
#include "matrix/matrix_algebra.h"
#include "matrix/qr_rounds.h"
#include "ratio_report.h"

namespace {

using namespace quorix;

constexpr int kSize = 30;
using PeerMatrix = Eigen::Matrix<double, Eigen::Dynamic, Eigen::Dynamic, Eigen::RowMajor>;

const CalcValue& Sample() {
    static const CalcValue sample = [] {
        std::mt19937 random(5);
        std::uniform_real_distribution<double> element(-5, 5);
        CalcValue matrix = MakeMatrix(kSize, kSize);
        for (int i = 0; i < kSize; ++i) {
            for (int j = 0; j <= i; ++j) {
                const double value = element(random) + (i == j ? 3.0 * i : 0.0);
                matrix.data[static_cast<std::size_t>(i * kSize + j)] = value;
                matrix.data[static_cast<std::size_t>(j * kSize + i)] = value;
            }
        }
        return matrix;
    }();
    return sample;
}

PeerMatrix PeerSample() {
    return Eigen::Map<const PeerMatrix>(Sample().data.data(), kSize, kSize);
}

}  // namespace

int main(int argc, char** argv) {
    const PeerMatrix peer = PeerSample();
    bench::RegisterPair("determinant", bench::Loop([] { return DeterminantOf(Sample()); }),
                        bench::Loop([&] { return peer.determinant(); }), 2.5);
    bench::RegisterPair("inverse", bench::Loop([] {
                            CalcValue copy = Sample();
                            InvertInPlace(copy);
                            return copy;
                        }),
                        bench::Loop([&] { return PeerMatrix(peer.inverse()); }), 2.5);
    const auto peerEigen = bench::Loop(
        [&] { return Eigen::SelfAdjointEigenSolver<PeerMatrix>(peer, Eigen::ComputeEigenvectors); });
    bench::RegisterPair("eigenvalues", bench::Loop([] { return EigenvaluesOf(Sample().data, kSize); }),
                        peerEigen, 45);
    for (const auto& [name, width, goal] :
         {std::tuple{"rounds, 4 wide", 4U, 45.0}, {"rounds, 2 wide", 2U, 80.0}}) {
        bench::RegisterPair(
            name, bench::Loop([width = width] { return QrRounds(Sample().data, kSize, kQrRounds, width); }),
            peerEigen, goal);
    }
    return bench::RunPairs(argc, argv);
}

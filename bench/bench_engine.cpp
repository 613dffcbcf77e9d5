// Evaluation of expressions beside muParser, and long products beside MPFR.

#include <mpfr.h>

#include <cmath>
#include <cstdlib>
#include <iostream>
#include <string>
#include <string_view>

#include "engine/bound_expression.h"
#include "engine/calc_context.h"
#include "engine/eval_double.h"
#include "engine/evaluate.h"
#include "engine/integral.h"
#include "parser_peer.h"
#include "ratio_report.h"

namespace {

using namespace quorix;

// One window of a graph.
constexpr int kSamples = 1024;
constexpr double kFrom = -10.0;
constexpr double kStep = 20.0 / kSamples;

constexpr std::u16string_view kGraph = u"exp(-x/3)*sin(x)+x^2/7";
constexpr const char* kPeerGraph = "exp(-x/3)*sin(x)+x^2/7";

constexpr std::u16string_view kIntegrand = u"exp(-x/2)*cos(x)";
constexpr const char* kPeerIntegrand = "exp(-x/2)*cos(x)";
constexpr double kUpper = 3.0;

/// The sampler of the graph.
class Own {
  public:
    double At(double x) {
        const auto value = sampler_.At(x);
        return value ? value->re : NAN;
    }

  private:
    DoubleSampler sampler_{kGraph, u"x", 10};
};

double CachedAt(double x) {
    const auto value = EvalToDouble(kGraph, u"x", x, 10);
    return value ? value->re : NAN;
}

template <class Function>
double SampleSum(Function&& at) {
    double sum = 0.0;
    for (int i = 0; i < kSamples; ++i) sum += at(kFrom + i * kStep);
    return sum;
}

void Integrate(benchmark::State& state) {
    boundExpression() = {std::u16string(kIntegrand), u"x"};
    const std::function<double(double)> at = [](double x) {
        return EvalBoundDouble(x, boundExpression().text);
    };
    for (auto _ : state) benchmark::DoNotOptimize(Romberg(at, 0.0, kUpper));
}

int SamplesOfIntegral() {
    boundExpression() = {std::u16string(kIntegrand), u"x"};
    int samples = 0;
    Romberg(
        [&samples](double x) {
            ++samples;
            return EvalBoundDouble(x, boundExpression().text);
        },
        0.0, kUpper);
    return samples;
}

void OwnFactorial(benchmark::State& state) {
    for (auto _ : state) {
        ClearCalcError();
        benchmark::DoNotOptimize(EvaluateExpression(u"1500!", EvaluationMode::number, 10));
    }
    if (calcContext().calcError != 0) state.SkipWithError("1500! fails");
}

void PeerFactorial(benchmark::State& state) {
    mpfr_t product;
    mpfr_init2(product, 336);
    for (auto _ : state) {
        mpfr_set_ui(product, 1, MPFR_RNDN);
        for (unsigned long n = 2; n <= 1500; ++n) mpfr_mul_ui(product, product, n, MPFR_RNDN);
        benchmark::DoNotOptimize(product);
    }
    mpfr_clear(product);
}

}  // namespace

int main(int argc, char** argv) {
    SetAngleUnit(UNIT_RADIANS);
    bench::ParserPeer graph(kPeerGraph);
    bench::ParserPeer integrand(kPeerIntegrand);
    Own own;
    const auto ownAt = [&own](double x) { return own.At(x); };
    const auto peerAt = [&graph](double x) { return graph.At(x); };
    const double difference = SampleSum(ownAt) - SampleSum(peerAt);
    if (!(std::fabs(difference) < 1e-8)) {
        std::cerr << "the samples differ by " << difference << " in sum\n";
        return EXIT_FAILURE;
    }
    const bench::Body peerGraph = [&](benchmark::State& state) {
        for (auto _ : state) benchmark::DoNotOptimize(SampleSum(peerAt));
    };
    bench::RegisterPair(
        "graph, 1024 samples",
        [&](benchmark::State& state) {
            for (auto _ : state) benchmark::DoNotOptimize(SampleSum(ownAt));
        },
        peerGraph, 1.0);
    bench::RegisterPair(
        "graph by its text",
        [](benchmark::State& state) {
            for (auto _ : state) benchmark::DoNotOptimize(SampleSum(CachedAt));
        },
        peerGraph, 0);
    const int samples = SamplesOfIntegral();
    bench::RegisterPair(
        "integral", Integrate,
        [&](benchmark::State& state) {
            for (auto _ : state) {
                double sum = 0.0;
                for (int i = 0; i < samples; ++i) sum += integrand.At(kUpper * i / samples);
                benchmark::DoNotOptimize(sum);
            }
        },
        3.0);
    bench::RegisterPair("1500!", OwnFactorial, PeerFactorial, 1.5);
    return bench::RunPairs(argc, argv);
}

// The number core beside MPFR at 336 bits.

#include <mpfr.h>

#include <array>
#include <random>
#include <string>

#include "numerics/constants.h"
#include "numerics/qcore.h"
#include "ratio_report.h"

namespace quorix {
namespace {

constexpr int kBits = 336;
constexpr std::size_t kSamples = 512;

// The same numbers in both formats: full mantissas between 1/8 and 8, of both signs.
struct Samples {
    Samples() {
        std::mt19937_64 engine(1);
        for (std::size_t i = 0; i < kSamples; ++i) {
            std::string digits = engine() % 2 == 0 ? "" : "-";
            digits += std::to_string(engine() % 8) + ".1";
            while (digits.size() < 64) digits += static_cast<char>('0' + engine() % 10);
            // Dividing fills the mantissa.
            asctoq(digits, own[i]);
            qdiv(constants::kPi, own[i], own[i]);
            mpfr_init2(peer[i], kBits);
            mpfr_set_str(peer[i], qtoasc(own[i], 99).c_str() + (own[i].IsNegative() ? 0 : 1), 10, MPFR_RNDN);
            text[i] = digits;
        }
        mpfr_init2(result, kBits);
    }

    std::array<QReal, kSamples> own;
    std::array<mpfr_t, kSamples> peer;
    std::array<std::string, kSamples> text;
    mpfr_t result;
};

Samples& All() {
    static Samples samples;
    return samples;
}

// Runs `operation(i, j)` over pairs of sample numbers.
template <class Operation>
bench::Body OverPairs(Operation operation) {
    return [operation](benchmark::State& state) {
        Samples& samples = All();
        std::size_t i = 0;
        for (auto _ : state) {
            operation(samples, i, kSamples - 1 - i);
            benchmark::ClobberMemory();
            i = (i + 1) % (kSamples - 1);
        }
    };
}

template <class Own, class Peer>
void AddBinary(const char* name, Own own, Peer peer, double goal) {
    bench::RegisterPair(name, OverPairs([own](Samples& s, std::size_t i, std::size_t j) {
                            QReal result;
                            own(s.own[i], s.own[j], result);
                            benchmark::DoNotOptimize(result);
                        }),
                        OverPairs([peer](Samples& s, std::size_t i, std::size_t j) {
                            peer(s.result, s.peer[j], s.peer[i], MPFR_RNDN);
                        }),
                        goal);
}

void RegisterArithmetic() {
    AddBinary("add", qadd, mpfr_add, 1.0);
    AddBinary("subtract", qsub, mpfr_sub, 1.0);
    AddBinary("multiply", qmul, mpfr_mul, 0.7);
    AddBinary("divide", qdiv, mpfr_div, 0.75);
}

void RegisterText() {
    bench::RegisterPair("60 digits to number", OverPairs([](Samples& s, std::size_t i, std::size_t) {
                            QReal result;
                            asctoq(s.text[i], result);
                            benchmark::DoNotOptimize(result);
                        }),
                        OverPairs([](Samples& s, std::size_t i, std::size_t) {
                            mpfr_set_str(s.result, s.text[i].c_str(), 10, MPFR_RNDN);
                        }),
                        0.6);
    bench::RegisterPair("number to 32 digits", OverPairs([](Samples& s, std::size_t i, std::size_t) {
                            benchmark::DoNotOptimize(qtoasc(s.own[i], 31));
                        }),
                        OverPairs([](Samples& s, std::size_t i, std::size_t) {
                            std::array<char, 64> digits;
                            mpfr_exp_t exponent;
                            mpfr_get_str(digits.data(), &exponent, 10, 32, s.peer[i], MPFR_RNDN);
                            benchmark::DoNotOptimize(digits);
                        }),
                        1.1);
}

}  // namespace
}  // namespace quorix

int main(int argc, char** argv) {
    quorix::RegisterArithmetic();
    quorix::RegisterText();
    return quorix::bench::RunPairs(argc, argv);
}

// The number core beside MPFR at 336 bits.

#include "bench_functions.h"
#include "numeric_samples.h"

namespace quorix {
namespace {

using bench::OverPairs;
using bench::Samples;

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
    quorix::RegisterFunctions();
    quorix::RegisterComplex();
    return quorix::bench::RunPairs(argc, argv);
}

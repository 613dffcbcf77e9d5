// The functions of reals and complex numbers beside MPFR at 336 bits; the complex ones of the peer by the
// textbook formulas.

#include "bench_functions.h"

#include "numeric_samples.h"
#include "numerics/qfunctions.h"

namespace quorix {
namespace {

using bench::kBits;
using bench::OverPairs;
using bench::Samples;

// Arguments of the functions: magnitudes of the samples.
struct Magnitudes {
    Magnitudes() {
        for (std::size_t i = 0; i < bench::kSamples; ++i) {
            own[i] = bench::All().own[i];
            qabs(own[i]);
            mpfr_init2(peer[i], kBits);
            mpfr_abs(peer[i], bench::All().peer[i], MPFR_RNDN);
        }
    }
    std::array<QReal, bench::kSamples> own;
    std::array<mpfr_t, bench::kSamples> peer;
};

Magnitudes& Positive() {
    static Magnitudes magnitudes;
    return magnitudes;
}

template <class Own, class Peer>
void AddUnary(const char* name, Own own, Peer peer, double goal) {
    bench::RegisterPair(name, OverPairs([own](Samples&, std::size_t i, std::size_t) {
                            QReal result;
                            own(Positive().own[i], result);
                            benchmark::DoNotOptimize(result);
                        }),
                        OverPairs([peer](Samples& s, std::size_t i, std::size_t) {
                            peer(s.result, Positive().peer[i], MPFR_RNDN);
                        }),
                        goal);
}

// Scratch numbers of the peer's formulas.
struct Scratch {
    Scratch() {
        for (mpfr_t& number : numbers) mpfr_init2(number, kBits);
    }
    std::array<mpfr_t, 6> numbers;
};

Scratch& Temporaries() {
    static Scratch scratch;
    return scratch;
}

using ComplexPeer = void (*)(mpfr_t* t, mpfr_t ar, mpfr_t ai, mpfr_t br, mpfr_t bi);

void PeerMultiply(mpfr_t* t, mpfr_t ar, mpfr_t ai, mpfr_t br, mpfr_t bi) {
    mpfr_mul(t[0], ar, br, MPFR_RNDN);
    mpfr_mul(t[1], ai, bi, MPFR_RNDN);
    mpfr_sub(t[4], t[0], t[1], MPFR_RNDN);
    mpfr_mul(t[0], ar, bi, MPFR_RNDN);
    mpfr_mul(t[1], ai, br, MPFR_RNDN);
    mpfr_add(t[5], t[0], t[1], MPFR_RNDN);
}

void PeerDivide(mpfr_t* t, mpfr_t ar, mpfr_t ai, mpfr_t br, mpfr_t bi) {
    mpfr_mul(t[0], ar, ar, MPFR_RNDN);
    mpfr_mul(t[1], ai, ai, MPFR_RNDN);
    mpfr_add(t[2], t[0], t[1], MPFR_RNDN);
    mpfr_mul(t[0], br, ar, MPFR_RNDN);
    mpfr_mul(t[1], bi, ai, MPFR_RNDN);
    mpfr_add(t[3], t[0], t[1], MPFR_RNDN);
    mpfr_div(t[4], t[3], t[2], MPFR_RNDN);
    mpfr_mul(t[0], bi, ar, MPFR_RNDN);
    mpfr_mul(t[1], br, ai, MPFR_RNDN);
    mpfr_sub(t[3], t[0], t[1], MPFR_RNDN);
    mpfr_div(t[5], t[3], t[2], MPFR_RNDN);
}

void PeerExp(mpfr_t* t, mpfr_t ar, mpfr_t ai, mpfr_t, mpfr_t) {
    mpfr_exp(t[0], ar, MPFR_RNDN);
    mpfr_sin_cos(t[1], t[2], ai, MPFR_RNDN);
    mpfr_mul(t[4], t[0], t[2], MPFR_RNDN);
    mpfr_mul(t[5], t[0], t[1], MPFR_RNDN);
}

void PeerLog(mpfr_t* t, mpfr_t ar, mpfr_t ai, mpfr_t, mpfr_t) {
    mpfr_hypot(t[0], ar, ai, MPFR_RNDN);
    mpfr_log(t[4], t[0], MPFR_RNDN);
    mpfr_atan2(t[5], ai, ar, MPFR_RNDN);
}

template <class Own>
void AddComplex(const char* name, Own own, ComplexPeer peer, double goal) {
    bench::RegisterPair(name, OverPairs([own](Samples& s, std::size_t i, std::size_t j) {
                            QComplex result;
                            own({s.own[i], s.own[j]}, {s.own[j], s.own[i]}, result);
                            benchmark::DoNotOptimize(result);
                        }),
                        OverPairs([peer](Samples& s, std::size_t i, std::size_t j) {
                            peer(Temporaries().numbers.data(), s.peer[i], s.peer[j], s.peer[j], s.peer[i]);
                        }),
                        goal);
}

}  // namespace

void RegisterFunctions() {
    AddUnary("sqrt", qsqrt, mpfr_sqrt, 3.5);
    AddUnary("exp", qexp, mpfr_exp, 1.4);
    AddUnary("log", qlog, mpfr_log, 0.75);
    AddUnary("sin", qsin, mpfr_sin, 0.7);
    AddUnary("cos", qcos, mpfr_cos, 0.7);
    AddUnary("atan", qatn, mpfr_atan, 0.7);
    AddUnary("tanh", qtanh, mpfr_tanh, 0);
    bench::RegisterPair("pow", OverPairs([](Samples& s, std::size_t i, std::size_t j) {
                            QReal result;
                            qpow(Positive().own[i], s.own[j], result);
                            benchmark::DoNotOptimize(result);
                        }),
                        OverPairs([](Samples& s, std::size_t i, std::size_t j) {
                            mpfr_pow(s.result, Positive().peer[i], s.peer[j], MPFR_RNDN);
                        }),
                        1.0);
}

void RegisterComplex() {
    AddComplex("complex multiply", qcmul, PeerMultiply, 0.7);
    AddComplex("complex divide", qcdiv, PeerDivide, 0.7);
    AddComplex(
        "complex exp", [](const QComplex& a, const QComplex&, QComplex& c) { qcexp(a, c); }, PeerExp, 1.4);
    AddComplex(
        "complex log", [](const QComplex& a, const QComplex&, QComplex& c) { qclog(a, c); }, PeerLog, 0.8);
}

}  // namespace quorix

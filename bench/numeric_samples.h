#pragma once

// Sample numbers in the core's format and in MPFR's, for the benchmarks of the number core and its functions.

#include <mpfr.h>

#include <array>
#include <random>
#include <string>

#include "numerics/constants.h"
#include "numerics/qcore.h"
#include "ratio_report.h"

namespace quorix::bench {

inline constexpr int kBits = 336;
inline constexpr std::size_t kSamples = 512;

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

inline Samples& All() {
    static Samples samples;
    return samples;
}

// Runs `operation(i, j)` over pairs of sample numbers.
template <class Operation>
Body OverPairs(Operation operation) {
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

}  // namespace quorix::bench

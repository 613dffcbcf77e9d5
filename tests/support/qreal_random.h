#pragma once

// Random numbers of the core with the patterns that arithmetic finds hard.

#include <algorithm>
#include <random>

#include "numerics/qreal.h"

namespace quorix {

class QRealRandom {
  public:
    explicit QRealRandom(unsigned seed) : engine_(seed) {}

    int Integer(int low, int high) { return std::uniform_int_distribution<int>(low, high)(engine_); }

    /// Any sign, an exponent word in the range given, a mantissa of one of the kinds below.
    QReal Number(int lowExponent, int highExponent) {
        QReal a;
        a.words[0] = Integer(0, 1) == 0 ? 0 : QReal::kNegative;
        a.words[1] = static_cast<std::uint16_t>(Integer(lowExponent, highExponent));
        switch (Integer(0, 7)) {
            case 0:  // a single word
                a.words[3] = Word();
                break;
            case 1:  // few words
                std::generate_n(a.words.begin() + 3, Integer(1, 20), [this] { return Word(); });
                break;
            case 2:  // long runs of ones and zeros
                for (int i = 3, w = 0; i < 24; ++i) {
                    if (Integer(0, 4) == 0) w = Integer(0, 1) * 0xFFFF;
                    a.words[static_cast<std::size_t>(i)] = static_cast<std::uint16_t>(w);
                }
                break;
            case 3:  // just above a power of two
                a.words[23] = static_cast<std::uint16_t>(Integer(0, 3));
                break;
            case 4:  // just below one
                std::fill(a.words.begin() + 3, a.words.end(), std::uint16_t{0xFFFF});
                a.words[23] = static_cast<std::uint16_t>(Integer(0xFFFC, 0xFFFF));
                break;
            default: std::generate(a.words.begin() + 3, a.words.end(), [this] { return Word(); });
        }
        a.words[3] |= 0x8000;
        return a;
    }

    /// A full random mantissa.
    QReal Dense(int lowExponent, int highExponent) {
        QReal a = Number(lowExponent, highExponent);
        std::generate(a.words.begin() + 3, a.words.end(), [this] { return Word(); });
        a.words[3] |= 0x8000;
        return a;
    }

    /// A number a few units of some word away from `a`.
    QReal Near(const QReal& a) {
        QReal b = a;
        auto& word = b.words[static_cast<std::size_t>(Integer(4, 23))];
        word = static_cast<std::uint16_t>(word + Integer(-2, 2));
        if (Integer(0, 1) == 0) b.words[0] = static_cast<std::uint16_t>(~b.words[0]);
        return b;
    }

  private:
    std::uint16_t Word() { return static_cast<std::uint16_t>(Integer(0, 0xFFFF)); }

    std::mt19937 engine_;
};

}  // namespace quorix

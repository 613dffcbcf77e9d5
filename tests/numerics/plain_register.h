#pragma once

// The words in which the plain core calculates.

#include <algorithm>
#include <array>
#include <cstdint>

#include "numerics/qreal.h"

namespace quorix::plain {

inline constexpr int kLargest = QReal::kLargestExponent;
inline constexpr int kBias = QReal::kExponentOfOne - 1;
inline constexpr int kBits = 336;

// A number of 24 words and the guard word.
using Register = std::array<std::uint16_t, 25>;

inline Register Load(const QReal& a) {
    Register r{};
    std::copy(a.words.begin(), a.words.end(), r.begin());
    return r;
}

inline void Store(const Register& r, QReal& a) {
    std::copy_n(r.begin(), QReal::kWords, a.words.begin());
}

inline void ShiftDownOne(Register& r) {
    for (std::size_t i = 24; i > 2; --i) r[i] = static_cast<std::uint16_t>(r[i] >> 1 | r[i - 1] << 15);
    r[2] >>= 1;
}

inline void ShiftUpOne(Register& r) {
    for (std::size_t i = 2; i < 24; ++i) r[i] = static_cast<std::uint16_t>(r[i] << 1 | r[i + 1] >> 15);
    r[24] = static_cast<std::uint16_t>(r[24] << 1);
}

inline void ShiftDown(Register& r, int count) {
    for (; count >= 16; count -= 16) {
        std::copy_backward(r.begin() + 2, r.end() - 1, r.end());
        r[2] = 0;
    }
    while (count-- > 0) ShiftDownOne(r);
}

// What normlz gives for a zero; otherwise it gives the left shift.
inline constexpr int kNothingLeft = 1000;

inline int Normalise(Register& r) {
    int count = 0;
    for (; r[2] != 0; --count) ShiftDownOne(r);
    if (count < 0) return count;
    if (std::all_of(r.begin() + 3, r.end(), [](int w) { return w == 0; })) return kNothingLeft;
    for (; (r[3] & 0x8000) == 0; ++count) ShiftUpOne(r);
    return count;
}

}  // namespace quorix::plain

#pragma once

// Small integers by which interface and engine name their settings. They are stored in files and are key
// codes too.

#include <cstdint>

namespace quorix {

enum FormatId : std::int32_t { FORMAT_FIX = 134, FORMAT_NORM = 135, FORMAT_SCI = 136, FORMAT_FRAC = 159 };
enum WordId : std::int32_t { WORD_8 = 138, WORD_16 = 139, WORD_32 = 140, WORD_64 = 141 };
enum AngleId : std::int32_t { ANGLE_DEG = 142, ANGLE_RAD = 143, ANGLE_GRAD = 144 };
enum RadixId : std::int32_t { RADIX_BIN = 145, RADIX_OCT = 146, RADIX_DEC = 147, RADIX_HEX = 148 };

/// 2, 8, 10 or 16; an unknown identifier counts as decimal.
constexpr int RadixOf(std::int32_t radixId) {
    switch (radixId) {
        case RADIX_BIN: return 2;
        case RADIX_OCT: return 8;
        case RADIX_HEX: return 16;
        default: return 10;
    }
}

/// Word size in bits; WORD_64 is accepted in mappings.
constexpr int BitsOf(std::int32_t wordId) {
    return wordId == WORD_16 ? 16 : wordId == WORD_32 ? 32 : wordId == WORD_64 ? 64 : 8;
}

}  // namespace quorix

#pragma once

#include <cstdint>
#include <span>
#include <vector>

namespace quorix::art {

inline constexpr int kSampleRate = 44100;

/// One key sound; `file` is its name in the folder "Sounds".
struct KeySound {
    const char* file;
    std::vector<std::int16_t> (*compose)();  ///< Mono, at kSampleRate; the same on every run.
};

/// Every key sound, by name. The first is the program's own choice.
std::span<const KeySound> KeySounds();

/// Samples as a whole WAV file: one channel of 16 bits.
std::vector<std::uint8_t> WavFile(std::span<const std::int16_t> samples);

}  // namespace quorix::art

#pragma once

#include <cstdint>
#include <filesystem>
#include <span>

namespace quorix {

/// Plays short sounds. Owned by the composition root; whoever plays keeps a reference.
class SoundPlayer {
  public:
    virtual ~SoundPlayer() = default;
    /// Starts a WAV file and returns at once, within a millisecond or so, whatever the sound system does;
    /// handles no messages. A sound that is still playing starts anew. An absent or damaged file and a
    /// machine without sound mean silence; while the sound system keeps the player waiting, further sounds
    /// are dropped.
    virtual void Play(const std::filesystem::path& wav) = 0;
};

/// Whether bytes are a whole WAV file of plain samples: 8, 16 or 32 bits, one or two channels, data not cut
/// short.
bool IsPlainWave(std::span<const std::uint8_t> file);

}  // namespace quorix

#pragma once

#include <filesystem>

namespace quorix {

/// Plays short sounds.
class SoundPlayer {
  public:
    virtual ~SoundPlayer() = default;
    /// Starts playing a WAV file and returns at once; a sound that still plays goes on or ends, never waits.
    /// No device, no file or a damaged one means silence. Handles no messages.
    virtual void Play(const std::filesystem::path& wav) = 0;
};

}  // namespace quorix

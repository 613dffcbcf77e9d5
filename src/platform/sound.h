#pragma once

#include <string_view>

namespace quorix {

/// Plays key sounds. Returns at once; a missing file or device means silence.
class SoundPlayer {
  public:
    virtual ~SoundPlayer() = default;
    /// fileName: a file of the folder "Sounds".
    virtual void Play(std::u16string_view fileName) = 0;
};

}  // namespace quorix

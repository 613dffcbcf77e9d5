#pragma once

#include <memory>

#include "platform/sound.h"

namespace quorix {

/// Name of the function in the module "quorix-sound" that makes the player: SoundPlayer* (), owned by the
/// caller.
inline constexpr const char* kNewSoundPlayer = "NewSoundPlayer";

/// Sounds by the module "quorix-sound" beside the program, which is loaded at the first Play: the sound
/// system's libraries would make every start longer. Without the module there is silence.
class LazySound : public SoundPlayer {
  public:
    void Play(const std::filesystem::path& wav) override;

  private:
    bool tried_ = false;
    std::unique_ptr<SoundPlayer> player_;
};

}  // namespace quorix

#pragma once

#include <memory>

#include "platform/sound.h"

namespace quorix {

/// Sounds by Qt Multimedia, on a thread of its own: looking for a sound server may take long where none
/// answers. Nothing is started before the first Play.
class QtSoundPlayer : public SoundPlayer {
  public:
    QtSoundPlayer();
    /// At the program's end. Waits for the sound system, but not for long: where it hangs, the process will
    /// end without running static destructors.
    ~QtSoundPlayer() override;
    QtSoundPlayer(const QtSoundPlayer&) = delete;
    QtSoundPlayer& operator=(const QtSoundPlayer&) = delete;

    void Play(const std::filesystem::path& wav) override;

  private:
    struct Worker;
    std::unique_ptr<Worker> worker_;
};

}  // namespace quorix

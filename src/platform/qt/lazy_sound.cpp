#include "platform/qt/lazy_sound.h"

#include <QCoreApplication>
#include <QLibrary>

namespace quorix {

void LazySound::Play(const std::filesystem::path& wav) {
    if (!tried_) {
        tried_ = true;
        // It stays loaded: its thread may outlive the player.
        QLibrary module(QCoreApplication::applicationDirPath() + QStringLiteral("/quorix-sound"));
        using Factory = SoundPlayer* (*)();
        if (const auto make = reinterpret_cast<Factory>(module.resolve(kNewSoundPlayer))) {
            player_.reset(make());
        }
    }
    if (player_) {
        player_->Play(wav);
    }
}

}  // namespace quorix

#include "platform/qt/qt_sound.h"

#include <stdlib.h>
#include <unistd.h>

#include <QAudioDevice>
#include <QMediaDevices>
#include <QSoundEffect>
#include <QThread>
#include <QUrl>
#include <atomic>
#include <cstdio>
#include <map>

#include "platform/files.h"

namespace quorix {

namespace {

constexpr unsigned long kLongestEndMs = 300;

thread_local bool isSoundThread = false;
QtMessageHandler nextHandler = nullptr;

/// Qt Multimedia tells the console of every missing server and device, mostly without a category that a rule
/// could name. To us that is silence, so what its thread says is dropped.
void DropSoundMessages(QtMsgType type, const QMessageLogContext& context, const QString& message) {
    const bool ofSound =
        isSoundThread || QLatin1String(context.category).startsWith(QLatin1String("qt.multimedia"));
    if ((!ofSound || type == QtFatalMsg) && nextHandler != nullptr) {
        nextHandler(type, context, message);
    }
}

void InstallMessageFilterOnce() {
    static const bool installed = [] {
        nextHandler = qInstallMessageHandler(DropSoundMessages);
        return true;
    }();
    static_cast<void>(installed);
}

/// Ends the process with `status` where its end would wait for the sound system.
void LeaveWithoutDestructors(int status, void* /*unused*/) {
    std::fflush(nullptr);
    ::_exit(status);
}

}  // namespace

/// Lives on the sound thread, save for what is atomic.
struct QtSoundPlayer::Worker : QObject {
    QThread thread;
    std::atomic<bool> busy = false;
    std::map<std::filesystem::path, std::unique_ptr<QSoundEffect>> effects;

    void Play(const std::filesystem::path& wav) {
        isSoundThread = true;
        busy = false;
        if (QMediaDevices::defaultAudioOutput().isNull()) {
            return;
        }
        const auto [it, isNew] = effects.try_emplace(wav);
        if (isNew) {
            // A file that Qt would complain of, or wait for, stays without an effect.
            const auto file = ReadWholeFile(wav);
            if (file && IsPlainWave(*file)) {
                it->second = std::make_unique<QSoundEffect>();
                it->second->setSource(QUrl::fromLocalFile(QString::fromStdString(wav.string())));
            }
        }
        if (it->second) {
            it->second->play();
        }
    }
};

QtSoundPlayer::QtSoundPlayer() = default;

QtSoundPlayer::~QtSoundPlayer() {
    if (!worker_) {
        return;
    }
    QThread& thread = worker_->thread;
    // The effects end on their own thread.
    QMetaObject::invokeMethod(worker_.get(), [worker = worker_.get()] {
        worker->effects.clear();
        worker->thread.quit();
    });
    if (!thread.wait(kLongestEndMs)) {
        // It hangs in the sound system, with a lock that the library's own destructors want.
        static_cast<void>(worker_.release());
        ::on_exit(LeaveWithoutDestructors, nullptr);
    }
}

void QtSoundPlayer::Play(const std::filesystem::path& wav) {
    if (!worker_) {
        InstallMessageFilterOnce();
        worker_ = std::make_unique<Worker>();
        worker_->moveToThread(&worker_->thread);
        worker_->thread.start();
    }
    if (!worker_->busy.exchange(true)) {
        QMetaObject::invokeMethod(worker_.get(), [worker = worker_.get(), wav] { worker->Play(wav); });
    }
}

}  // namespace quorix

/// The door of the module; see lazy_sound.h.
extern "C" __attribute__((visibility("default"))) quorix::SoundPlayer* NewSoundPlayer() {
    return new quorix::QtSoundPlayer;
}

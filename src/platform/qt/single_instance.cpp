#include "platform/qt/single_instance.h"

#include <unistd.h>

#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>
#include <QLocalSocket>
#include <QLockFile>
#include <system_error>

namespace quorix {

namespace {

constexpr int kConnectMs = 500;
constexpr int kLockMs = 1000;
constexpr char kRaise[] = "raise";
constexpr int kNameDigits = 16;  // Of the hash; a socket's path has room for 107 bytes in all.

/// The folder of the user's own sockets where the session has one, else the common temporary folder.
QString SocketFolder() {
    const QString runtime = qEnvironmentVariable("XDG_RUNTIME_DIR");
    const QFileInfo folder(runtime);
    return folder.isAbsolute() && folder.isDir() && folder.isWritable() ? runtime : QDir::tempPath();
}

QString SocketName(const std::filesystem::path& programFolder) {
    std::error_code error;
    const std::filesystem::path folder = std::filesystem::weakly_canonical(programFolder, error);
    const std::string identity =
        (error ? programFolder : folder).string() + '\n' + std::to_string(::getuid());
    const QByteArray hash =
        QCryptographicHash::hash(QByteArray::fromStdString(identity), QCryptographicHash::Sha256);
    return SocketFolder() + "/quorix-" + QString::fromLatin1(hash.toHex().left(kNameDigits));
}

}  // namespace

SingleInstance::SingleInstance(const std::filesystem::path& programFolder, std::function<void()> raise)
    : name_(SocketName(programFolder)), raise_(std::move(raise)) {
    server_.setSocketOptions(QLocalServer::UserAccessOption);
    QObject::connect(&server_, &QLocalServer::newConnection, &server_, [this] {
        while (QLocalSocket* peer = server_.nextPendingConnection()) {
            const auto read = [this, peer] {
                if (peer->readAll() == kRaise) {
                    raise_();
                }
            };
            QObject::connect(peer, &QLocalSocket::readyRead, &server_, read);
            QObject::connect(peer, &QLocalSocket::disconnected, peer, &QObject::deleteLater);
            // The text may have come with the connection, and the peer may be gone already.
            if (peer->bytesAvailable() > 0) {
                read();
            }
        }
    });
}

SingleInstance::~SingleInstance() = default;

bool SingleInstance::TryBecomeFirst() {
    // Two starts at once must not both find the socket stale and each remove that of the other.
    QLockFile lock(name_ + ".lock");
    lock.tryLock(kLockMs);
    if (AskOtherToRaise()) {
        return false;
    }
    QLocalServer::removeServer(name_);
    server_.listen(name_);
    return true;
}

bool SingleInstance::AskOtherToRaise() const {
    QLocalSocket socket;
    socket.connectToServer(name_);
    if (!socket.waitForConnected(kConnectMs)) {
        return false;
    }
    // A first instance that calculates reads it later; that it runs is enough.
    socket.write(kRaise);
    socket.waitForBytesWritten(kConnectMs);
    socket.disconnectFromServer();
    return true;
}

}  // namespace quorix

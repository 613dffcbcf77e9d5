#include "platform/qt/qt_http.h"

#include <QEventLoop>
#include <QTcpSocket>
#include <QTimer>

#include "platform/http_exchange.h"

namespace quorix {

namespace {

/// The socket keeps no more than this unread, however fast the server sends.
constexpr qint64 kReadBufferBytes = 64 * 1024;

/// Runs until the answer is whole, has failed, or the time is over.
HttpAnswer Exchange(const HttpRequest& request, int timeLimitMs) {
    HttpAnswer answer(request.wantedBytes, kMostHttpBytes);
    QTcpSocket socket;
    socket.setReadBufferSize(kReadBufferBytes);
    QEventLoop loop;
    bool over = false;  // A connection may be refused before the loop runs.
    const auto finish = [&] {
        over = true;
        loop.quit();
    };
    const auto take = [&] {
        const QByteArray bytes = socket.readAll();
        const auto* data = reinterpret_cast<const std::uint8_t*>(bytes.constData());
        const HttpAnswer::State state = answer.Take({data, static_cast<std::size_t>(bytes.size())});
        if (state == HttpAnswer::State::done || state == HttpAnswer::State::failed) {
            finish();
        }
    };
    QObject::connect(&socket, &QTcpSocket::connected, &socket, [&] {
        const std::string text = FormatHttpGet(request);
        socket.write(text.data(), static_cast<qint64>(text.size()));
    });
    QObject::connect(&socket, &QTcpSocket::readyRead, &socket, take);
    // A server that closes and a connection that breaks look the same here; the answer knows whether it is
    // whole.
    QObject::connect(&socket, &QTcpSocket::errorOccurred, &loop, [&](QAbstractSocket::SocketError error) {
        take();
        if (error == QAbstractSocket::RemoteHostClosedError) {
            answer.Close();
        }
        finish();
    });
    QTimer::singleShot(timeLimitMs, &loop, &QEventLoop::quit);
    socket.connectToHost(QString::fromStdString(request.server), request.port);
    if (!over) {
        loop.exec(QEventLoop::ExcludeUserInputEvents);
    }
    socket.disconnect();
    socket.abort();
    return answer;
}

}  // namespace

std::optional<std::vector<std::uint8_t>> QtHttpClient::Get(const HttpRequest& request) {
    if (busy_ || request.server.empty()) {
        return std::nullopt;
    }
    busy_ = true;
    HttpAnswer answer = Exchange(request, timeLimitMs_);
    busy_ = false;
    if (answer.Current() != HttpAnswer::State::done) {
        return std::nullopt;
    }
    return answer.Body();
}

}  // namespace quorix

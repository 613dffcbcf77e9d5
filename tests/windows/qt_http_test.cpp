// HTTP over real sockets: a small server on loopback, and hostile ones.
#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTest>
#include <QTimer>

#include "platform/qt/qt_http.h"
#include "reference/rate_update.h"
#include "support/reference_rig.h"

namespace quorix {
namespace {

constexpr const char* kRates =
    "#Date: 01 Jul 2025\n\n#Begin:Currency:0\n\tUSD\tUSD\t!\n\tEuro\tEUR\t1.5\t0\tUSD\n#End";

/// Answers each request as `answer` says; it is called when the request's head is whole.
class LoopbackServer {
  public:
    explicit LoopbackServer(std::function<void(QTcpSocket&, const QByteArray&)> answer) {
        server_.listen(QHostAddress::LocalHost);
        QObject::connect(&server_, &QTcpServer::newConnection, &server_, [this, answer] {
            QTcpSocket* socket = server_.nextPendingConnection();
            QObject::connect(socket, &QTcpSocket::readyRead, socket,
                             [socket, answer, head = QByteArray()]() mutable {
                                 head += socket->readAll();
                                 if (head.endsWith("\r\n\r\n")) {
                                     answer(*socket, head);
                                 }
                             });
        });
    }
    [[nodiscard]] HttpRequest Request() const {
        return {.server = "127.0.0.1",
                .port = server_.serverPort(),
                .objectPath = "currency\\save.txt",
                .userName = "abc",
                .password = "abc"};
    }
    [[nodiscard]] std::uint16_t Port() const { return server_.serverPort(); }

  private:
    QTcpServer server_;
};

void SendAndClose(QTcpSocket& socket, const QByteArray& bytes) {
    socket.write(bytes);
    socket.disconnectFromHost();
}

TEST(QtHttp, AnUpdateFetchesDateAndFileFromAServer) {
    QByteArray seen;
    const LoopbackServer server([&](QTcpSocket& socket, const QByteArray& head) {
        seen = head;
        SendAndClose(socket, QByteArray("HTTP/1.0 200 OK\r\nContent-Type: text/plain\r\n\r\n") + kRates);
    });
    testing::ConverterRig rig;
    rig.folder.Write("currency.dat", "#Date: 30 Jun 2025\n");
    rig.folder.Write("update.dat", "server=localhost\nport=" + std::to_string(server.Port()) + "\n");
    QtHttpClient http(5000);
    UnitTable table;
    EXPECT_EQ(UpdateRates(rig.folder / "currency.dat", http, rig.notices, table), u"01 Jul 2025");
    EXPECT_EQ(table.Records().size(), 2U);
    EXPECT_TRUE(rig.notices.shown.empty());
    EXPECT_TRUE(seen.startsWith("GET /currency/save.txt HTTP/1.0\r\n")) << seen.constData();
    EXPECT_TRUE(seen.contains("\r\nAuthorization: Basic cXJ4OnFyeA==\r\n"));
}

TEST(QtHttp, AWholeMegabyteComesThrough) {
    const QByteArray body(static_cast<qsizetype>(kMostHttpBytes), 'x');
    const LoopbackServer server([&](QTcpSocket& socket, const QByteArray&) {
        SendAndClose(socket, "HTTP/1.0 200 OK\r\n\r\n" + body);
    });
    QtHttpClient http(10'000);
    const auto answer = http.Get(server.Request());
    ASSERT_TRUE(answer);
    EXPECT_EQ(answer->size(), kMostHttpBytes);
}

TEST(QtHttp, HostileServersEndInTimeAndWithNothing) {
    const auto drip = [](QTcpSocket& socket, const QByteArray&) {
        socket.write("HTTP/1.0 200 OK\r\n\r\n");
        auto* timer = new QTimer(&socket);
        QObject::connect(timer, &QTimer::timeout, &socket, [&socket] { socket.write("H"); });
        timer->start(10);
    };
    const auto flood = [](const char* start) {
        return [start](QTcpSocket& socket, const QByteArray&) {
            socket.write(start);
            const QByteArray block(256 * 1024, 'x');
            socket.write(block);
            QObject::connect(&socket, &QTcpSocket::bytesWritten, &socket, [&socket, block] {
                if (socket.bytesToWrite() == 0) {
                    socket.write(block);
                }
            });
        };
    };
    const std::function<void(QTcpSocket&, const QByteArray&)> answers[] = {
        [](QTcpSocket&, const QByteArray&) {},
        drip,
        flood("HTTP/1.0 200 OK\r\n\r\n"),
        flood("HTTP/1.0 200 OK\r\nX: "),
        [](QTcpSocket& socket, const QByteArray&) { SendAndClose(socket, "220 mail ready\r\n"); },
        [](QTcpSocket& socket, const QByteArray&) {
            SendAndClose(socket, "HTTP/1.0 200 OK\r\nContent-Length: 100\r\n\r\nshort");
        },
        [](QTcpSocket& socket, const QByteArray&) { socket.abort(); },
    };
    for (const auto& answer : answers) {
        const LoopbackServer server(answer);
        QtHttpClient http(300);
        QElapsedTimer timer;
        timer.start();
        EXPECT_FALSE(http.Get(server.Request()));
        EXPECT_LT(timer.elapsed(), 2000);
    }
    QtHttpClient http(2000);
    QElapsedTimer timer;
    timer.start();
    EXPECT_FALSE(
        http.Get({.server = "127.0.0.1", .port = 1, .objectPath = "x", .userName = {}, .password = {}}));
    EXPECT_FALSE(http.Get({.server = "", .objectPath = "x", .userName = {}, .password = {}}));
    EXPECT_LT(timer.elapsed(), 1000);
}

TEST(QtHttp, ASecondGetWhileOneIsUnderWayFailsAtOnce) {
    const LoopbackServer server([](QTcpSocket& socket, const QByteArray&) {
        QTimer::singleShot(100, &socket, [&socket] { SendAndClose(socket, "HTTP/1.0 200 OK\r\n\r\nok"); });
    });
    QtHttpClient http(5000);
    bool second = true;
    QTimer::singleShot(20, [&] { second = http.Get(server.Request()).has_value(); });
    EXPECT_TRUE(http.Get(server.Request()));
    EXPECT_FALSE(second);
}

}  // namespace
}  // namespace quorix

#include "platform/qt/qt_streams.h"

#include <QHostAddress>
#include <QLocalServer>
#include <QLocalSocket>
#include <QTcpServer>
#include <QTcpSocket>
#include <type_traits>
#include <utility>

#include "platform/host/socket_folder.h"
#include "platform/qt/qt_stream.h"

namespace quorrin {

namespace {

// Hands a connected socket to its new owner through the clock's queue. `alive` is whose handler it is.
template <typename Handler>
void offer(Clock& clock, EventSource* source, std::unique_ptr<QIODevice> socket, std::shared_ptr<bool> alive,
           Handler handler) {
    const auto box = std::make_shared<std::unique_ptr<QIODevice>>(std::move(socket));
    clock.arrive(
        [&clock, box, alive = std::move(alive), handler = std::move(handler)] {
            if (!*alive) return;
            auto stream = std::make_unique<QtStream>(clock, std::move(*box));
            QtStream* const made = stream.get();
            // The owner may let go of the stream inside its handler.
            const std::weak_ptr<bool> life = made->life();
            handler(std::move(stream));
            if (const auto lives = life.lock(); lives && *lives) made->start();
        },
        source);
}

template <typename Server>
class QtListener : public Listener {
  public:
    explicit QtListener(Clock& clock) : alive_(std::make_shared<bool>(true)) {
        QObject::connect(&server, &Server::newConnection, &server, [this, &clock] {
            while (auto* socket = server.nextPendingConnection()) {
                socket->setParent(nullptr);
                offer(clock, source, std::unique_ptr<QIODevice>(socket), alive_,
                      [this](std::unique_ptr<ByteStream> stream) {
                          if (const auto handler = onConnection) handler(std::move(stream));
                      });
            }
        });
    }
    ~QtListener() override { *alive_ = false; }

    int port() const override {
        if constexpr (std::is_same_v<Server, QTcpServer>) return server.serverPort();
        return 0;
    }

    Server server;

  private:
    std::shared_ptr<bool> alive_;
};

template <typename Socket>
class QtConnecting : public Connecting {
  public:
    QtConnecting(Clock& clock, ConnectHandler handler)
        : socket(std::make_unique<Socket>()), alive_(std::make_shared<bool>(true)) {
        QObject::connect(socket.get(), &Socket::connected, socket.get(), [this, &clock, handler] {
            socket->disconnect();
            offer(clock, nullptr, std::move(socket), alive_,
                  [handler](std::unique_ptr<ByteStream> stream) { handler(std::move(stream), ""); });
        });
        QObject::connect(socket.get(), &Socket::errorOccurred, socket.get(), [this, &clock, handler] {
            const std::string why = socket->errorString().toStdString();
            socket->disconnect();
            fail(clock, handler, why);
        });
    }
    ~QtConnecting() override { *alive_ = false; }

    void fail(Clock& clock, const ConnectHandler& handler, const std::string& why) {
        clock.arrive([alive = alive_, handler, why] {
            const ConnectHandler keep = handler;
            if (*alive) keep(nullptr, why);
        });
    }

    std::unique_ptr<Socket> socket;

  private:
    std::shared_ptr<bool> alive_;
};

void tell(std::string* error, const QString& why) {
    if (error != nullptr) *error = why.toStdString();
}

}  // namespace

QtStreams::QtStreams(Clock& clock, const std::string& runFolder)
    : clock_(clock), folder_(socketFolder(runFolder)) {}

std::unique_ptr<Listener> QtStreams::listenTcp(const std::string& address, int port, std::string* error) {
    auto listener = std::make_unique<QtListener<QTcpServer>>(clock_);
    const QHostAddress host(QString::fromStdString(address));
    if (host.isNull() || port < 0 || port > 65535) {
        tell(error, "no such address or port");
        return nullptr;
    }
    if (!listener->server.listen(host, static_cast<quint16>(port))) {
        tell(error, listener->server.errorString());
        return nullptr;
    }
    return listener;
}

std::unique_ptr<Connecting> QtStreams::connectTcp(const std::string& address, int port,
                                                  ConnectHandler handler) {
    auto connecting = std::make_unique<QtConnecting<QTcpSocket>>(clock_, handler);
    if (port < 1 || port > 65535) {
        connecting->fail(clock_, handler, "no such port");
        return connecting;
    }
    connecting->socket->connectToHost(QString::fromStdString(address), static_cast<quint16>(port));
    return connecting;
}

std::unique_ptr<Listener> QtStreams::listenLocal(const std::string& name, std::string* error) {
    auto listener = std::make_unique<QtListener<QLocalServer>>(clock_);
    const std::string path = folder_ + "/" + name;
    removeDeadSocket(path);
    if (!listener->server.listen(QString::fromStdString(path))) {
        tell(error, listener->server.errorString());
        return nullptr;
    }
    return listener;
}

std::unique_ptr<Connecting> QtStreams::connectLocal(const std::string& name, ConnectHandler handler) {
    auto connecting = std::make_unique<QtConnecting<QLocalSocket>>(clock_, std::move(handler));
    connecting->socket->connectToServer(QString::fromStdString(folder_ + "/" + name));
    return connecting;
}

}  // namespace quorrin

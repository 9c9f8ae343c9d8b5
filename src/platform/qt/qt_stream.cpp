#include "platform/qt/qt_stream.h"

#include <QLocalSocket>
#include <QTcpSocket>
#include <QTimer>
#include <string>
#include <utility>

namespace quorrin {

namespace {

// How long a closed socket may go on sending what was taken before.
constexpr int kLingerMs = 2000;

bool connected(const QIODevice& socket) {
    if (const auto* tcp = qobject_cast<const QTcpSocket*>(&socket))
        return tcp->state() == QAbstractSocket::ConnectedState;
    const auto* local = qobject_cast<const QLocalSocket*>(&socket);
    return local != nullptr && local->state() == QLocalSocket::ConnectedState;
}

void flush(QIODevice& socket) {
    if (auto* tcp = qobject_cast<QTcpSocket*>(&socket)) tcp->flush();
    if (auto* local = qobject_cast<QLocalSocket*>(&socket)) local->flush();
}

void disconnectInOrder(QIODevice& socket) {
    if (auto* tcp = qobject_cast<QTcpSocket*>(&socket)) tcp->disconnectFromHost();
    if (auto* local = qobject_cast<QLocalSocket*>(&socket)) local->disconnectFromServer();
}

template <typename Receiver, typename Function>
void onDisconnected(QIODevice& socket, Receiver* receiver, Function function) {
    if (auto* tcp = qobject_cast<QTcpSocket*>(&socket))
        QObject::connect(tcp, &QTcpSocket::disconnected, receiver, function);
    if (auto* local = qobject_cast<QLocalSocket*>(&socket))
        QObject::connect(local, &QLocalSocket::disconnected, receiver, function);
}

// The owner has let go: what was taken before still goes out, then the socket deletes itself.
void linger(std::unique_ptr<QIODevice> socket) {
    QIODevice* left = socket.release();
    onDisconnected(*left, left, [left] { left->deleteLater(); });
    QTimer::singleShot(kLingerMs, left, [left] { left->deleteLater(); });
    disconnectInOrder(*left);
}

}  // namespace

QtStream::QtStream(Clock& clock, std::unique_ptr<QIODevice> connectedSocket)
    : clock_(clock), socket_(std::move(connectedSocket)), alive_(std::make_shared<bool>(true)) {
    if (auto* tcp = qobject_cast<QTcpSocket*>(socket_.get()))
        tcp->setSocketOption(QAbstractSocket::LowDelayOption, 1);
    QObject::connect(socket_.get(), &QIODevice::readyRead, socket_.get(), [this] { pull(); });
    onDisconnected(*socket_, socket_.get(), [this] {
        pull();
        ended();
    });
}

QtStream::~QtStream() {
    *alive_ = false;
    socket_->disconnect();
    flush(*socket_);
    if (connected(*socket_) && socket_->bytesToWrite() > 0) linger(std::move(socket_));
}

void QtStream::start() {
    started_ = true;
    pull();
    if (!connected(*socket_)) ended();
}

void QtStream::pull() {
    if (!started_ || !open_) return;
    const QByteArray bytes = socket_->readAll();
    if (bytes.isEmpty()) return;
    clock_.arrive(
        [this, alive = alive_, bytes] {
            if (!*alive || !open_) return;
            if (const auto handler = onBytes)
                handler(std::string_view(bytes.constData(), static_cast<std::size_t>(bytes.size())));
        },
        source);
}

void QtStream::ended() {
    if (!started_ || !open_ || endQueued_) return;
    endQueued_ = true;
    clock_.arrive(
        [this, alive = alive_] {
            if (!*alive || !open_) return;
            open_ = false;
            if (const auto handler = onClosed) handler();
        },
        source);
}

bool QtStream::send(std::string_view bytes) {
    if (!open_ || !connected(*socket_) || pendingBytes() + bytes.size() > kSendBound) return false;
    if (socket_->write(bytes.data(), static_cast<qint64>(bytes.size())) < 0) return false;
    // At once, since the program may block next.
    flush(*socket_);
    return true;
}

std::size_t QtStream::pendingBytes() const {
    return static_cast<std::size_t>(socket_->bytesToWrite());
}

void QtStream::close() {
    if (!open_) return;
    open_ = false;
    flush(*socket_);
    disconnectInOrder(*socket_);
}

}  // namespace quorrin

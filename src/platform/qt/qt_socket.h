// One element of a socket array on the machine's TCP. Internal to platform/qt: QtSockets makes them.
#pragma once

#include <QSocketNotifier>
#include <memory>
#include <string>

#include "platform/host/tcp_calls.h"
#include "platform/qt/qt_sockets.h"
#include "platform/timer_mm.h"

namespace quorrin {

class QtSocket : public Socket {
  public:
    QtSocket(QtSockets& owner, EventSource& source);
    ~QtSocket() override;

    SocketState state() const override { return state_; }
    std::string remoteHost() const override { return {}; }
    std::string remoteHostIP() const override { return peerIp_; }
    int remotePort() const override { return peerPort_; }
    int localPort() const override { return localPort_; }
    void setLocalPort(int port) override { localPort_ = port; }

    void listen() override;
    std::string listenError() const override { return listenError_; }
    void accept(std::int64_t request) override;
    void close() override;

    std::size_t bytesReceived() const override { return unread_.size(); }
    std::string read(std::size_t atMost) override;
    void send(std::string_view bytes) override;

  private:
    void watch();
    // Nothing more is announced.
    void hush();
    // Delivers the step under the array's source, unless this was closed or destroyed before.
    void announce(void (QtSocket::*step)());
    void takeCall();
    void shedCall();
    void takeBytes();
    void fail();
    void tellFailed();
    void push();

    QtSockets& owner_;
    EventSource& source_;
    SocketState state_ = SocketState::closed;
    FileHandle socket_;
    std::unique_ptr<QSocketNotifier> readable_;
    std::unique_ptr<QSocketNotifier> writable_;
    std::string peerIp_;
    int peerPort_ = 0;
    int localPort_ = 0;
    std::string listenError_;
    std::string unread_;
    std::string unsent_;
    TimerMM late_;                // the error of a listen that failed, or the next look after a shed call
    std::shared_ptr<bool> life_;  // replaced with each close: what was announced before is void
};

}  // namespace quorrin

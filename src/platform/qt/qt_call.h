// One outgoing call on the machine's TCP. Internal to platform/qt: QtCalls makes them.
#pragma once

#include <QHostInfo>
#include <QSocketNotifier>
#include <memory>
#include <string>

#include "platform/host/file_handle.h"
#include "platform/qt/qt_calls.h"

namespace quorrin {

class QtCall : public Call {
  public:
    QtCall(QtCalls& owner, const std::string& host, int port);
    ~QtCall() override;

    CallState state() const override { return state_; }
    std::string error() const override { return error_; }
    void send(std::string_view bytes) override;
    void close() override;
    std::optional<double> roundTripMs() const override;

  private:
    // Delivers the step under this call's source, unless it was closed or destroyed before.
    void announce(void (QtCall::*step)());
    void lookUp(const std::string& host);
    void found(const QHostInfo& answer);
    void dial(const std::string& address);
    void settled();
    void takeBytes();
    void push();
    // The end is told by an event of its own.
    void fail(const std::string& reason);
    void tellEnd();
    void hush();

    QtCalls& owner_;
    EventSource source_;
    int port_;
    CallState state_ = CallState::connecting;
    std::string error_;
    FileHandle socket_;
    std::unique_ptr<QSocketNotifier> readable_;
    std::unique_ptr<QSocketNotifier> writable_;
    std::string unsent_;
    std::shared_ptr<bool> life_;  // gone: what was announced before is void
};

}  // namespace quorrin

// A call that its owner has closed: sends the rest, then says that nothing more comes, and throws away what
// still arrives until the other side has closed, for at most kCallLingerMs. What has not arrived by then
// never does: a command of a connection that was given up must not come behind those of the next one.
// Internal to platform/qt.
#pragma once

#include <QSocketNotifier>
#include <QTimer>
#include <string>

#include "platform/host/file_handle.h"

namespace quorrin {

class LingeringCall {
  public:
    LingeringCall(FileHandle socket, std::string rest);
    ~LingeringCall();
    LingeringCall(const LingeringCall&) = delete;
    LingeringCall& operator=(const LingeringCall&) = delete;

    bool over() const { return over_; }

  private:
    void push();
    void drain();
    void end();

    FileHandle socket_;
    std::string rest_;
    bool over_ = false;
    QSocketNotifier readable_;
    QSocketNotifier writable_;
    QTimer deadline_;
};

}  // namespace quorrin

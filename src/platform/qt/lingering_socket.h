// What a closed element still had to send: goes out by itself, for at most two seconds. Internal to
// platform/qt.
#pragma once

#include <QSocketNotifier>
#include <QTimer>
#include <string>

#include "platform/host/tcp_calls.h"

namespace quorrin {

class LingeringSocket {
  public:
    LingeringSocket(FileHandle socket, std::string rest);
    LingeringSocket(const LingeringSocket&) = delete;
    LingeringSocket& operator=(const LingeringSocket&) = delete;

    bool over() const { return rest_.empty(); }

  private:
    void push();

    FileHandle socket_;
    std::string rest_;
    QSocketNotifier writable_;
    QTimer deadline_;
};

}  // namespace quorrin

// One Qt socket, TCP or local, as a byte stream. Internal to platform/qt: QtStreams makes them.
//
// Qt's signals only read what has come and put it into the clock's queue. Nothing is delivered before
// start(), so that bytes which come between the connection and its owner's handlers are kept.
#pragma once

#include <QIODevice>
#include <memory>

#include "platform/clock.h"
#include "platform/streams.h"

namespace quorrin {

class QtStream : public ByteStream {
  public:
    QtStream(Clock& clock, std::unique_ptr<QIODevice> connectedSocket);
    ~QtStream() override;

    // The owner has set its handlers.
    void start();
    // Expires, or turns false, when this is destroyed.
    std::weak_ptr<bool> life() const { return alive_; }

    bool send(std::string_view bytes) override;
    std::size_t pendingBytes() const override;
    void close() override;
    bool isOpen() const override { return open_; }

  private:
    void pull();
    void ended();

    Clock& clock_;
    std::unique_ptr<QIODevice> socket_;
    std::shared_ptr<bool> alive_;  // false once this is destroyed: queued deliveries look at it
    bool started_ = false;
    bool open_ = true;
    bool endQueued_ = false;
};

}  // namespace quorrin

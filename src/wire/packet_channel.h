// One conversation over a byte stream: says Hello, expects Hello, then packets either way until it ends.
//
// It says Hello when it is made and gives no packet before the other side's Hello was right. It ends, once,
// with a reason for the log: the peer closed (also in mid-packet), said Goodbye, or sent rubbish, another
// version, an oversized packet or an impossible value; then it closes the stream and gives nothing more.
// Neither reconnects nor times out: that is its owner's. Destroying it, also inside its own handlers, closes
// the stream silently.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "platform/streams.h"
#include "wire/framing.h"
#include "wire/packet_rules.h"

namespace quorrin {

class PacketChannel {
  public:
    PacketChannel(std::unique_ptr<ByteStream> stream, wire::Role role, const std::string& ownName);
    ~PacketChannel();
    PacketChannel(const PacketChannel&) = delete;
    PacketChannel& operator=(const PacketChannel&) = delete;

    // The other side's Hello was right; `peerName` is how it calls itself.
    std::function<void(const std::string& peerName)> onGreeted;
    // Operations, frames and heartbeats.
    std::function<void(const wire::Packet&)> onPacket;
    std::function<void(const std::string& why)> onEnded;

    bool greeted() const { return greeted_; }
    bool open() const { return open_; }
    // Bytes that came in so far; a watchdog sees by them that the peer lives.
    std::uint64_t bytesHeard() const { return bytesHeard_; }

    // Of what was sent, the bytes that the machine has not taken yet.
    std::size_t waitingBytes() const { return stream_->pendingBytes(); }

    // False when it is closed, the packet is above the limit, or the peer does not take what was sent before.
    bool send(const wire::Packet& packet);
    // Says Goodbye and closes in order; onEnded does not follow.
    void close(const std::string& reason);

  private:
    void receive(std::string_view bytes);
    void take(const wire::Packet& packet);
    void end(const std::string& why);

    std::unique_ptr<ByteStream> stream_;
    wire::Role role_;
    PacketDecoder decoder_;
    std::shared_ptr<bool> alive_;
    std::uint64_t bytesHeard_ = 0;
    bool greeted_ = false;
    bool open_ = true;
};

}  // namespace quorrin

// Packets to bytes and back: a length (4 bytes, most significant first), then that many bytes of one Packet.
//
// No socket here. The decoder takes bytes in whatever pieces they come and gives whole packets; its memory is
// bounded by the limit plus the piece that was last added. Anything that is no packet (a length of 0 or above
// the limit, bytes that do not parse, a packet without a known body) makes it fail for good: there is no way
// to find the next packet, so the owner drops the peer and tells error() to the log.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "robot.pb.h"

namespace quorrin {

constexpr std::size_t kMaxPacketBytes = 8 * 1024 * 1024;
constexpr std::size_t kLengthBytes = 4;

// The bytes of one packet, with its length in front. Empty when the packet is above the limit.
std::string encodePacket(const wire::Packet& packet, std::size_t limit = kMaxPacketBytes);

class PacketDecoder {
  public:
    explicit PacketDecoder(std::size_t limit = kMaxPacketBytes) : limit_(limit) {}

    // Ignored once the decoder has failed.
    void add(std::string_view bytes);
    // The next whole packet, or nothing: then more bytes are needed, or failed() tells why there will be
    // none.
    std::optional<wire::Packet> next();

    bool failed() const { return !error_.empty(); }
    const std::string& error() const { return error_; }
    // Bytes of an unfinished packet are waiting; at the end of a stream this means that it was cut off.
    bool midPacket() const { return !failed() && buffer_.size() > taken_; }

  private:
    std::optional<wire::Packet> fail(std::string why);

    std::size_t limit_;
    std::string buffer_;
    std::size_t taken_ = 0;  // bytes at the front of the buffer that are done with
    std::string error_;
};

}  // namespace quorrin

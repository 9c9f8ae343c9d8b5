// The other end of a wire connection in a test: says what it is told to and keeps what it hears. It knows no
// rules of its own, so it can be a robot, a station, or rubbish.
#pragma once

#include <algorithm>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "platform/streams.h"
#include "wire/framing.h"
#include "wire/packet_rules.h"

namespace quorrin {

class WirePeer {
  public:
    void take(std::unique_ptr<ByteStream> stream) {
        stream_ = std::move(stream);
        decoder_ = PacketDecoder();
        closed_ = false;
        if (!stream_) return;
        ++connections_;
        stream_->onBytes = [this](std::string_view bytes) {
            decoder_.add(bytes);
            while (auto packet = decoder_.next()) heard_.push_back(*packet);
        };
        stream_->onClosed = [this] { closed_ = true; };
    }
    void say(const wire::Packet& packet) { stream_->send(encodePacket(packet)); }
    void sayBytes(const std::string& bytes) { stream_->send(bytes); }
    void hangUp() { stream_.reset(); }

    bool connected() const { return stream_ && !closed_; }
    // How often somebody has connected so far.
    int connections() const { return connections_; }
    std::vector<wire::Packet> takeHeard() { return std::exchange(heard_, {}); }
    // How many packets of that kind were heard since the last take.
    std::size_t count(wire::Packet::BodyCase kind) const {
        return static_cast<std::size_t>(std::count_if(heard_.begin(), heard_.end(),
                                                      [&](const auto& p) { return p.body_case() == kind; }));
    }
    // The last packet of that kind.
    const wire::Packet* last(wire::Packet::BodyCase kind) const {
        const auto found = std::find_if(heard_.rbegin(), heard_.rend(),
                                        [&](const auto& p) { return p.body_case() == kind; });
        return found == heard_.rend() ? nullptr : &*found;
    }
    const std::vector<wire::Packet>& heard() const { return heard_; }

  private:
    std::unique_ptr<ByteStream> stream_;
    PacketDecoder decoder_;
    std::vector<wire::Packet> heard_;
    int connections_ = 0;
    bool closed_ = false;
};

}  // namespace quorrin

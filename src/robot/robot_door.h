// One of the robot's two ports: lets one gateway at a time in, and keeps strangers out.
//
// A connection that has not said a right Hello within 2 s, or says rubbish, is dropped and disturbs nobody.
// A gateway that comes while another is alive (heard within the last second) is told so and closed; a silent
// one is replaced. While it is inside, a heartbeat goes out every 100 ms, and so do packets. A gateway that
// sends what does not belong to this link is dropped. Each of these is a line on the log.
#pragma once

#include <cstdint>
#include <functional>
#include <list>
#include <memory>
#include <string>

#include "platform/streams.h"
#include "platform/timer_mm.h"
#include "wire/packet_channel.h"

namespace quorrin {

class RobotDoor {
  public:
    RobotDoor(Clock& clock, wire::Role role, std::function<void(const std::string&)> log);

    // Empty, or why it cannot listen.
    std::string open(Streams& streams, const std::string& address, int port);
    // No connection is taken while this says so.
    std::function<bool()> refuses;

    std::function<void()> onCame;
    std::function<void()> onGone;
    std::function<void(const wire::Packet&)> onOperation;

    bool inside() const { return inside_ != nullptr; }
    // Bytes have come since the last call.
    bool heardSomething();
    // False when nobody is inside or does not take it.
    bool send(const wire::Packet& packet);
    // Of what was sent, the bytes that have not left yet.
    std::size_t waitingBytes() const { return inside_ ? inside_->waitingBytes() : 0; }
    // Breaks the connection without a word.
    void drop(const std::string& why);
    // Says goodbye and listens no more.
    void close(const std::string& reason);

  private:
    struct Guest {
        std::unique_ptr<PacketChannel> channel;
        std::int64_t sinceMs = 0;
        std::string name;
        bool over = false;
    };

    void take(std::unique_ptr<ByteStream> stream);
    void greeted(Guest& guest, const std::string& name);
    void packet(const wire::Packet& packet);
    void leave(const std::string& why);
    void watch();

    Clock& clock_;
    wire::Role role_;
    std::function<void(const std::string&)> log_;
    std::unique_ptr<Listener> listener_;
    std::list<Guest> waiting_;
    std::unique_ptr<PacketChannel> inside_;
    std::string name_;
    std::int64_t heardMs_ = 0;
    std::uint64_t heardBytes_ = 0;
    std::uint64_t reportedBytes_ = 0;
    TimerMM timer_;
};

}  // namespace quorrin

// Calls: outgoing TCP connections by host and port, for programs that connect to a station.
//
// A Call is one attempt and the connection that comes of it; who wants another one makes another call.
//
//   connecting  from the start. Nothing here times out: an owner has timers, and destroys the call.
//   connected   the machine at the other end has taken the call; whether a program there wants it shows
//   later. ended       the other side closed in order. failed      there was no connection, or it broke;
//   error() says why. closed      by close().
//
// Events come through the clock's queue, never from inside call(), and each call has an event source of its
// own. A handler is copied before it runs, and may destroy its call.
//
//   onConnected  once, before anything else.
//   onBytes      one read: all that has come so far, up to kCallReadBytes. What the other side sent in pieces
//                may come as one, and what it sent as one in pieces.
//   onEnded      once, for ended and for failed, after the last bytes.
//
// After close(), and after the destructor, which closes too, nothing comes. What was sent before still goes
// out, for at most kCallLingerMs; what comes meanwhile is thrown away, so that the other side sees a close
// and no reset.
//
// Errors: none is thrown. The calls must outlive each Call.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace quorrin {

constexpr std::size_t kCallReadBytes = 64 * 1024;
// What a call holds at most of bytes that the machine has not taken; one more is a failure.
constexpr std::size_t kCallSendBound = 1024 * 1024;
constexpr std::int64_t kCallLingerMs = 2000;

enum class CallState { connecting, connected, ended, failed, closed };

class Call {
  public:
    Call() = default;
    Call(const Call&) = delete;
    Call& operator=(const Call&) = delete;
    virtual ~Call() = default;

    virtual CallState state() const = 0;
    // Why it failed; else "".
    virtual std::string error() const = 0;
    // Does nothing unless connected.
    virtual void send(std::string_view bytes) = 0;
    virtual void close() = 0;
    // What the machine's own TCP measures as the way there and back; empty unless connected, and where it
    // cannot be told.
    virtual std::optional<double> roundTripMs() const = 0;

    std::function<void()> onConnected;
    std::function<void(std::string_view bytes)> onBytes;
    std::function<void()> onEnded;
};

class Calls {
  public:
    virtual ~Calls() = default;
    // `host` is a name or a dotted IPv4 address.
    virtual std::unique_ptr<Call> call(const std::string& host, int port) = 0;
    // Calls that were closed still have bytes to send, or wait for the other side's close.
    virtual bool lingering() = 0;
};

}  // namespace quorrin

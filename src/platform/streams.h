// Byte streams: TCP by address and port, and local ones by name, with their listeners and connectors.
//
// Everything that happens (a connection, bytes, a close) is delivered through the clock's queue as something
// that the outside world did, under the stream's or listener's `source`, so that order and the no-re-entry
// rule are the clock's. Bytes keep their order but not their pieces. Nothing here retries or times out: an
// owner has timers.
//
// Ownership: who has the unique_ptr has the thing; destroying it closes it, cancels what was pending and
// suppresses what was queued for it, also from inside its own callback. A handler is copied before it runs.
//
// Errors: send() refuses, listen...() gives null and a text, a connect handler gets null and a text, a stream
// that ends says so once by onClosed. Nothing throws.
#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "platform/event_queue.h"

namespace quorrin {

// What a stream holds at most of bytes that the machine has not taken yet.
constexpr std::size_t kSendBound = 16 * 1024 * 1024;

class ByteStream {
  public:
    ByteStream() = default;
    ByteStream(const ByteStream&) = delete;
    ByteStream& operator=(const ByteStream&) = delete;
    virtual ~ByteStream() = default;

    // Takes all of the bytes or, on a closed stream or where kSendBound would be passed, none of them
    // (false).
    virtual bool send(std::string_view bytes) = 0;
    // Bytes that were taken and have not left yet.
    virtual std::size_t pendingBytes() const = 0;
    // Closes in order: what was taken before is still sent as far as the peer takes it. No onClosed follows.
    virtual void close() = 0;
    virtual bool isOpen() const = 0;

    std::function<void(std::string_view)> onBytes;
    // The peer closed, or the connection broke. Comes after the last onBytes.
    std::function<void()> onClosed;
    // Identity of the owner's handler; several streams may share one. Null: none.
    EventSource* source = nullptr;
};

class Listener {
  public:
    Listener() = default;
    Listener(const Listener&) = delete;
    Listener& operator=(const Listener&) = delete;
    virtual ~Listener() = default;

    // The TCP port that it listens on; 0 for a local one.
    virtual int port() const = 0;

    // Sets the stream's handlers before it returns. A connection that nobody takes is closed.
    std::function<void(std::unique_ptr<ByteStream>)> onConnection;
    EventSource* source = nullptr;
};

// A connection in the making. Destroying it gives it up.
class Connecting {
  public:
    Connecting() = default;
    Connecting(const Connecting&) = delete;
    Connecting& operator=(const Connecting&) = delete;
    virtual ~Connecting() = default;
};

// Called once, later, never from inside the call that starts the attempt. The stream is null on failure.
using ConnectHandler = std::function<void(std::unique_ptr<ByteStream>, const std::string& error)>;

class Streams {
  public:
    virtual ~Streams() = default;

    // Port 0 takes any free one. Null, and the reason in `error` where one is asked for, when it cannot
    // listen.
    virtual std::unique_ptr<Listener> listenTcp(const std::string& address, int port,
                                                std::string* error = nullptr) = 0;
    virtual std::unique_ptr<Connecting> connectTcp(const std::string& address, int port,
                                                   ConnectHandler handler) = 0;
    // `name` is a short word such as "motcom"; where it lies on the machine is the platform's business. Only
    // this user's programs with the same data folder meet there.
    virtual std::unique_ptr<Listener> listenLocal(const std::string& name, std::string* error = nullptr) = 0;
    virtual std::unique_ptr<Connecting> connectLocal(const std::string& name, ConnectHandler handler) = 0;
};

}  // namespace quorrin

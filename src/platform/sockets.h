// TCP socket controls in arrays: element 0 of an array listens, the others each hold one accepted connection.
//
// A Socket is one element. It is made closed, is told to listen or to accept a call, and ends by close() or
// by being destroyed, which is allowed at any time, also from inside its own handlers. Nothing connects out.
//
// Events. All elements of one array share one event source: while a handler of any of them runs, none is
// entered again, and what has happened meanwhile waits in its order. Bytes come before the close that follows
// them.
//
//   onConnectionRequest  on a listening element. While it runs, the element's remote...() tell who calls. A
//                        request that no element accepts before it returns is refused: the caller sees its
//                        connection closed. One call is taken in each turn of the loop.
//   onDataArrival        bytes have come, as one read. They wait until they are read; an element that has no
//                        such handler throws its bytes away.
//   onClose              the other side closed in order. State closing; this event and no error event.
//   onError              anything else went wrong: a reset, a peer that takes no more than kSocketSendBound,
//                        a listen that failed. State failed; this event and no close event. For a listen that
//                        failed it comes kListenRetryMs after it, so that an owner which listens again in
//                        answer to it tries once a second.
//
// After close() no event of what was before comes.
//
// Errors: none is thrown; a failure is the error event.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace quorrin {

// What a socket holds at most of sent bytes that its peer has not taken.
constexpr std::size_t kSocketSendBound = 1024 * 1024;
constexpr std::int64_t kListenRetryMs = 1000;

enum class SocketState : int { closed = 0, listening = 2, connected = 7, closing = 8, failed = 9 };

class Socket {
  public:
    Socket() = default;
    Socket(const Socket&) = delete;
    Socket& operator=(const Socket&) = delete;
    virtual ~Socket() = default;

    virtual SocketState state() const = 0;

    // The peer. Kept from the accept until the element is destroyed or accepts anew; empty and 0 before.
    virtual std::string remoteHost() const = 0;  // its name, where it is known
    virtual std::string remoteHostIP() const = 0;
    virtual int remotePort() const = 0;
    // The port to listen on; from the accept on that of the connection.
    virtual int localPort() const = 0;
    virtual void setLocalPort(int port) = 0;

    virtual void listen() = 0;
    // Why the last listen failed; empty while none has.
    virtual std::string listenError() const = 0;
    // Takes the call of the connection request that is being handled.
    virtual void accept(std::int64_t request) = 0;
    // Does nothing to a closed element. What was sent before is still sent as far as the peer takes it.
    virtual void close() = 0;

    // Bytes that have come and have not been read.
    virtual std::size_t bytesReceived() const = 0;
    virtual std::string read(std::size_t atMost) = 0;
    // Does nothing on an element that is not connected.
    virtual void send(std::string_view bytes) = 0;

    std::function<void(std::int64_t request)> onConnectionRequest;
    std::function<void()> onDataArrival;
    std::function<void()> onClose;
    std::function<void()> onError;
};

class Sockets {
  public:
    virtual ~Sockets() = default;
    // A new element of the array of that name. The sockets must outlive it.
    virtual std::unique_ptr<Socket> create(const std::string& array, int element) = 0;
};

}  // namespace quorrin

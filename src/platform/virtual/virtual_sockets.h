// Socket arrays without a network: what callers do is told by a script or a test, what the station does is
// told by hooks.
//
// connect(), receive(), hangUp() and fail() run the element's handler at once. Whoever calls them from the
// clock's queue does so under source(array), so that the no-re-entry rule is the clock's. A listen on a port
// that was made to fail fails until it is made good again, and says so after kListenRetryMs.
//
// Bytes that are sent leave at once (to onSend, and to the caller where it gave a VirtualPeer), unless the
// peer was made slow: then kSocketSendBound of them are held, and one byte more is a socket error. Must
// outlive its sockets.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <utility>

#include "platform/clock.h"
#include "platform/sockets.h"

namespace quorrin {

class VirtualSocket;

// What a caller in the same process hears of the element that took its call. The element's end (closed,
// destroyed) is told once, and nothing after it.
struct VirtualPeer {
    std::function<void(std::string_view bytes)> onBytes;
    std::function<void()> onShut;
};

class VirtualSockets : public Sockets {
  public:
    explicit VirtualSockets(Clock& clock) : clock_(clock) {}

    std::unique_ptr<Socket> create(const std::string& array, int element) override;

    // The array's handler; there is one for each name, whether it has elements or not.
    EventSource& source(const std::string& array) { return sources_[array]; }

    // A client asks to connect. Nothing happens where element 0 does not listen. Returns the element that
    // took the call, or -1.
    int connect(const std::string& array, const std::string& fromIP, int fromPort,
                const std::string& fromHost = "", VirtualPeer peer = {});
    // The array that listens on that port; "" for none.
    std::string listeningOn(int port) const;
    // On an element that is not connected nothing happens in these three.
    void receive(const std::string& array, int element, const std::string& bytes);
    void hangUp(const std::string& array, int element);
    void fail(const std::string& array, int element);

    // The listener of that array breaks.
    void failListener(const std::string& array);
    void setPortTaken(int port, bool taken);
    // The peer of the element takes nothing from now on.
    void setSlow(const std::string& array, int element);
    // Bytes held for a slow peer.
    std::size_t held(const std::string& array, int element) const;
    bool exists(const std::string& array, int element) const { return find(array, element) != nullptr; }

    // What was asked of the sockets. An accepted call is told before accept() returns.
    std::function<void(const std::string& array, int port)> onListen;
    std::function<void(const std::string& array, int element)> onAccept;
    std::function<void(const std::string& array, int element)> onShut;
    std::function<void(const std::string& array, int element, std::string_view bytes)> onSend;

  private:
    friend class VirtualSocket;
    struct Call {
        std::string host;
        std::string ip;
        int port = 0;
        int toPort = 0;
        VirtualPeer peer;
        int takenBy = -1;
    };

    VirtualSocket* find(const std::string& array, int element) const;
    VirtualSocket* connected(const std::string& array, int element) const;
    void breakSocket(VirtualSocket& socket);

    Clock& clock_;
    std::map<std::string, EventSource> sources_;
    std::map<std::pair<std::string, int>, VirtualSocket*> elements_;
    std::set<int> takenPorts_;
    std::map<std::int64_t, Call> calls_;  // whose request is being handled
    std::int64_t lastRequest_ = 0;
};

}  // namespace quorrin

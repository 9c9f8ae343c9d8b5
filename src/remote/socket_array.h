// One channel's sockets: element 0 listens on the channel's fixed port, elements 1 to 32 hold a client each.
//
// Element 0 is there from the start. Elements of clients are made on demand, each at the first free index,
// and destroyed one by one; so the array may have gaps. The sockets port must outlive it. An element may be
// destroyed from inside its own handler.
//
// Handlers are told the element's index. onDataArrival is read when an element is made: an array without one
// throws its clients' bytes away.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>

#include "platform/sockets.h"
#include "remote/channels.h"

namespace quorrin {

class SocketArray {
  public:
    static constexpr int kLastElement = 32;

    SocketArray(Sockets& sockets, const Channel& channel);
    SocketArray(const SocketArray&) = delete;
    SocketArray& operator=(const SocketArray&) = delete;

    const Channel& channel() const { return channel_; }

    // Null where there is no such element.
    Socket* element(int index) const;
    Socket& listener() const { return *elements_[0]; }
    // 0 when nothing but the listener is there.
    int highestElement() const;
    // An element above 0 is connected.
    bool anyConnected() const;

    // Makes the first element that does not exist; -1 when all 32 do.
    int openSocketSlot();
    // openSocketSlot, and the call taken on it; -1 when there is no room.
    int acceptCall(std::int64_t request);
    // Element 0 onto the channel's port.
    void startOnPort();
    void destroy(int index);
    // Closes and destroys all but the listener, the highest first.
    void destroyClients();
    // Closes all elements, the listener among them, and destroys none.
    void closeAll();

    std::function<void(std::int64_t request)> onConnectionRequest;
    std::function<void(int index)> onDataArrival;
    std::function<void(int index)> onClose;
    std::function<void(int index)> onError;

  private:
    void make(int index);

    Sockets& sockets_;
    Channel channel_;
    std::array<std::unique_ptr<Socket>, kLastElement + 1> elements_;
};

// Listens, if it does not yet; an element without a port does so on 7040.
void startListening(Socket& socket);
void closeSocket(Socket& socket);

// Who calls on a listening element: its name or else its address, in upper case.
std::string callerName(const Socket& listener);

}  // namespace quorrin

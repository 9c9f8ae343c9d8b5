// Byte streams in virtual time: pipes in memory, with faults on demand.
//
// Places are named as "tcp:ADDRESS:PORT" or "local:NAME" (see tcpPlace, localPlace). Faults at a place:
//   unreachable  a connect neither succeeds nor fails
//   hung         connections stand, and bytes and closes wait until the hang ends; kSendBound holds meanwhile
//   cut          all connections break at once: both ends are told, bytes under way are lost
// A delay holds back bytes, closes and connections by that many milliseconds; it never reorders them.
// A place where nobody listens refuses. "Killing a program" is destroying what it owns: its streams close.
//
// One thread, like its clock. Must outlive all that it gave out.
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "platform/clock.h"
#include "platform/streams.h"

namespace quorrin {

class VirtualListener;
struct VirtualEnd;

std::string tcpPlace(const std::string& address, int port);
std::string localPlace(const std::string& name);

class VirtualNetwork : public Streams {
  public:
    explicit VirtualNetwork(Clock& clock) : clock_(clock) {}
    ~VirtualNetwork() override;

    std::unique_ptr<Listener> listenTcp(const std::string& address, int port, std::string* error) override;
    std::unique_ptr<Connecting> connectTcp(const std::string& address, int port, ConnectHandler) override;
    std::unique_ptr<Listener> listenLocal(const std::string& name, std::string* error) override;
    std::unique_ptr<Connecting> connectLocal(const std::string& name, ConnectHandler) override;

    void setDelay(std::int64_t ms) { delayMs_ = ms; }
    void setUnreachable(const std::string& place, bool unreachable);
    void setHung(const std::string& place, bool hung);
    void cut(const std::string& place);

    // Connects that were tried at a place so far.
    int attempts(const std::string& place) const;

  private:
    friend class VirtualListener;
    friend class VirtualConnecting;
    friend struct VirtualEnd;

    std::unique_ptr<Listener> listen(const std::string& place, int port, std::string* error);
    std::unique_ptr<Connecting> connect(const std::string& place, ConnectHandler handler);
    void finishConnect(const std::string& place, const ConnectHandler& handler);
    std::vector<std::shared_ptr<VirtualEnd>> endsAt(const std::string& place);

    Clock& clock_;
    std::int64_t delayMs_ = 0;
    int lastFreePort_ = 49151;
    std::map<std::string, VirtualListener*> listeners_;
    std::map<std::string, int> attempts_;
    std::set<std::string> unreachable_;
    std::set<std::string> hung_;
    std::vector<std::weak_ptr<VirtualEnd>> ends_;
};

}  // namespace quorrin

// Outgoing calls in virtual time, to the listeners of a VirtualSockets: so a client and a whole station run
// in one process.
//
// As with a real machine a call is connected before the station has answered it: then the station's listener
// gets its request, and a caller that no element takes sees the connection ended. What is sent while it is
// not delivered runs together, in both directions. Bytes of a call that is closed still arrive, and the close
// after them.
//
// Faults: calls that come to nothing, a pulled cable, connections that break, and a station's peer made slow
// (see VirtualSockets). Of hosts there is one, whatever its name.
//
// One thread, like its clock. Clock and sockets must outlive it, and it its calls.
#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/calls.h"
#include "platform/clock.h"
#include "platform/virtual/virtual_sockets.h"

namespace quorrin {

struct VirtualLine;

class VirtualCalls : public Calls {
  public:
    VirtualCalls(Clock& clock, VirtualSockets& sockets) : clock_(clock), sockets_(sockets) {}
    ~VirtualCalls() override;

    std::unique_ptr<Call> call(const std::string& host, int port) override;
    bool lingering() override;

    // While it is not reachable, calls neither connect nor fail, also after it is reachable again.
    void setReachable(bool reachable) { reachable_ = reachable; }
    // While it is pulled nothing arrives in either direction; what was sent comes afterwards.
    void setPulled(bool pulled);
    // All connections break: both ends are told.
    void breakAll();
    void setRoundTripMs(std::optional<double> ms) { roundTripMs_ = ms; }
    // Calls to that port so far.
    int tried(int port) const;
    // The address that the station sees.
    void setAddress(const std::string& address) { address_ = address; }

  private:
    friend struct VirtualLine;
    friend class VirtualCall;

    Clock& clock_;
    VirtualSockets& sockets_;
    bool reachable_ = true;
    bool pulled_ = false;
    std::optional<double> roundTripMs_;
    std::map<int, int> tried_;
    std::string address_ = "10.0.0.9";
    int lastPort_ = 50000;
    std::vector<std::weak_ptr<VirtualLine>> lines_;
};

}  // namespace quorrin

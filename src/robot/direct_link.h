// A simulated robot linked straight to a station: two link instances without gateways and network, on the
// station's own clock. For closed loops in virtual time.
//
// It behaves as the real chain does: a link delivers frames and takes operations only while its gateway
// runs, frames wait while the station's thread blocks, a wheel speed of exactly -1 is passed as -2, and a
// motion gateway that goes leaves the drives suspended. Who starts and closes programs tells it so, through
// gatewayStarted() and gatewayClosed(); a gateway needs a moment to be connected. Both gateways are away at
// first.
//
// Files that the station names are read and written through the Files port. The clock, the robot and the
// files must outlive this.
#pragma once

#include <deque>
#include <memory>
#include <string>

#include "platform/clock.h"
#include "platform/files.h"
#include "platform/programs.h"
#include "platform/timer_mm.h"
#include "robot/simulated_robot.h"
#include "robotlink/quorrin_sdk.h"

namespace quorrin {

class DirectLink {
  public:
    DirectLink(Clock& clock, SimulatedRobot& robot, Files& files);
    ~DirectLink();
    DirectLink(const DirectLink&) = delete;
    DirectLink& operator=(const DirectLink&) = delete;

    QuorrinSDK& myRobot();
    QuorrinSDK& robotTI();

    void gatewayStarted(RobotLink link);
    void gatewayClosed(RobotLink link);
    // By program ("QuorrinGatewaymot", with or without folder and ".exe") or by window title; others are
    // ignored. Fit for the hooks of scripted programs.
    void programStarted(const std::string& program);
    void windowClosed(const std::string& title);

    bool connected(RobotLink link) const;

  private:
    class Instance;
    class Motion;
    class Multimedia;
    struct Gateway {
        bool running = false;
        bool connected = false;
        std::int64_t connectAtMs = 0;
    };

    void tick();
    void catchUp();
    void connectWhatIsDue();
    void disconnect(RobotLink link);
    Gateway& gateway(RobotLink link) { return gateways_.at(static_cast<std::size_t>(link)); }

    Clock& clock_;
    SimulatedRobot& robot_;
    Files& files_;
    std::int64_t startMs_;
    std::array<Gateway, 2> gateways_;
    std::unique_ptr<Motion> motion_;
    std::unique_ptr<Multimedia> multimedia_;
    TimerMM timer_;
};

}  // namespace quorrin

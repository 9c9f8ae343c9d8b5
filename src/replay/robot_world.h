// The simulated robot in the place of a script's frames, and what there is to tell about it at the end.
//
// Robot and station share the replay's virtual clock. The report counts from time 0: metres and collisions of
// the robot's own truth, and seconds that the navigator's last finding and the stuck flag stood, looked at
// ten times a second.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "platform/files.h"
#include "platform/timer_mm.h"
#include "robot/direct_link.h"
#include "session/station.h"

namespace quorrin {

struct RobotSetup {
    Site site;
    std::uint64_t seed = 1;
    std::vector<Fault> scenario;
};

class RobotWorld {
  public:
    RobotWorld(Clock& clock, Files& files, const RobotSetup& setup);

    QuorrinSDK& myRobot() { return link_.myRobot(); }
    QuorrinSDK& robotTI() { return link_.robotTI(); }
    void programStarted(const std::string& name) { link_.programStarted(name); }
    void windowClosed(const std::string& title) { link_.windowClosed(title); }

    // Begins to look at the station, which must outlive the looking.
    void observe(const Station& station);
    // One JSON object; `realSeconds` is what the run took.
    std::string report(double realSeconds);

  private:
    void look();

    Clock& clock_;
    SimulatedRobot robot_;
    DirectLink link_;
    const Station* station_ = nullptr;
    std::int64_t lookedMs_ = 0;
    std::string caStatus_;  // as at the last look
    bool inStuck_ = false;
    std::map<std::string, std::int64_t> caStatusMs_;
    std::int64_t inStuckMs_ = 0;
    TimerMM timer_;
};

}  // namespace quorrin

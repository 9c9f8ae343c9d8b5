// A navigator with a target two metres ahead at 0.3 m/s, without heading search unless a test asks for it.
#pragma once

#include <gtest/gtest.h>

#include "navigation/speed_p2p_vfh.h"
#include "support/navigation_station.h"

namespace quorrin {

class NavigatorFixture : public ::testing::Test, protected NavigationStation {
  protected:
    NavigatorFixture() {
        task.TargetX = 2;
        task.TargetForwardspeed = 0.3;
        task.maxTurnspeed = 0.8;
        task.lowerTolerance = 0.12;
    }
    void start() {
        task.run();
        link.take();
    }
    void tick() { task.RunTimer_Timer(100); }
    static std::string velocities(int left, int right) {
        return "SetDriveVelocities " + std::to_string(left) + " " + std::to_string(right) +
               " -32768 -32768 -32768 -32768";
    }
    // 0.3 m/s are 4 rad/s at the wheels: 763.9 counts per second.
    const std::string ahead = velocities(-764, 764);
    speedP2PVFH task{clock, values, controls, link};
};

}  // namespace quorrin

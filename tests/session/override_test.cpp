#include "session/override.h"

#include <gtest/gtest.h>

namespace quorrin {
namespace {

TEST(Override, TakingTheRobotAsksForJoyAlone) {
    for (const bool byStick : {true, false}) {
        ModeValues mode;
        mode.joystickActive = byStick;
        mode.manualPanelActive = !byStick;
        mode.requestWander = true;
        mode.requestIdle = true;
        arbitrateOverride(mode);
        EXPECT_TRUE(mode.requestJoy);
        EXPECT_FALSE(mode.requestWander);
        EXPECT_FALSE(mode.requestIdle);
        EXPECT_TRUE(mode.joyOverride);
    }
}

TEST(Override, HoldingTheRobotAsksOnlyOnce) {
    ModeValues mode;
    mode.manualPanelActive = true;
    mode.joyOverride = true;
    mode.requestIdle = true;
    arbitrateOverride(mode);
    EXPECT_TRUE(mode.requestIdle);
    EXPECT_FALSE(mode.requestJoy);
}

TEST(Override, LettingGoAsksForTheWanderThatWasLeft) {
    ModeValues mode;
    mode.joyOverride = true;
    mode.previousMode = kModeWondering;
    mode.requestIdle = true;
    mode.requestJoy = true;
    arbitrateOverride(mode);
    EXPECT_TRUE(mode.requestWander);
    EXPECT_FALSE(mode.requestIdle);
    EXPECT_FALSE(mode.requestJoy);
    EXPECT_FALSE(mode.joyOverride);
}

TEST(Override, LettingGoAsksForTheIdleThatWasLeft) {
    ModeValues mode;
    mode.joyOverride = true;
    mode.previousMode = kModeIdle;
    mode.requestWander = true;
    arbitrateOverride(mode);
    EXPECT_TRUE(mode.requestIdle);
    EXPECT_FALSE(mode.requestWander);
    EXPECT_FALSE(mode.joyOverride);
}

TEST(Override, LettingGoWithAnotherModeLeftKeepsTheRequests) {
    ModeValues mode;
    mode.joyOverride = true;
    mode.previousMode = kModeJoy;
    mode.requestJoy = true;
    arbitrateOverride(mode);
    EXPECT_TRUE(mode.requestJoy);
    EXPECT_FALSE(mode.joyOverride);
}

TEST(Override, NobodyHoldingAndNobodyHavingHeldChangesNothing) {
    ModeValues mode;
    mode.requestWander = true;
    arbitrateOverride(mode);
    EXPECT_TRUE(mode.requestWander);
    EXPECT_FALSE(mode.joyOverride);
}

}  // namespace
}  // namespace quorrin

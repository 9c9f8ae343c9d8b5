// The client's joystick: found, told of, lost and found again.
#include "client/stick_watch.h"

#include <gmock/gmock.h>

#include "platform/virtual/scripted_joysticks.h"
#include "platform/virtual/virtual_clock.h"

namespace quorrin {
namespace {

using testing::IsSupersetOf;

struct StickWatchTest : testing::Test {
    StickWatchTest() {
        watch.onState = [this](const JoystickState& state) { states.push_back(state); };
        watch.onLost = [this] { ++lost; };
        sticks.onCall = [this](const std::string& call) { asked.push_back(call); };
    }
    static JoystickState steered(int x) {
        JoystickState state;
        state.x = x;
        return state;
    }

    VirtualClock clock;
    ScriptedJoysticks sticks;
    StickWatch watch{clock, sticks};
    std::vector<JoystickState> states;
    std::vector<std::string> asked;
    int lost = 0;
};

TEST_F(StickWatchTest, IsThereAtOnceAndTellsHowItRests) {
    sticks.attach();
    watch.start();
    EXPECT_TRUE(watch.present());
    ASSERT_EQ(states.size(), 1U);
    EXPECT_EQ(states[0], JoystickState{});
}

TEST_F(StickWatchTest, IsSetUpAsTheStationsOwnStick) {
    sticks.attach();
    watch.start();
    EXPECT_THAT(asked, IsSupersetOf({"setDeadZone x 1000", "setDeadZone y 1000", "setSaturation x 9500",
                                     "setSaturation y 9500", "setRange 0 10000"}));
}

TEST_F(StickWatchTest, TellsEachChange) {
    sticks.attach();
    watch.start();
    sticks.move(steered(7000));
    ASSERT_EQ(states.size(), 2U);
    EXPECT_EQ(states[1].x, 7000);
}

TEST_F(StickWatchTest, OneThatIsPluggedInLaterIsFound) {
    watch.start();
    EXPECT_FALSE(watch.present());
    sticks.attach();
    clock.runFor(StickWatch::kSearchMs);
    EXPECT_TRUE(watch.present());
}

TEST_F(StickWatchTest, OneThatIsPulledOutIsToldOnce) {
    sticks.attach();
    watch.start();
    sticks.setPluggedIn(false);
    EXPECT_FALSE(watch.present());
    EXPECT_EQ(lost, 1);
    clock.runFor(10 * StickWatch::kSearchMs);
    EXPECT_EQ(lost, 1);
}

TEST_F(StickWatchTest, OneThatIsBackIsTakenAnew) {
    sticks.attach();
    watch.start();
    sticks.setPluggedIn(false);
    clock.runFor(StickWatch::kSearchMs);
    sticks.setPluggedIn(true);
    clock.runFor(StickWatch::kSearchMs);
    EXPECT_TRUE(watch.present());
    sticks.move(steered(2000));
    EXPECT_EQ(states.back().x, 2000);
}

TEST_F(StickWatchTest, OneThatCannotBeAcquiredIsNotThereUntilItCan) {
    sticks.attach();
    sticks.failing = {"acquire"};
    watch.start();
    EXPECT_FALSE(watch.present());
    sticks.failing.clear();
    clock.runFor(StickWatch::kSearchMs);
    EXPECT_TRUE(watch.present());
}

TEST_F(StickWatchTest, AFoundOneIsNotLookedForAnyMore) {
    sticks.attach();
    watch.start();
    asked.clear();
    clock.runFor(10 * StickWatch::kSearchMs);
    EXPECT_TRUE(asked.empty());
}

}  // namespace
}  // namespace quorrin

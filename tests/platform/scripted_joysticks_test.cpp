#include "platform/virtual/scripted_joysticks.h"

#include <gmock/gmock.h>

#include "support/joysticks_contract.h"

namespace quorrin {
namespace {

using testing::ElementsAre;

struct Scripted {
    Joysticks& joysticks() { return sticks; }
    void attach(int buttons) { sticks.attach(buttons); }
    void press(int button, bool down) {
        state.buttons[static_cast<std::size_t>(button)] = down;
        sticks.move(state);
    }
    void turnHat(int pov) {
        state.pov = pov;
        sticks.move(state);
    }
    void setPluggedIn(bool pluggedIn) { sticks.setPluggedIn(pluggedIn); }
    void settle() {}

    ScriptedJoysticks sticks;
    JoystickState state;
};

INSTANTIATE_TYPED_TEST_SUITE_P(Scripted, JoysticksContract, Scripted);

TEST(ScriptedJoysticks, AStateThatIsTheLastOneIsNoEvent) {
    ScriptedJoysticks sticks;
    sticks.attach();
    int events = 0;
    const auto device = sticks.open("stick0");
    device->setEventNotification(sticks.createEvent([&](std::int32_t) { ++events; }));
    device->acquire();
    sticks.move({});
    EXPECT_EQ(events, 0);
    JoystickState turned;
    turned.x = 5001;
    sticks.move(turned);
    sticks.move(turned);
    EXPECT_EQ(events, 1);
}

TEST(ScriptedJoysticks, AButtonThatTheStickLacksStaysUp) {
    ScriptedJoysticks sticks;
    sticks.attach(6);
    const auto device = sticks.open("stick0");
    device->acquire();
    JoystickState state;
    state.buttons.fill(true);
    sticks.move(state);
    JoystickState read;
    device->read(read);
    EXPECT_TRUE(read.buttons[5]);
    EXPECT_FALSE(read.buttons[6]);
}

TEST(ScriptedJoysticks, ItsCallsAreToldWithTheirArguments) {
    ScriptedJoysticks sticks;
    sticks.attach();
    std::vector<std::string> calls;
    sticks.onCall = [&](const std::string& call) { calls.push_back(call); };
    const auto device = sticks.open(sticks.attached().at(0));
    device->setDeadZone(JoystickAxis::y, 1000);
    device->setRange(0, 10000);
    EXPECT_THAT(calls, ElementsAre("attached", "open stick0", "setDeadZone y 1000", "setRange 0 10000"));
}

TEST(ScriptedJoysticks, ACallCanBeMadeToFail) {
    ScriptedJoysticks sticks;
    sticks.attach();
    const auto device = sticks.open("stick0");
    sticks.failing = {"acquire", "buttonCount", "axisTypes", "open", "attached", "createEvent"};
    EXPECT_FALSE(device->acquire());
    EXPECT_EQ(device->buttonCount(), -1);
    EXPECT_TRUE(device->axisTypes().empty());
    EXPECT_EQ(sticks.open("stick0"), nullptr);
    EXPECT_TRUE(sticks.attached().empty());
    EXPECT_EQ(sticks.createEvent({}), 0);
    sticks.failing = {"read"};
    EXPECT_TRUE(device->acquire());
    JoystickState state;
    EXPECT_EQ(device->read(state), JoystickRead::failed);
}

}  // namespace
}  // namespace quorrin

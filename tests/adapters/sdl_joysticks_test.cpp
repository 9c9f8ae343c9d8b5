// The real adapter on SDL's own virtual sticks: scales, hat, buttons, changes, sticks that come and go. There
// is no window at all, so nothing here ever has the focus.
#include "platform/qt/sdl_joysticks.h"

#include <SDL.h>
#include <gmock/gmock.h>

#include <csignal>

#include "platform/paced_clock.h"
#include "platform/qt/qt_clock.h"
#include "platform/virtual/memory_files.h"
#include "platform/virtual/scripted_boxes.h"
#include "platform/virtual/scripted_programs.h"
#include "platform/virtual/virtual_clock.h"
#include "session/station.h"
#include "support/fake_link.h"
#include "support/joysticks_contract.h"
#include "support/real_wait.h"

namespace quorrin {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// SDL's virtual sticks, at rest when attached.
class VirtualSticks {
  public:
    ~VirtualSticks() {
        while (!handles_.empty()) detach(0);
    }
    void attach(int axes, int buttons, int hats) {
        const int index = SDL_JoystickAttachVirtual(SDL_JOYSTICK_TYPE_FLIGHT_STICK, axes, buttons, hats);
        ASSERT_GE(index, 0) << SDL_GetError();
        handles_.push_back(SDL_JoystickOpen(index));
    }
    void detach(std::size_t stick) {
        const SDL_JoystickID id = SDL_JoystickInstanceID(handles_.at(stick));
        SDL_JoystickClose(handles_.at(stick));
        handles_.erase(handles_.begin() + static_cast<std::ptrdiff_t>(stick));
        for (int i = 0; i < SDL_NumJoysticks(); ++i) {
            if (SDL_JoystickGetDeviceInstanceID(i) == id) {
                SDL_JoystickDetachVirtual(i);
                return;
            }
        }
    }
    void setAxis(int axis, int raw, std::size_t stick = 0) {
        SDL_JoystickSetVirtualAxis(handles_.at(stick), axis, static_cast<Sint16>(raw));
    }
    void setButton(int button, bool down, std::size_t stick = 0) {
        SDL_JoystickSetVirtualButton(handles_.at(stick), button, down ? 1 : 0);
    }
    void setHat(int hat, std::size_t stick = 0) {
        SDL_JoystickSetVirtualHat(handles_.at(stick), 0, static_cast<Uint8>(hat));
    }

  private:
    std::vector<SDL_Joystick*> handles_;
};

int hatBits(int pov) {
    if (pov < 0) return SDL_HAT_CENTERED;
    constexpr int bits[] = {SDL_HAT_UP,   SDL_HAT_RIGHTUP,  SDL_HAT_RIGHT, SDL_HAT_RIGHTDOWN,
                            SDL_HAT_DOWN, SDL_HAT_LEFTDOWN, SDL_HAT_LEFT,  SDL_HAT_LEFTUP};
    return bits[pov / 4500];
}

struct OnSdl {
    // The list is asked for first, as that starts SDL.
    OnSdl() { EXPECT_THAT(sdl.attached(), IsEmpty()) << "a real joystick is in the way"; }

    Joysticks& joysticks() { return sdl; }
    void attach(int buttons) { sticks.attach(3, buttons, 1); }
    void press(int button, bool down) { sticks.setButton(button, down); }
    void turnHat(int pov) { sticks.setHat(hatBits(pov)); }
    void setPluggedIn(bool pluggedIn) {
        if (pluggedIn) {
            sticks.attach(3, 12, 1);
        } else {
            sticks.detach(0);
        }
    }
    void settle() { clock.runFor(20); }

    VirtualClock clock;
    SdlJoysticks sdl{clock, clock};
    VirtualSticks sticks;
};

INSTANTIATE_TYPED_TEST_SUITE_P(Sdl, JoysticksContract, OnSdl);

// A stick opened with the station's dead zone, saturation and range.
class SdlStickTest : public testing::Test {
  protected:
    void open(int axes, int buttons = 12, int hats = 1) {
        on.sticks.attach(axes, buttons, hats);
        device = on.sdl.open(on.sdl.attached().at(0));
        device->setEventNotification(on.sdl.createEvent([this](std::int32_t) { ++events; }));
        for (const JoystickAxis axis : {JoystickAxis::x, JoystickAxis::y}) {
            device->setDeadZone(axis, 1000);
            device->setSaturation(axis, 9500);
        }
        device->setRange(0, 10000);
        device->acquire();
    }
    JoystickState now() {
        on.settle();
        JoystickState state;
        EXPECT_EQ(device->read(state), JoystickRead::done);
        return state;
    }
    JoystickState at(int axis, int raw) {
        on.sticks.setAxis(axis, raw);
        return now();
    }

    OnSdl on;
    int events = 0;
    std::unique_ptr<JoystickDevice> device;
};

TEST_F(SdlStickTest, AxisZeroIsXAndAxisOneIsY) {
    open(3);
    EXPECT_EQ(at(0, 32767).x, 10000);
    EXPECT_EQ(now().y, 5000);
    EXPECT_EQ(at(1, -32768).y, 0);
    EXPECT_EQ(now().x, 10000);
}

TEST_F(SdlStickTest, AnywhereInTheDeadZoneIsExactlyTheMiddle) {
    open(3);
    for (const int raw : {-3277, -3000, -1, 0, 1, 3000, 3276}) {
        EXPECT_EQ(at(0, raw).x, 5000) << raw;
        EXPECT_EQ(at(1, raw).y, 5000) << raw;
    }
    EXPECT_LT(at(0, -3300).x, 5000);
    EXPECT_GT(at(1, 3300).y, 5000);
}

TEST_F(SdlStickTest, BeyondTheSaturationIsExactlyTheEnd) {
    open(3);
    for (const int raw : {31129, 32000, 32767}) {
        EXPECT_EQ(at(0, raw).x, 10000) << raw;
        EXPECT_EQ(at(1, raw).y, 10000) << raw;
    }
    for (const int raw : {-31130, -32000, -32768}) {
        EXPECT_EQ(at(0, raw).x, 0) << raw;
        EXPECT_EQ(at(1, raw).y, 0) << raw;
    }
    EXPECT_LT(at(0, 31100).x, 10000);
    EXPECT_GT(at(1, -31100).y, 0);
}

TEST_F(SdlStickTest, TheSliderIsTheLastAxisAndNotScaledByTheDeadZone) {
    open(5);
    EXPECT_EQ(at(4, 1000).slider, 5153);
    EXPECT_EQ(at(4, -32768).slider, 0);
    EXPECT_EQ(at(4, 32767).slider, 10000);
    EXPECT_EQ(at(2, -32768).slider, 10000);
    EXPECT_EQ(at(3, -32768).slider, 10000);
}

TEST_F(SdlStickTest, TheSliderIsAtItsFarEndUntilItHasMoved) {
    open(3);
    EXPECT_EQ(now().slider, 10000);
    EXPECT_EQ(at(2, 200).slider, 5031);
    EXPECT_EQ(at(2, 0).slider, 5000) << "back where it began it has moved all the same";
}

TEST_F(SdlStickTest, WithoutAThirdAxisTheSliderStaysAtItsFarEnd) {
    open(2);
    EXPECT_EQ(at(1, -32768).slider, 10000);
    EXPECT_THAT(device->axisTypes(), ElementsAre("GUID_XAxis", "GUID_YAxis"));
}

TEST_F(SdlStickTest, ADeviceWithoutAxesAndHatsRests) {
    open(0, 4, 0);
    EXPECT_EQ(now(), JoystickState{});
    EXPECT_THAT(device->axisTypes(), IsEmpty());
}

TEST_F(SdlStickTest, AxesBetweenYAndTheSliderGetTheirTypesByTheirOrder) {
    open(7);
    EXPECT_THAT(device->axisTypes(), ElementsAre("GUID_XAxis", "GUID_YAxis", "GUID_ZAxis", "GUID_RxAxis",
                                                 "GUID_RyAxis", "GUID_RzAxis", "GUID_Slider"));
}

TEST_F(SdlStickTest, OfMoreThan32ButtonsTheFirst32Count) {
    open(3, 40);
    EXPECT_EQ(device->buttonCount(), 40);
    on.sticks.setButton(31, true);
    on.sticks.setButton(32, true);
    const JoystickState state = now();
    EXPECT_TRUE(state.buttons[31]);
    EXPECT_EQ(std::count(state.buttons.begin(), state.buttons.end(), true), 1);
}

TEST_F(SdlStickTest, WhatChangesBetweenTwoLooksIsOneEvent) {
    open(3);
    on.sticks.setAxis(0, 20000);
    on.sticks.setAxis(1, -20000);
    on.sticks.setButton(0, true);
    on.sticks.setHat(SDL_HAT_LEFT);
    now();
    EXPECT_EQ(events, 1);
}

TEST_F(SdlStickTest, MovesInsideTheDeadZoneAreNoEvent) {
    open(3);
    at(0, 3000);
    at(0, -3000);
    EXPECT_EQ(events, 0);
}

TEST_F(SdlStickTest, SdlIsAskedOnlyWhileADeviceIsAcquired) {
    EXPECT_FALSE(on.sdl.polling());
    open(3);
    EXPECT_TRUE(on.sdl.polling());
    device->unacquire();
    EXPECT_FALSE(on.sdl.polling());
    device->acquire();
    EXPECT_TRUE(on.sdl.polling());
    device.reset();
    EXPECT_FALSE(on.sdl.polling());
}

TEST_F(SdlStickTest, AStickPulledOutLeavesItsLastStateUntilItIsBack) {
    open(3);
    on.sticks.setButton(0, true);
    now();
    on.setPluggedIn(false);
    on.settle();
    JoystickState state;
    EXPECT_EQ(device->read(state), JoystickRead::inputLost);
    EXPECT_EQ(events, 2);
    on.setPluggedIn(true);
    on.settle();
    EXPECT_TRUE(device->acquire());
    // The new one's button is up, which is a change to what was known.
    EXPECT_FALSE(now().buttons[0]);
    EXPECT_EQ(events, 4);
}

TEST_F(SdlStickTest, AnotherKindOfStickIsNotTakenForTheOneThatWasPulledOut) {
    open(3);
    on.setPluggedIn(false);
    on.settle();
    const int index = SDL_JoystickAttachVirtual(SDL_JOYSTICK_TYPE_WHEEL, 3, 12, 1);
    on.settle();
    EXPECT_EQ(events, 1);
    EXPECT_FALSE(device->acquire());
    SDL_JoystickDetachVirtual(index);
}

TEST_F(SdlStickTest, ATwinThatWasThereAllTheTimeIsNotTakenForIt) {
    open(3);
    on.attach(12);
    on.settle();
    on.setPluggedIn(false);
    on.settle();
    EXPECT_EQ(events, 1);
    EXPECT_FALSE(device->acquire());
}

// With a window that has not the focus SDL drops what sticks report, unless it is told otherwise.
TEST_F(SdlStickTest, AnSdlWindowWithoutTheFocusKeepsNothingAway) {
    open(3);
    SDL_SetHint(SDL_HINT_VIDEODRIVER, "dummy");
    ASSERT_EQ(SDL_InitSubSystem(SDL_INIT_VIDEO), 0) << SDL_GetError();
    SDL_Window* window = SDL_CreateWindow("elsewhere", 0, 0, 10, 10, SDL_WINDOW_HIDDEN);
    ASSERT_NE(window, nullptr);
    ASSERT_EQ(SDL_GetKeyboardFocus(), nullptr);
    EXPECT_EQ(at(0, 32767).x, 10000);
    SDL_DestroyWindow(window);
    SDL_QuitSubSystem(SDL_INIT_VIDEO);
}

TEST(SdlJoysticks, StartNoVideoAndTakeNoSignals) {
    struct sigaction before {};
    ::sigaction(SIGINT, nullptr, &before);
    VirtualClock clock;
    SdlJoysticks sdl(clock, clock);
    sdl.attached();
    EXPECT_NE(SDL_WasInit(SDL_INIT_JOYSTICK), 0U);
    EXPECT_EQ(SDL_WasInit(SDL_INIT_VIDEO | SDL_INIT_AUDIO), 0U);
    struct sigaction after {};
    ::sigaction(SIGINT, nullptr, &after);
    EXPECT_EQ(before.sa_handler, after.sa_handler);
}

TEST(SdlJoysticks, StartNothingBeforeTheyAreAskedFor) {
    VirtualClock clock;
    const SdlJoysticks sdl(clock, clock);
    EXPECT_EQ(SDL_WasInit(SDL_INIT_JOYSTICK), 0U);
}

TEST(SdlJoysticks, EventsComeInTheSessionsTimeWithTheStateThatTheyTellOf) {
    VirtualClock host;
    PacedClock session(host);
    session.begin();
    SdlJoysticks sdl(host, session);
    sdl.attached();
    VirtualSticks sticks;
    sticks.attach(3, 12, 1);
    const auto device = sdl.open(sdl.attached().at(0));
    std::vector<std::pair<std::int64_t, int>> told;
    device->setEventNotification(sdl.createEvent([&](std::int32_t) {
        JoystickState state;
        device->read(state);
        told.emplace_back(session.nowMs(), state.x);
    }));
    device->acquire();
    host.runUntil(15);
    sticks.setAxis(0, 32767);
    host.runUntil(25);
    sticks.setAxis(0, -32768);
    host.runUntil(100);
    EXPECT_THAT(told, ElementsAre(std::pair(20, 10000), std::pair(30, 0)));
}

TEST(SdlJoysticks, DriveAWholeStation) {
    VirtualClock host;
    PacedClock session(host);
    session.begin();
    SdlJoysticks sdl(host, session);
    sdl.attached();
    VirtualSticks sticks;
    sticks.attach(3, 12, 1);
    MemoryFiles files;
    ScriptedPrograms programs;
    ScriptedBoxes boxes;
    std::vector<std::string> log;
    FakeLink myRobot(log, "myRobot.");
    FakeLink robotTI(log, "robotTI.");
    StationPorts ports{
        session, files, programs, boxes, myRobot, robotTI, Folders{"/app", "/windows", "/voice", "/programs"},
        [] {}};
    ports.joysticks = &sdl;
    Station station(ports);
    session.post([&] { station.startAtMainForm(); });
    host.runUntil(1500);
    EXPECT_EQ(station.gui.lButtons, 12);
    sticks.setButton(0, true);
    sticks.setButton(6, true);
    sticks.setAxis(0, 32767);
    sticks.setAxis(2, -32768);
    host.runUntil(1600);
    EXPECT_TRUE(station.values.joystickActive);
    EXPECT_EQ(station.values.brakeLevel, 0);
    EXPECT_EQ(station.values.steeringLevel, 10000);
    EXPECT_EQ(station.values.gasLevel, 0);
    EXPECT_EQ(station.values.joystickY, 5000);
}

TEST(SdlJoysticks, WorkOnTheRealClock) {
    QtClock clock;
    PacedClock session(clock);
    session.begin();
    SdlJoysticks sdl(clock, session);
    sdl.attached();
    VirtualSticks sticks;
    sticks.attach(3, 12, 1);
    const auto device = sdl.open(sdl.attached().at(0));
    int events = 0;
    device->setEventNotification(sdl.createEvent([&](std::int32_t) { ++events; }));
    device->acquire();
    sticks.setButton(4, true);
    EXPECT_TRUE(waitForReal([&] { return events == 1; }));
}

}  // namespace
}  // namespace quorrin

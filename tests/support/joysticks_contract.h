// What every kind of joystick must do; run on the scripted ones and on the real adapter.
//
// A fixture type gives: Joysticks& joysticks(); void attach(int buttons), one more stick, at rest; on the
// first of them void press(int button, bool down), void turnHat(int pov), void setPluggedIn(bool); and void
// settle(), after which all of that has reached whoever is to be told.
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <vector>

#include "platform/joysticks.h"

namespace quorrin {

template <typename Fixture>
class JoysticksContract : public ::testing::Test {
  protected:
    Joysticks& joysticks() { return fixture.joysticks(); }

    // Opens the first one as the station does.
    void open() {
        device = joysticks().open(joysticks().attached().at(0));
        ASSERT_TRUE(device);
        EXPECT_TRUE(device->useJoystickFormat());
        EXPECT_TRUE(device->shareInBackground());
        EXPECT_TRUE(device->setEventNotification(newEvent()));
        for (const JoystickAxis axis : {JoystickAxis::x, JoystickAxis::y}) {
            EXPECT_TRUE(device->setDeadZone(axis, 1000));
            EXPECT_TRUE(device->setSaturation(axis, 9500));
        }
        EXPECT_TRUE(device->setRange(0, 10000));
        EXPECT_TRUE(device->acquire());
    }
    void attachAndOpen() {
        fixture.attach(12);
        open();
    }
    std::int32_t newEvent() {
        return joysticks().createEvent([this](std::int32_t event) {
            events.push_back(event);
            JoystickState state;
            reads.push_back(device->read(state));
            states.push_back(state);
        });
    }
    JoystickState stateNow() {
        JoystickState state;
        EXPECT_EQ(device->read(state), JoystickRead::done);
        return state;
    }
    static JoystickState pressed(std::vector<std::size_t> buttons) {
        JoystickState state;
        for (const std::size_t button : buttons) state.buttons[button] = true;
        return state;
    }

    Fixture fixture;
    std::unique_ptr<JoystickDevice> device;
    // Of each event that was told.
    std::vector<std::int32_t> events;
    std::vector<JoystickRead> reads;
    std::vector<JoystickState> states;
};

TYPED_TEST_SUITE_P(JoysticksContract);

TYPED_TEST_P(JoysticksContract, ListsNothingWhereNothingIsAttached) {
    EXPECT_TRUE(this->joysticks().attached().empty());
}

TYPED_TEST_P(JoysticksContract, ListsEachStickUnderAnIdentifierOfItsOwn) {
    this->fixture.attach(4);
    this->fixture.attach(8);
    const auto all = this->joysticks().attached();
    ASSERT_EQ(all.size(), 2U);
    EXPECT_NE(all[0], all[1]);
    EXPECT_EQ(this->joysticks().open(all[0])->buttonCount(), 4);
    EXPECT_EQ(this->joysticks().open(all[1])->buttonCount(), 8);
}

TYPED_TEST_P(JoysticksContract, OpensNothingThatIsNotAttached) {
    this->fixture.attach(4);
    EXPECT_EQ(this->joysticks().open("no such stick"), nullptr);
}

TYPED_TEST_P(JoysticksContract, MakesEventsWithDifferentNumbersThatAreNotZero) {
    const std::int32_t first = this->newEvent();
    const std::int32_t second = this->newEvent();
    EXPECT_NE(first, 0);
    EXPECT_NE(second, 0);
    EXPECT_NE(first, second);
}

TYPED_TEST_P(JoysticksContract, TellsTheTypesOfItsAxes) {
    this->attachAndOpen();
    EXPECT_EQ(this->device->axisTypes(),
              (std::vector<std::string>{"GUID_XAxis", "GUID_YAxis", "GUID_Slider"}));
}

TYPED_TEST_P(JoysticksContract, ReadsAStickAtRest) {
    this->attachAndOpen();
    EXPECT_EQ(this->stateNow(), JoystickState{});
}

TYPED_TEST_P(JoysticksContract, CannotBeReadWhileItIsNotAcquired) {
    this->fixture.attach(12);
    this->device = this->joysticks().open(this->joysticks().attached().at(0));
    JoystickState state;
    EXPECT_EQ(this->device->read(state), JoystickRead::notAcquired);
    EXPECT_TRUE(this->device->acquire());
    EXPECT_EQ(this->device->read(state), JoystickRead::done);
    this->device->unacquire();
    EXPECT_EQ(this->device->read(state), JoystickRead::notAcquired);
}

TYPED_TEST_P(JoysticksContract, TellsEachChangeOnceAndAReadInItGivesTheState) {
    this->attachAndOpen();
    this->fixture.press(3, true);
    this->fixture.settle();
    this->fixture.press(7, true);
    this->fixture.settle();
    this->fixture.settle();
    this->fixture.press(3, false);
    this->fixture.settle();
    EXPECT_EQ(this->states,
              (std::vector<JoystickState>{this->pressed({3}), this->pressed({3, 7}), this->pressed({7})}));
}

TYPED_TEST_P(JoysticksContract, TellsTheHatInHundredthsOfADegree) {
    this->attachAndOpen();
    for (const int pov : {0, 4500, 9000, 13500, 18000, 22500, 27000, 31500, -1}) {
        this->fixture.turnHat(pov);
        this->fixture.settle();
        EXPECT_EQ(this->stateNow().pov, pov);
    }
    EXPECT_EQ(this->events.size(), 9U);
}

TYPED_TEST_P(JoysticksContract, TellsTheEventThatWasAskedFor) {
    this->attachAndOpen();
    const std::int32_t other = this->newEvent();
    EXPECT_TRUE(this->device->setEventNotification(other));
    this->fixture.press(0, true);
    this->fixture.settle();
    EXPECT_EQ(this->events, std::vector<std::int32_t>{other});
}

TYPED_TEST_P(JoysticksContract, TellsNothingAfterItWasUnacquired) {
    this->attachAndOpen();
    this->device->unacquire();
    this->fixture.press(0, true);
    this->fixture.settle();
    EXPECT_TRUE(this->events.empty());
}

TYPED_TEST_P(JoysticksContract, TellsNothingAfterItWasClosed) {
    this->attachAndOpen();
    this->device.reset();
    this->fixture.press(0, true);
    this->fixture.settle();
    EXPECT_TRUE(this->events.empty());
}

TYPED_TEST_P(JoysticksContract, OfSeveralOnlyTheOpenOneTellsAnything) {
    this->fixture.attach(12);
    this->fixture.attach(12);
    this->device = this->joysticks().open(this->joysticks().attached().at(1));
    this->device->setEventNotification(this->newEvent());
    this->device->acquire();
    this->fixture.press(0, true);
    this->fixture.settle();
    EXPECT_TRUE(this->events.empty());
}

TYPED_TEST_P(JoysticksContract, TellsByOneEventThatItWasPulledOut) {
    this->attachAndOpen();
    this->fixture.setPluggedIn(false);
    this->fixture.settle();
    this->fixture.settle();
    EXPECT_EQ(this->reads, std::vector<JoystickRead>{JoystickRead::inputLost});
    EXPECT_FALSE(this->device->acquire());
    EXPECT_TRUE(this->joysticks().attached().empty());
}

TYPED_TEST_P(JoysticksContract, CanBeAcquiredAgainWhenItIsBack) {
    this->attachAndOpen();
    this->fixture.setPluggedIn(false);
    this->fixture.settle();
    this->fixture.setPluggedIn(true);
    this->fixture.settle();
    EXPECT_EQ(this->reads, (std::vector<JoystickRead>{JoystickRead::inputLost, JoystickRead::inputLost}));
    EXPECT_TRUE(this->device->acquire());
    this->fixture.press(5, true);
    this->fixture.settle();
    EXPECT_EQ(this->states.back(), this->pressed({5}));
}

REGISTER_TYPED_TEST_SUITE_P(JoysticksContract, ListsNothingWhereNothingIsAttached,
                            ListsEachStickUnderAnIdentifierOfItsOwn, OpensNothingThatIsNotAttached,
                            MakesEventsWithDifferentNumbersThatAreNotZero, TellsTheTypesOfItsAxes,
                            ReadsAStickAtRest, CannotBeReadWhileItIsNotAcquired,
                            TellsEachChangeOnceAndAReadInItGivesTheState, TellsTheHatInHundredthsOfADegree,
                            TellsTheEventThatWasAskedFor, TellsNothingAfterItWasUnacquired,
                            TellsNothingAfterItWasClosed, OfSeveralOnlyTheOpenOneTellsAnything,
                            TellsByOneEventThatItWasPulledOut, CanBeAcquiredAgainWhenItIsBack);

}  // namespace quorrin

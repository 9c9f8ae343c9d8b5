#include "robotlink/presence.h"

#include <gtest/gtest.h>

#include "base/program_error.h"
#include "support/intake_form.h"

namespace quorrin {
namespace {

class Presence : public ::testing::Test {
  protected:
    void decide(int first, int second) {
        sensors.humanRaw[1] = first;
        sensors.humanRaw[2] = second;
        decidePresence(sensors, gui);
    }
    VirtualClock clock;
    IntakeForm gui{clock};
    SensorValues sensors;
};

TEST_F(Presence, IsUnknownBeforeTheFirstFrame) {
    EXPECT_EQ(gui.txtHumanLocation.text(), "");
    EXPECT_FALSE(gui.imgHumanLeft.visible());
    EXPECT_FALSE(gui.imgHumanRight.visible());
}

TEST_F(Presence, CountsAPersonOnlyAboveADeviationOf500) {
    decide(2548, 0);
    EXPECT_FALSE(sensors.humanFlags[1]);
    decide(2549, 0);
    EXPECT_TRUE(sensors.humanFlags[1]);
    decide(1548, 0);
    EXPECT_FALSE(sensors.humanFlags[1]);
    decide(1547, 0);
    EXPECT_TRUE(sensors.humanFlags[1]);
}

TEST_F(Presence, DecidesBothSidesOnTheFirstSensor) {
    decide(3000, 2048);
    EXPECT_TRUE(sensors.humanFlags[1]);
    EXPECT_TRUE(sensors.humanFlags[2]);
    EXPECT_TRUE(gui.imgHumanLeft.visible());
    EXPECT_TRUE(gui.imgHumanRight.visible());
    EXPECT_EQ(sensors.humanLocation, 3);
    EXPECT_EQ(gui.txtHumanLocation.text(), "3");

    decide(2048, 4000);
    EXPECT_FALSE(sensors.humanFlags[1]);
    EXPECT_FALSE(sensors.humanFlags[2]);
    EXPECT_FALSE(gui.imgHumanLeft.visible());
    EXPECT_FALSE(gui.imgHumanRight.visible());
    EXPECT_EQ(sensors.humanLocation, 4);
    EXPECT_EQ(gui.txtHumanLocation.text(), "4");
}

TEST_F(Presence, NumbersTheFourPlaces) {
    EXPECT_EQ(humanLocationFrom(false, true), 1);
    EXPECT_EQ(humanLocationFrom(true, false), 2);
    EXPECT_EQ(humanLocationFrom(true, true), 3);
    EXPECT_EQ(humanLocationFrom(false, false), 4);
}

TEST_F(Presence, RunsTheLocationBoxesHandlerOnlyOnAChange) {
    int changes = 0;
    gui.txtHumanLocation.onChange = [&] { ++changes; };
    decide(2048, 0);
    decide(2050, 0);
    EXPECT_EQ(changes, 1);
    decide(3000, 0);
    EXPECT_EQ(changes, 2);
}

TEST_F(Presence, DoesNotWrapASampleThatNoConverterGives) {
    EXPECT_THROW(decide(-32768, 0), ProgramError);
}

}  // namespace
}  // namespace quorrin

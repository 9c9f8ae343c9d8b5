#include <gtest/gtest.h>

#include <cmath>

#include "base/program_error.h"
#include "support/navigator_fixture.h"

namespace quorrin {
namespace {

using Lines = std::vector<std::string>;
using NavigatorSearch = NavigatorFixture;

TEST_F(NavigatorSearch, WithoutSearchTheHeadingIsTheBearingAndTheWordStays) {
    task.CAStatus = "stuck";
    values.binaryHistogram.fill(1);
    values.polarHistogram.fill(500);
    start();
    tick();
    EXPECT_EQ(task.CAStatus, "stuck");
    EXPECT_EQ(link.take(), Lines{ahead});
}

TEST_F(NavigatorSearch, AllFreeIsTotallyOpenAtFullSpeed) {
    values.vfhActive = true;
    start();
    tick();
    EXPECT_EQ(task.CAStatus, "totallyopen");
    EXPECT_EQ(values.displayHeadingDeg, 380);
    EXPECT_EQ(link.take(), Lines{ahead});
}

TEST_F(NavigatorSearch, AllBlockedStopsTheDrivesAndRetries) {
    values.vfhActive = true;
    values.binaryHistogram.fill(1);
    start();
    tick();
    EXPECT_EQ(task.CAStatus, "stuck");
    EXPECT_EQ(values.displayHeadingDeg, -380);
    EXPECT_EQ(link.take(), (Lines{"SuspendDrive 0", "SuspendDrive 1", velocities(0, 0)}));
    values.binaryHistogram.fill(0);
    tick();
    EXPECT_EQ(link.take(), Lines{ahead});
}

TEST_F(NavigatorSearch, AGapTooNarrowStopsThroughZeroSpeeds) {
    values.vfhActive = true;
    values.binaryHistogram[18] = values.binaryHistogram[20] = 1;
    start();
    tick();
    EXPECT_EQ(task.CAStatus, "stuck");
    EXPECT_EQ(values.displayHeadingDeg, -370);
    EXPECT_EQ(link.take(), Lines{velocities(0, 0)});
    EXPECT_EQ(task.forwardSpeed(), 0);
    EXPECT_EQ(task.turnSpeed(), 0);
}

TEST_F(NavigatorSearch, ADetourIsDrivenAndShown) {
    values.vfhActive = true;
    values.binaryHistogram.fill(1);
    for (std::size_t sector = 22; sector <= 24; ++sector) values.binaryHistogram[sector] = 0;
    start();
    tick();
    EXPECT_EQ(task.CAStatus, "openfound");
    EXPECT_EQ(values.displayHeadingDeg, 55);
    EXPECT_EQ(task.desiredHeading(), degToRad(55));
    EXPECT_EQ(task.turnSpeed(), 0.8);
}

TEST_F(NavigatorSearch, TheDensityOfTheChosenSectorSlowsNotThatOfTheGoal) {
    values.vfhActive = true;
    values.binaryHistogram[20] = 1;  // shifts the heading to sector 17
    values.polarHistogram[19] = 90;
    values.polarHistogram[17] = 50;
    start();
    tick();
    EXPECT_EQ(task.CAStatus, "openwithchange");
    const double error = std::fabs(degToRad(-15));
    EXPECT_EQ(task.forwardSpeed(), 0.5 * 0.3 * (0.25 / error));
}

TEST_F(NavigatorSearch, ASaturationOfZeroIsFatalOnlyWhileTheSearchRuns) {
    controls.txtTh2.setText("0");
    start();
    EXPECT_NO_THROW(tick());
    values.vfhActive = true;
    EXPECT_THROW(tick(), ProgramError);
}

TEST_F(NavigatorSearch, ASaturationThatIsNoNumberIsFatalOnlyWhenRead) {
    controls.txtTh2.setText("much");
    start();
    EXPECT_NO_THROW(tick());
    values.vfhActive = true;
    EXPECT_THROW(tick(), ProgramError);
}

}  // namespace
}  // namespace quorrin

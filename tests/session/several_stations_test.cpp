#include <gtest/gtest.h>

#include <memory>

#include "support/station_bench.h"

namespace quorrin {
namespace {

TEST(SeveralStations, ShareOneClockAndNothingElse) {
    VirtualClock clock;
    StationBench wandering(clock);
    StationBench driven(clock);
    StationBench resting(clock);
    for (StationBench* bench : {&wandering, &driven, &resting}) bench->startSession();
    driven.values.requestWander = false;
    driven.values.requestJoy = true;
    resting.values.requestWander = false;
    clock.runFor(300);
    for (StationBench* bench : {&wandering, &driven}) bench->sensorFrames(11);
    clock.runFor(4500);
    EXPECT_EQ(wandering.values.robotMode, kModeWondering);
    EXPECT_EQ(driven.values.robotMode, kModeJoy);
    EXPECT_EQ(resting.values.robotMode, kModeIdle);
    EXPECT_EQ(resting.programs.hasWindow(StationBench::kMotionTitle), false);
    EXPECT_EQ(wandering.gui.txtRobotStatus.text(), "wondering");
    EXPECT_EQ(driven.gui.txtRobotStatus.text(), "JOY");
}

TEST(SeveralStations, AHundredLiveInOneProcess) {
    VirtualClock clock;
    std::vector<std::unique_ptr<StationBench>> benches;
    for (int i = 0; i < 100; ++i) {
        benches.push_back(std::make_unique<StationBench>(clock));
        benches.back()->startSession();
    }
    for (auto& bench : benches) bench->values.steeringLevel = 1;
    clock.runFor(1000);
    benches.front()->values.steeringLevel = 2;
    for (std::size_t i = 1; i < benches.size(); ++i) EXPECT_EQ(benches[i]->values.steeringLevel, 1);
    EXPECT_EQ(benches.back()->values.startStep, 2);
}

}  // namespace
}  // namespace quorrin

#include "support/fake_link.h"

#include <gmock/gmock.h>

namespace quorrin {
namespace {

using testing::ElementsAre;

TEST(FakeLink, WritesEachOperationAsOneLineInOrder) {
    FakeLink link;
    link.BindGateway("motcom");
    link.SetDriveVelocities({-120, 120, -32768, -32768, -32768, -32768});
    link.MoveDrivesTimed({1, 2, 3, 4, 5, 6}, 700);
    stopDrives(link);
    EXPECT_THAT(link.operations(),
                ElementsAre("BindGateway motcom", "SetDriveVelocities -120 120 -32768 -32768 -32768 -32768",
                            "MoveDrivesTimed 1 2 3 4 5 6 700", "SuspendDrive 0", "SuspendDrive 1"));
    EXPECT_EQ(link.count("SuspendDrive"), 2u);
    EXPECT_TRUE(link.asked("SuspendDrive 1"));
    EXPECT_FALSE(link.asked("SuspendDrive 2"));
}

TEST(FakeLink, TakeEmptiesTheLog) {
    FakeLink link;
    link.RequestImage();
    EXPECT_THAT(link.take(), ElementsAre("RequestImage"));
    EXPECT_TRUE(link.operations().empty());
}

TEST(FakeLink, TwoLinksShareALogUnderTheirPrefixes) {
    std::vector<std::string> log;
    FakeLink motion(log, "myRobot.");
    FakeLink multimedia(log, "robotTI.");
    multimedia.WritePowerByte(63);
    motion.SuspendDrive(0);
    EXPECT_THAT(log, ElementsAre("robotTI.WritePowerByte 63", "myRobot.SuspendDrive 0"));
    EXPECT_EQ(motion.count("SuspendDrive"), 1u);
    EXPECT_EQ(motion.count("WritePowerByte"), 0u);
}

TEST(FakeLink, RaisesFramesInVirtualTimeAndNeverInsideThemselves) {
    VirtualClock clock;
    FakeLink link;
    std::vector<std::int64_t> times;
    link.SensorFrame.handler = [&] {
        times.push_back(clock.nowMs());
        clock.block(30);
        clock.yield();
    };
    FakeLink::arriveAt(clock, 10, link.SensorFrame);
    FakeLink::arriveAt(clock, 20, link.SensorFrame);
    clock.runUntil(100);
    EXPECT_THAT(times, ElementsAre(10, 40));
}

}  // namespace
}  // namespace quorrin

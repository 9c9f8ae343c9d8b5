#include "robotlink/gesture.h"

#include <gtest/gtest.h>

#include "support/fake_link.h"

namespace quorrin {
namespace {

class TimedLink : public FakeLink {
  public:
    explicit TimedLink(Clock& clock) : clock_(clock) {}
    void MoveServosTimed(const SixValues& values, Integer durationMs) override {
        FakeLink::MoveServosTimed(values, durationMs);
        times.push_back(clock_.nowMs());
    }
    std::vector<std::int64_t> times;

  private:
    Clock& clock_;
};

TEST(Gesture, MovesThroughSixPositionsAndWaitsForEach) {
    VirtualClock clock;
    TimedLink robot(clock);
    fixedGesture({3600, 3650, 2900, 3510, 3490}, robot, clock);
    EXPECT_EQ(robot.operations(),
              (std::vector<std::string>{"MoveServosTimed 3900 3650 3400 3500 3500 4200 1000",
                                        "MoveServosTimed 3900 3000 2900 3500 3500 4900 1000",
                                        "MoveServosTimed 3600 3650 3400 3500 3500 3500 1000",
                                        "MoveServosTimed 3600 4250 3800 2880 4880 4200 1000",
                                        "MoveServosTimed 3900 3650 2900 3500 3500 4200 1000",
                                        "MoveServosTimed 3600 3650 2900 0 3510 3490 2000"}));
    EXPECT_EQ(robot.times, (std::vector<std::int64_t>{0, 1000, 2000, 3000, 4000, 5000}));
    EXPECT_EQ(clock.nowMs(), 7000);
}

}  // namespace
}  // namespace quorrin

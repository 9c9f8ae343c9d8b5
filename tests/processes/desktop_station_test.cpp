// The station with windows, as a program on Qt's platform without a screen.
#include "processes/process_fixture.h"

namespace quorrin {
namespace {

struct DesktopStation : ProcessTest {
    std::unique_ptr<Process> windows() {
        return run({"env", "QT_QPA_PLATFORM=offscreen", bin + "/quorrin-station"}, "windows.out");
    }
    // The session has begun with its login.
    bool comesUp() const {
        return eventually(
            [this] {
                return windowHolder(runFolder(), "Quorrin Station") != 0 &&
                       fileText(folder.path() + "/s/quorrin/flight-1.jsonl").find("\"login\"") !=
                           std::string::npos;
            },
            20);
    }
};

TEST_F(DesktopStation, EndsBySigtermWithZeroAndLeavesNoProcess) {
    const auto theStation = windows();
    ASSERT_TRUE(comesUp()) << theStation->output();
    theStation->signal(SIGTERM);
    EXPECT_EQ(theStation->ends(10), 0) << theStation->output();
    EXPECT_TRUE(gatewaysGone(0));
    EXPECT_EQ(windowHolder(runFolder(), "Quorrin Station"), 0);
}

TEST_F(DesktopStation, EndsByCtrlCWithZero) {
    const auto theStation = windows();
    ASSERT_TRUE(comesUp()) << theStation->output();
    theStation->signal(SIGINT);
    EXPECT_EQ(theStation->ends(10), 0) << theStation->output();
}

TEST_F(DesktopStation, TellsThatAnotherStationRunsAndWaitsForItsBoxToBeRead) {
    const auto first = windows();
    ASSERT_TRUE(comesUp()) << first->output();
    const auto second = run({"env", "QT_QPA_PLATFORM=offscreen", bin + "/quorrin-station"}, "second.out");
    EXPECT_TRUE(second->says("quorrin-station: another station runs on " + folder.path(), 15))
        << second->output();
    EXPECT_TRUE(second->running());
    first->signal(SIGTERM);
    EXPECT_EQ(first->ends(10), 0);
}

}  // namespace
}  // namespace quorrin

// The station with windows on real clocks, links and gateways, against the simulated robot as a program.
#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>

#include "apps/real_station.h"
#include "base/program_error.h"
#include "desktop/forms/window_boxes.h"
#include "desktop/station_windows.h"
#include "support/process.h"
#include "support/temp_folder.h"

namespace quorrin {
namespace {

QWidget* window(const char* form) {
    for (QWidget* top : QApplication::topLevelWidgets())
        if (top->objectName() == form) return top;
    return nullptr;
}

class RealWindows : public testing::Test {
  protected:
    RealWindows() {
        for (const auto& [name, sub] : {std::pair{"XDG_DATA_HOME", "/d"}, std::pair{"XDG_CONFIG_HOME", "/c"},
                                        std::pair{"XDG_CACHE_HOME", "/k"}, std::pair{"XDG_STATE_HOME", "/s"}})
            ::setenv(name, (folder.path() + sub).c_str(), 1);
        robot = std::make_unique<Process>(
            std::vector<std::string>{QUORRIN_BIN_DIR "/quorrin-robot", "--headless", "--site", "office",
                                     "--listen", "127.127.0.1", "--port", "10001"},
            Process::Settings{folder.path()}, "robot.out");
    }

    TempFolder folder;
    std::unique_ptr<Process> robot;
};

TEST_F(RealWindows, TheOperatorLogsInByKeyboardSeesTheRobotWanderAndCloses) {
    RealStation real;
    ASSERT_EQ(real.missingFolder, "");
    ASSERT_TRUE(real.claim());
    real.firstStart();
    WindowBoxes boxes(real.time, [&] { real.clock.rethrowIfEnded(); });
    Station station({real.time, real.files, real.programs, boxes, real.recordedMyRobot, real.recordedRobotTI,
                     real.host.folders, [] { throw ProgramEnd{}; }});
    StationWindows windows(station, OperatorActs(real.time));
    real.time.setBeforeBlock([&] { windows.beforeBlock(); });
    real.beginSession(station);
    real.time.post([&] { station.startAtLogin(); });

    bool wandered = false;
    bool closed = false;
    TimerMM hand(real.clock, [&] {
        if (station.login.shown() && QApplication::focusWidget() != nullptr) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        } else if (!closed && station.gui.txtRobotStatus.text() == "wondering") {
            wandered = station.values.motLinkUp && station.values.tiLinkUp;
            closed = true;
            window("frmGUI")->close();
        }
    });
    hand.setInterval(100);
    hand.setEnabled(true);
    TimerMM deadline(real.clock, [&] { throw std::runtime_error("nothing came of it: " + robot->output()); });
    deadline.setPeriodic(false);
    deadline.setInterval(60'000);
    deadline.setEnabled(true);

    EXPECT_THROW(real.clock.run(), ProgramEnd);
    EXPECT_TRUE(wandered);
    EXPECT_TRUE(eventually(
        [&] {
            return windowHolder(real.host.run, "Quorrin Gateway_MotionControl") == 0 &&
                   windowHolder(real.host.run, "Quorrin Gateway_Multimedia") == 0;
        },
        5))
        << "a gateway was left behind";
}

}  // namespace
}  // namespace quorrin

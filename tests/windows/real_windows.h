// A station with windows on real clocks, links and gateways, and the simulated robot as a program beside it.
// The operator's hand looks ten times a second and logs in by keyboard; a test says what it does then.
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>
#include <functional>
#include <memory>
#include <stdexcept>

#include "apps/real_station.h"
#include "base/program_error.h"
#include "desktop/forms/window_boxes.h"
#include "desktop/station_windows.h"
#include "support/process.h"
#include "support/temp_folder.h"

namespace quorrin {

// A session of its own, put together as the program does it.
class RealSession {
  public:
    explicit RealSession(RealStation& real) : real_(real) {
        real.time.setBeforeBlock([this] { windows.beforeBlock(); });
        real.beginSession(station);
        real.time.post([this] { station.startAtLogin(); });
    }

    // Until something ends it, which comes out of here. `hand` is called once there is no login any more.
    void run(const std::function<void()>& hand) {
        TimerMM looks(real_.clock, [&] {
            if (!station.login.shown()) return hand();
            if (QApplication::focusWidget() != nullptr)
                QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        });
        looks.setInterval(100);
        looks.setEnabled(true);
        TimerMM deadline(real_.clock, [] { throw std::runtime_error("nothing came of it"); });
        deadline.setPeriodic(false);
        deadline.setInterval(60'000);
        deadline.setEnabled(true);
        real_.clock.run();
    }

  private:
    RealStation& real_;
    WindowBoxes boxes_{real_.time, [this] { real_.clock.rethrowIfEnded(); }};

  public:
    Station station{{real_.time, real_.files, real_.programs, boxes_, real_.recordedMyRobot,
                     real_.recordedRobotTI, real_.host.folders, [] { throw ProgramEnd{}; }}};
    StationWindows windows{station, OperatorActs(real_.time)};
};

class RealWindows : public testing::Test {
  protected:
    RealWindows() {
        for (const auto& [name, sub] : {std::pair{"XDG_DATA_HOME", "/d"}, std::pair{"XDG_CONFIG_HOME", "/c"},
                                        std::pair{"XDG_CACHE_HOME", "/k"}, std::pair{"XDG_STATE_HOME", "/s"}})
            ::setenv(name, (folder.path() + sub).c_str(), 1);
        robot = std::make_unique<Process>(
            std::vector<std::string>{QUORRIN_BIN_DIR "/quorrin-robot", "--headless", "--site", "office",
                                     "--listen", "127.127.0.1", "--port", "10001", "--truth", truthFile()},
            Process::Settings{folder.path()}, "robot.out");
    }

    std::string truthFile() const { return folder.path() + "/truth.jsonl"; }
    // What the robot has told last of where it is and what it does.
    std::string lastTruth() const {
        const std::string all = fileText(truthFile());
        const std::size_t end = all.rfind('\n');
        if (end == std::string::npos || end == 0) return "";
        const std::size_t before = all.rfind('\n', end - 1);
        return all.substr(before + 1, end - before - 1);
    }
    bool truthSays(const std::string& text) const { return lastTruth().find(text) != std::string::npos; }

    static QWidget* window(const char* form) {
        for (QWidget* top : QApplication::topLevelWidgets())
            if (top->objectName() == form) return top;
        return nullptr;
    }

    TempFolder folder;
    std::unique_ptr<Process> robot;
};

}  // namespace quorrin

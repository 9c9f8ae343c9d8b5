// A real station with all its live views open while its robot wanders: what a paint costs the main thread,
// and how late the control tick comes. tools/proofs/paint_cost starts it on a screen beside a robot.
//
// usage: paint_session SECONDS. Prints one JSON object; status 0 when it could measure, whatever the figures
// say, 1 otherwise. Logs in by itself with the stored or the default address.
#include <cstdio>
#include <iostream>
#include <nlohmann/json.hpp>

#include "apps/real_station.h"
#include "base/program_error.h"
#include "desktop/operator_acts.h"
#include "desktop/station_windows.h"
#include "desktop/theme/theme.h"
#include "desktop/views/live_views.h"
#include "paint_meter.h"
#include "platform/host/stopwatch.h"
#include "platform/host/terminal.h"
#include "platform/host/terminal_boxes.h"
#include "platform/timer_mm.h"

namespace quorrin::bench {
namespace {

constexpr int kLookMs = 200;
constexpr double kPatience_s = 60;

class PaintSession {
  public:
    PaintSession(MeteredApplication& application, double seconds)
        : application_(application), seconds_(seconds) {}

    int run() {
        if (!real_.claim()) return fail("another station runs here");
        real_.firstStart();
        look_.setInterval(kLookMs);
        look_.setEnabled(true);
        real_.time.setBeforeBlock([this] { windows_.beforeBlock(); });
        real_.beginSession(station_);
        tick_.began();
        real_.time.post([this] {
            station_.startAtLogin();
            station_.login.cmdOK.operatorClick();
        });
        try {
            real_.clock.run();
        } catch (const ProgramEnd&) {
            real_.window.hide();
        }
        return report();
    }

  private:
    static int fail(const std::string& why) {
        std::cerr << "paint_session: " << why << std::endl;
        return 1;
    }

    void look() {
        const double passed = watch_.seconds();
        if (!tick_.measuring) {
            if (station_.gui.txtRobotStatus.text() == "wondering") open();
            if (passed > kPatience_s) QCoreApplication::exit();
            return;
        }
        if (passed - openedAt_ < seconds_) return;
        viewsRan_ = views_->panel().running();
        tick_.measuring = application_.measuring = false;
        look_.setEnabled(false);
        real_.time.post([this] { station_.gui.cmdExit.operatorClick(); });
    }

    // The engineering panel as the operator has it, and its live views whole, in their own window.
    void open() {
        openedAt_ = watch_.seconds();
        tick_.measuring = application_.measuring = true;
        station_.gui.fraSensor.setVisible(true);
        for (QWidget* widget : QApplication::allWidgets())
            if (auto* const views = dynamic_cast<LiveViews*>(widget)) views_ = views;
        if (views_ == nullptr) return QCoreApplication::exit();
        views_->detach();
        views_->ownWindow()->resize(1240, 720);
    }

    int report() const {
        if (openedAt_ > 0 && views_ == nullptr) return fail("the engineering panel has no live views");
        if (application_.paints.empty() || tick_.late.empty()) return fail("it did not come to wander");
        if (!viewsRan_) return fail("the views were not open to the end");
        const auto& paints = application_.paints;
        nlohmann::ordered_json figures = {{"seconds", seconds_},
                                          {"paints", paints.size()},
                                          {"paint_cpu_ms",
                                           {{"p50", percentile(paints, 0.5)},
                                            {"p99", percentile(paints, 0.99)},
                                            {"p99.9", percentile(paints, 0.999)},
                                            {"worst", percentile(paints, 1)}}},
                                          {"paint_wall_ms",
                                           {{"p99", percentile(application_.paintWalls, 0.99)},
                                            {"worst", percentile(application_.paintWalls, 1)}}}};
        tick_.addFigures(figures);
        std::cout << figures.dump() << std::endl;
        return 0;
    }

    MeteredApplication& application_;
    double seconds_;
    Stopwatch watch_;
    Terminal terminal_;
    RealStation real_;
    TerminalBoxes answered_{terminal_};
    RecordedBoxes boxes_{answered_, real_.recorder};
    TickMeter tick_{real_.myRobot, real_.recorder, real_.time, real_.clock};
    Station station_{{real_.time,
                      real_.files,
                      real_.programs,
                      boxes_,
                      tick_,
                      real_.recordedRobotTI,
                      real_.host.folders,
                      [] { throw ProgramEnd{}; },
                      {},
                      &real_.recordedSticks}};
    StationWindows windows_{station_, OperatorActs(real_.time)};
    LiveViews* views_ = nullptr;
    TimerMM look_{real_.clock, [this] { look(); }};
    double openedAt_ = 0;
    bool viewsRan_ = false;
};

}  // namespace
}  // namespace quorrin::bench

int main(int argc, char** argv) {
    using namespace quorrin;
    if (argc != 2) {
        std::cerr << "usage: paint_session SECONDS" << std::endl;
        return 1;
    }
    const double seconds = std::atof(argv[1]);
    bench::MeteredApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    applyTheme(application, lightTheme());
    return bench::PaintSession(application, seconds).run();
}

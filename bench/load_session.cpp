// A real station without windows, with its control tick timed: what the proofs put remote clients on.
//
// usage: load_session. Logs in by itself with the stored or the default address and says a status line a
// second, as the headless station does. Takes orders from standard input, one a line:
//
//   measure   lateness and commands are counted from now on
//   type N    the operator types a text of N characters into the position that clients are told
//   tell      prints one JSON object: what has been measured since, and who is connected
//   end       the operator's Exit, as are the end of the input and SIGTERM
//
// Status 0 after the shutdown, 1 when it cannot start.
#include <unistd.h>

#include <QCoreApplication>
#include <QSocketNotifier>
#include <iostream>
#include <nlohmann/json.hpp>
#include <sstream>

#include "apps/end_by_operator.h"
#include "apps/real_station.h"
#include "base/program_error.h"
#include "console/status_line.h"
#include "platform/host/terminal.h"
#include "platform/host/terminal_boxes.h"
#include "platform/qt/signal_watch.h"
#include "platform/timer_mm.h"
#include "tick_meter.h"

namespace quorrin::bench {
namespace {

constexpr int kStatusMs = 1000;

class LoadSession {
  public:
    int run() {
        if (!real_.claim()) return fail("another station runs here");
        real_.firstStart();
        status_.setInterval(kStatusMs);
        status_.setEnabled(true);
        countCommands();
        QObject::connect(&input_, &QSocketNotifier::activated, &input_, [this] { readOrders(); });
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
        return 0;
    }

  private:
    static int fail(const std::string& why) {
        std::cerr << "load_session: " << why << std::endl;
        return 1;
    }

    // Each drive command steps the counter.
    void countCommands() {
        TextBox& counter = station_.gui.txtCommandCount;
        counter.onChange = [this, inner = counter.onChange] {
            ++commands_;
            inner();
        };
    }

    void readOrders() {
        char bytes[4096];
        const ssize_t got = ::read(STDIN_FILENO, bytes, sizeof bytes);
        if (got <= 0) {
            input_.setEnabled(false);
            return follow("end");
        }
        orders_.append(bytes, static_cast<std::size_t>(got));
        for (std::size_t end = orders_.find('\n'); end != std::string::npos; end = orders_.find('\n')) {
            const std::string order = orders_.substr(0, end);
            orders_.erase(0, end + 1);
            follow(order);
        }
    }

    void follow(const std::string& order) {
        std::istringstream words(order);
        std::string verb;
        std::size_t number = 0;
        words >> verb >> number;
        if (verb == "measure") measure();
        if (verb == "tell") terminal_.line(figures().dump());
        if (verb == "type") {
            // Another letter each time, or it would be no change.
            letter_ = letter_ == 'z' ? 'a' : static_cast<char>(letter_ + 1);
            real_.time.arrive([this, text = std::string(number, letter_)] {
                station_.gui.txtRobotCurrX.operatorEdit(text);
            });
        }
        if (verb == "end") real_.time.arrive([this] { endByOperator(station_); });
    }

    void measure() {
        beganMs_ = real_.clock.nowMs();
        tick_.measuring = true;
        tick_.late.clear();
        tick_.heldUp = 0;
        commands_ = 0;
    }

    nlohmann::ordered_json figures() const {
        nlohmann::ordered_json all = {
            {"measured_s", static_cast<double>(real_.clock.nowMs() - beganMs_) / 1000},
            {"drive_commands_seen", commands_},
            {"lines_of_the_list", station_.gui.ConnectionList.count()},
            {"turned_away", real_.sockets.shed()}};
        tick_.addFigures(all);
        return all;
    }

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
                      &real_.recordedSticks,
                      &real_.recordedSockets}};
    const std::int64_t startMs_ = real_.clock.nowMs();
    TimerMM status_{
        real_.clock, [this] {
            terminal_.line(statusLine(station_.values, station_.gui.txtRobotStatus.text(),
                                      station_.gui.ConnectionList.count() > 0,
                                      static_cast<double>(real_.clock.nowMs() - startMs_) / 1000));
        }};
    const SignalWatch signals_{real_.time, [this] { endByOperator(station_); }};
    QSocketNotifier input_{STDIN_FILENO, QSocketNotifier::Read};
    std::string orders_;
    std::int64_t beganMs_ = 0;
    long commands_ = 0;
    char letter_ = 'a';
};

}  // namespace
}  // namespace quorrin::bench

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    return quorrin::bench::LoadSession().run();
}

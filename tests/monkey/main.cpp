// The monkey's program: whole stations with their windows and a simulated robot, in virtual time, one after
// the other.
//
//   test-monkey [--seed N] [--minutes M | --deeds N]
//
// Each station begins at its login with the stored address and lives until the monkey ends it, a program
// error ends it, or 5,000 deeds are done. Ends with 0, and prints what was done and how the stations ended;
// anything else than the ends that the station documents (its shutdown, a ProgramError) is left to end the
// process, which the sanitizers report.
#include <QApplication>
#include <QTimer>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <map>
#include <memory>

#include "desktop/station_windows.h"
#include "desktop/theme/theme.h"
#include "monkey/monkey.h"
#include "platform/host/stopwatch.h"
#include "platform/virtual/memory_files.h"
#include "platform/virtual/scripted_boxes.h"
#include "platform/virtual/scripted_programs.h"
#include "platform/virtual/virtual_clock.h"
#include "robot/direct_link.h"
#include "session/station.h"
#include "support/robot_room.h"

namespace quorrin {
namespace {

constexpr int kDeedsOfOneStation = 5000;

struct Options {
    std::uint32_t seed = 1;
    double minutes = 0;
    std::int64_t deeds = 2000;
};

struct Ends {
    std::int64_t deeds = 0;
    std::map<std::string, int> stations;  // how each ended
    std::map<std::string, std::int64_t> done;
};

struct Life {
    explicit Life(std::uint32_t seed) : robot(shippedSite("office"), seed), link(clock, robot, files) {
        for (const char* folder : {"/app", "/windows", "/voice"}) files.createFolder(folder);
        files.put("/app/office.bmp", planFile("office.bmp"));
        files.put("/app/office_s.bmp", planFile("office_s.bmp"));
        programs.onStart = [this](const std::string& name) { link.programStarted(name); };
        programs.onClose = [this](const std::string& title, bool found) {
            if (found) link.windowClosed(title);
        };
        sticks.attach();
        station = std::make_unique<Station>(StationPorts{clock,
                                                         files,
                                                         programs,
                                                         boxes,
                                                         link.myRobot(),
                                                         link.robotTI(),
                                                         {"/app", "/windows", "/voice", "/bin"},
                                                         [] { throw ProgramEnd{}; },
                                                         [](const std::string&) {},
                                                         &sticks});
        windows = std::make_unique<StationWindows>(*station, OperatorActs(clock));
        clock.setBeforeBlock([this] { windows->beforeBlock(); });
    }

    static std::string planFile(const std::string& name) {
        std::ifstream in(std::string(QUORRIN_SOURCE_DIR) + "/share/" + name, std::ios::binary);
        std::stringstream bytes;
        bytes << in.rdbuf();
        return bytes.str();
    }

    VirtualClock clock;
    MemoryFiles files;
    ScriptedPrograms programs;
    ScriptedBoxes boxes;
    SimulatedRobot robot;
    DirectLink link;
    ScriptedJoysticks sticks;
    std::unique_ptr<Station> station;
    std::unique_ptr<StationWindows> windows;
};

// One station's life, as far as the monkey lets it. The event loop itself is not run: what Qt has to deliver
// is delivered between two deeds.
std::string live(std::uint32_t seed, std::int64_t deeds, Ends& ends) {
    Life life(seed);
    Monkey monkey(seed, life.sticks);
    QTimer menus;
    QObject::connect(&menus, &QTimer::timeout, &menus, [&] { monkey.leaveMenu(); });
    menus.start(1);
    std::string end = "still running";
    try {
        life.clock.post([&] { life.station->startAtLogin(); });
        life.clock.runFor(1);
        // It would not find its way through the login often enough.
        if (seed % 4 != 0) life.station->login.cmdOK.operatorClick();
        for (std::int64_t i = 0; i < deeds; ++i) {
            monkey.act();
            ++ends.deeds;
            QApplication::processEvents();
            life.clock.runFor(monkey.pauseMs());
        }
    } catch (const ProgramEnd&) {
        end = "ended by its operator";
    } catch (const ProgramError& error) {
        end = "program error in " + life.clock.failedIn() + ": " + error.what();
    }
    for (const auto& [deed, count] : monkey.deeds()) ends.done[deed] += count;
    return end;
}

bool read(int argc, char** argv, Options& options) {
    for (int i = 1; i + 1 < argc; i += 2) {
        if (std::strcmp(argv[i], "--seed") == 0) {
            options.seed = static_cast<std::uint32_t>(std::atol(argv[i + 1]));
        } else if (std::strcmp(argv[i], "--minutes") == 0) {
            options.minutes = std::atof(argv[i + 1]);
        } else if (std::strcmp(argv[i], "--deeds") == 0) {
            options.deeds = std::atol(argv[i + 1]);
        } else {
            return false;
        }
    }
    return argc % 2 == 1;
}

int main(const Options& options) {
    Ends ends;
    const Stopwatch watch;
    for (std::uint32_t seed = options.seed;; ++seed) {
        const bool timed = options.minutes > 0;
        if (timed ? watch.seconds() >= options.minutes * 60 : ends.deeds >= options.deeds) break;
        const std::int64_t left = timed ? kDeedsOfOneStation : options.deeds - ends.deeds;
        ++ends.stations[live(seed, std::min<std::int64_t>(left, kDeedsOfOneStation), ends)];
    }
    std::printf("%lld deeds\n", static_cast<long long>(ends.deeds));
    for (const auto& [deed, count] : ends.done)
        std::printf("  %-10s %lld\n", deed.c_str(), static_cast<long long>(count));
    for (const auto& [end, count] : ends.stations) std::printf("%6d stations: %s\n", count, end.c_str());
    return 0;
}

}  // namespace
}  // namespace quorrin

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    quorrin::Options options;
    if (!quorrin::read(argc, argv, options)) {
        std::fputs("usage: test-monkey [--seed N] [--minutes M | --deeds N]\n", stderr);
        return 2;
    }
    int none = 1;
    QApplication application(none, argv);
    quorrin::applyTheme(application, quorrin::lightTheme());
    return quorrin::main(options);
}

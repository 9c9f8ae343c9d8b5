// The simulated robot as a program: site, server, truth file, and a window where there is a display.
//
// Ends with 0 when it is told to end, 2 when it cannot start, 3 on a program error.
#include <QApplication>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <memory>

#include "apps/camera_pictures.h"
#include "base/program_error.h"
#include "platform/host/host_folders.h"
#include "platform/host/posix_files.h"
#include "platform/qt/qt_clock.h"
#include "platform/qt/qt_streams.h"
#include "platform/qt/signal_watch.h"
#include "robot/robot_options.h"
#include "robot/robot_server.h"
#include "robot/truth.h"
#include "robot/window/site_view.h"

namespace quorrin {
namespace {

constexpr int kCannotStart = 2;
constexpr int kProgramError = 3;

void say(const std::string& line) {
    std::cout << line << std::endl;
}

bool hasDisplay() {
    const char* x = std::getenv("DISPLAY");
    const char* wayland = std::getenv("WAYLAND_DISPLAY");
    return (x != nullptr && *x != '\0') || (wayland != nullptr && *wayland != '\0');
}

SimulatedRobot makeRobot(const RobotOptions& options, Files& files, const std::string& sitesFolder) {
    Site site = loadSite(options.site, sitesFolder, files);
    std::vector<Fault> scenario;
    if (!options.scenario.empty()) {
        const auto text = files.read(options.scenario);
        if (!text) throw SiteError("cannot read the scenario file " + options.scenario);
        scenario = parseScenario(*text, options.scenario);
    }
    return SimulatedRobot(std::move(site), options.seed, std::move(scenario));
}

CameraSetup cameraOf(const RobotOptions& options, Files& files) {
    CameraSetup camera;
    camera.size = {options.cameraWidth, options.cameraHeight};
    camera.rate = options.cameraRate;
    if (options.camera.empty()) return camera;
    const auto pictures =
        std::make_shared<StandInPictures>(files, pictureFileReader(files), options.camera, camera.size, say);
    camera.standIn = [pictures] { return pictures->next(); };
    return camera;
}

int runRobotProgram(const RobotOptions& options, bool window) {
    PosixFiles files;
    const HostFolders host = hostFolders();
    SimulatedRobot robot = makeRobot(options, files, host.share + "/sites");

    std::ofstream truth;
    if (!options.truth.empty()) {
        truth.open(options.truth, std::ios::trunc);
        if (!truth) throw SiteError("cannot write the truth file " + options.truth);
    }

    QtClock clock;
    QtStreams streams(clock, host.run);
    RobotServer server(clock, streams, robot, say, cameraOf(options, files));
    const std::string error = server.listen(options.listen, options.port);
    if (!error.empty()) throw SiteError(error);
    say("quorrin-robot in site " + robot.site().name + ", listening on " + options.listen + " ports " +
        std::to_string(options.port) + " and " + std::to_string(options.port + 1));

    std::unique_ptr<SiteView> view;
    const auto end = [&] {
        server.close("the simulated robot ends");
        throw ProgramEnd{};
    };
    if (window) {
        view = std::make_unique<SiteView>(robot);
        view->onClosed = [&] { clock.post(end); };
        view->show();
    }
    robot.onTruth = [&] {
        if (truth.is_open()) {
            truth << truthLine(robot) << '\n' << std::flush;
            if (!truth) {
                say("cannot write the truth file " + options.truth + " any more");
                truth.close();
            }
        } else {
            robot.takeSounds();
        }
        if (view) view->refresh();
    };
    const SignalWatch signals(clock, end);
    try {
        clock.run();
    } catch (const ProgramEnd&) {
    }
    return 0;
}

int start(int argc, char** argv) {
    const RobotOptions options = parseRobotOptions({argv + 1, argv + argc});
    if (!options.error.empty()) {
        std::cerr << "quorrin-robot: " << options.error << "\n";
        return kCannotStart;
    }
    if (options.help) {
        std::cout << robotUsage();
        return 0;
    }
    if (options.version) {
        std::cout << "quorrin-robot " QUORRIN_VERSION "\n";
        return 0;
    }
    const bool window = !options.headless && hasDisplay();
    const std::unique_ptr<QCoreApplication> application(window ? new QApplication(argc, argv)
                                                               : new QCoreApplication(argc, argv));
    QCoreApplication::setApplicationName("quorrin-robot");
    try {
        return runRobotProgram(options, window);
    } catch (const SiteError& error) {
        std::cerr << "quorrin-robot: " << error.what() << "\n";
        return kCannotStart;
    } catch (const std::exception& error) {
        std::cerr << "quorrin-robot: program error: " << error.what() << "\n";
        return kProgramError;
    }
}

}  // namespace
}  // namespace quorrin

int main(int argc, char** argv) {
    return quorrin::start(argc, argv);
}

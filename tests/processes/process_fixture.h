// The built programs, in folders of the test's own.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>

#include "platform/host/lock_window.h"
#include "platform/host/posix_files.h"
#include "support/process.h"
#include "support/temp_folder.h"

namespace quorrin {

class ProcessTest : public ::testing::Test {
  protected:
    const std::string bin = QUORRIN_BIN_DIR;
    const std::string source = QUORRIN_SOURCE_DIR;
    TempFolder folder;
    PosixFiles files;
    const std::string motIni = folder.path() + "/c/quorrin/gateway_mot.ini";
    const std::string tiIni = folder.path() + "/c/quorrin/gateway_ti.ini";

    std::unique_ptr<Process> run(const std::vector<std::string>& command, const std::string& outputName,
                                 bool diskFull = false) {
        return std::make_unique<Process>(command, Process::Settings{folder.path(), diskFull}, outputName);
    }
    std::unique_ptr<Process> station(bool diskFull = false) {
        return run({bin + "/quorrin-station-headless"}, "station.out", diskFull);
    }
    std::unique_ptr<Process> pythonRobot() {
        return run({"python3", source + "/examples/robot.py"}, "robot.out");
    }

    void storeAddress(const std::string& address, const std::string& port, const std::string& tiPort) {
        files.createFolder(folder.path() + "/c/quorrin");
        const auto profile = [&](const std::string& p) {
            return "[WiFi]\nWiFiIP=" + address + "\nWiFiPort=" + p + "\nBTAddress=0000000000\n";
        };
        files.writeWhole(motIni, profile(port));
        files.writeWhole(tiIni, profile(tiPort));
    }

    pid_t motionGateway() const { return windowHolder(runFolder(), "Quorrin Gateway_MotionControl"); }
    pid_t multimediaGateway() const { return windowHolder(runFolder(), "Quorrin Gateway_Multimedia"); }
    bool gatewaysGone(double deadline_s) const {
        return eventually([this] { return motionGateway() == 0 && multimediaGateway() == 0; }, deadline_s);
    }
    std::string log(const std::string& program) const {
        return fileText(folder.path() + "/s/quorrin/" + program + ".log");
    }
    bool logSays(const std::string& program, const std::string& text, double deadline_s) const {
        return eventually([&] { return log(program).find(text) != std::string::npos; }, deadline_s);
    }
    std::string runFolder() const { return folder.path() + "/d/quorrin/run"; }
};

}  // namespace quorrin

// A session of real gateways, a real clock, a real client and the simulated robot as a program: what the
// flight recorder wrote of it replays to the same operations, byte for byte.
#include <gmock/gmock.h>

#include "base/program_error.h"
#include "platform/host/posix_append_file.h"
#include "platform/host/posix_files.h"
#include "platform/host/posix_programs.h"
#include "platform/qt/qt_clock.h"
#include "platform/qt/qt_sockets.h"
#include "platform/qt/qt_streams.h"
#include "remote/channels.h"
#include "remote/frame_codec.h"
#include "replay/scripted_wave.h"
#include "robotlink/gateway_link.h"
#include "session/flight_recorder.h"
#include "session/recorded_link.h"
#include "session/recorded_sockets.h"
#include "support/plain_client.h"
#include "support/printing_link.h"
#include "support/printing_programs.h"
#include "support/printing_sockets.h"
#include "support/process.h"
#include "support/replay_script.h"
#include "support/temp_folder.h"

namespace quorrin {
namespace {

using testing::HasSubstr;

class RealRecordedSession : public testing::Test {
  protected:
    RealRecordedSession() {
        for (const auto& [name, sub] : {std::pair{"XDG_DATA_HOME", "/d"}, std::pair{"XDG_CONFIG_HOME", "/c"},
                                        std::pair{"XDG_CACHE_HOME", "/k"}, std::pair{"XDG_STATE_HOME", "/s"}})
            ::setenv(name, (folder.path() + sub).c_str(), 1);
        for (const std::string& made : {app, windows, voice, state, run}) files.createFolder(made);
        files.copy(QUORRIN_SOURCE_DIR "/share/Quorrinsdk.ini", app + "/Quorrinsdk.ini");
    }

    // Logs in, wanders, goes to "IDLE" and back, and ends by the exit key.
    std::string wanderAndPrint() {
        QtClock clock;
        PacedClock time(clock);
        Output output(time, nullptr);
        QtStreams streams(clock, run);
        GatewayLink mot(time, streams, files);
        GatewayLink ti(time, streams, files);
        PrintingLink printedMot(mot, LinkName::myRobot, output, files, app);
        PrintingLink printedTi(ti, LinkName::robotTI, output, files, app);
        FlightRecorder recorder(time, files, createPosixAppendFile, state);
        RecordedLink myRobot(printedMot, LinkName::myRobot, recorder);
        RecordedLink robotTI(printedTi, LinkName::robotTI, recorder);
        PosixPrograms real(run);
        PrintingPrograms programs(real, output);
        ScriptedBoxes inner;
        RecordedBoxes boxes(inner, recorder);
        ScriptedWave wave(output);
        QtSockets realSockets(time);
        PrintingSockets printedSockets(realSockets, output);
        RecordedSockets sockets(printedSockets, recorder);
        Station station(StationPorts{time,
                                     files,
                                     programs,
                                     boxes,
                                     myRobot,
                                     robotTI,
                                     Folders{app, windows, voice, QUORRIN_BIN_DIR},
                                     [] { throw ProgramEnd{}; },
                                     {},
                                     nullptr,
                                     &sockets,
                                     &wave});
        for (Form* form : station.forms()) recorder.watchForm(*form, form == &station.gui);
        std::vector<std::unique_ptr<TimerMM>> hands;
        const auto at = [&](std::int64_t ms, std::function<void()> deed) {
            hands.push_back(std::make_unique<TimerMM>(clock, std::move(deed)));
            hands.back()->setPeriodic(false);
            hands.back()->setInterval(ms);
            hands.back()->setEnabled(true);
        };
        const auto pressAt = [&](std::int64_t ms, CommandButton& button) {
            at(ms, [&time, &button] { time.arrive([&button] { button.operatorClick(); }); });
        };
        PlainClient command;
        PlainClient sensor;
        PlainClient video;
        at(13'000, [&] { EXPECT_TRUE(command.connect(kCommandChannel.port)); });
        at(14'500, [&] {
            EXPECT_TRUE(sensor.connect(kSensorChannel.port));
            EXPECT_TRUE(video.connect(kVideoChannel.port));
        });
        at(14'800, [&] { command.send(frameOf("PING") + frameOf("5200,6000,10000,2100,1900,3000,1,1")); });
        at(15'000, [&] { command.send(frameOf("PING")); });
        at(15'200, [&] { video.reset(); });
        at(17'000, [&] { command.send(frameOf("Clos")); });
        at(29'000, [&] { command.send(frameOf("RLIS")); });
        at(30'000, [&] { sensor.hangUp(); });
        at(30'300, [&] { command.hangUp(); });
        pressAt(18'000, station.gui.cmdChEn);
        pressAt(21'000, station.gui.cmdChEn);
        pressAt(31'000, station.gui.cmdExit);

        time.begin();
        recorder.begin();
        time.post([&station] {
            station.startAtLogin();
            station.login.cmdOK.operatorClick();
        });
        try {
            clock.run();
        } catch (const ProgramEnd&) {
            output.begin();
            output.addBoolean("ended", true);
            output.end();
        }
        recorder.flush();
        EXPECT_EQ(recorder.complaint(), "");
        EXPECT_EQ(time.lostMs(), 0);
        return output.text();
    }

    TempFolder folder;
    PosixFiles files;
    const std::string app = folder.path() + "/d/quorrin";
    const std::string windows = folder.path() + "/c/quorrin";
    const std::string voice = folder.path() + "/k/quorrin/tempVoice";
    const std::string state = folder.path() + "/s/quorrin";
    const std::string run = app + "/run";
};

TEST_F(RealRecordedSession, ReplaysToTheSameOperations) {
    Process robot({QUORRIN_BIN_DIR "/quorrin-robot", "--site", "office", "--seed", "3", "--headless"},
                  Process::Settings{folder.path()}, "robot.out");
    const std::string live = wanderAndPrint();
    EXPECT_THAT(live, HasSubstr("\"SetDriveVelocities\""));
    for (const char* asked : {"\"accept\": \"wskCommand\"", "\"wave\"", "\"send\": \"wskSensor\"",
                              "\"shut\": \"wskVideo\"", "\"StartSoundCapture\"", "\"ended\": true"})
        EXPECT_THAT(live, HasSubstr(asked));

    ScriptRunner runner;
    runner.files.put("/app/Quorrinsdk.ini", files.read(app + "/Quorrinsdk.ini").value_or(""));
    const ScriptOutcome replayed = runner.run(files.read(state + "/flight-1.jsonl").value_or(""));
    EXPECT_EQ(replayed.end, ReplayEnd::scriptEnded) << replayed.error.reason;
    EXPECT_EQ(replayed.output, live);
}

}  // namespace
}  // namespace quorrin

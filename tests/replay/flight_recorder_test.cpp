// A recorded session replays to the same operations, byte for byte, however late the machine was.
#include "session/flight_recorder.h"

#include <gmock/gmock.h>

#include <random>

#include "platform/host/posix_files.h"
#include "platform/virtual/memory_append_file.h"
#include "remote/frame_codec.h"
#include "replay/scripted_wave.h"
#include "replay/socket_printer.h"
#include "robot/direct_link.h"
#include "session/recorded_link.h"
#include "session/recorded_sockets.h"
#include "support/printing_link.h"
#include "support/replay_script.h"

namespace quorrin {
namespace {

using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

Site office() {
    PosixFiles disk;
    return loadSite("office", QUORRIN_SOURCE_DIR "/share/sites", disk);
}

// A whole session as on a real machine: a host clock whose machine is busy now and then, the station on the
// session's own time, a robot behind its links, the recorder at its ports.
class RecordedSession {
  public:
    explicit RecordedSession(std::uint64_t seed)
        : robot(office(), seed),
          link(clock, robot, runner.files),
          lateness(static_cast<std::uint32_t>(seed)) {
        runner.files.createFolder("/state");
        programs.onStart = [this](const std::string& name) {
            output.begin();
            output.addText("start", name);
            output.end();
            link.programStarted(name);
        };
        programs.onClose = [this](const std::string& title, bool found) {
            output.begin();
            output.addText("close", title);
            output.addBoolean("found", found);
            output.end();
            if (found) link.windowClosed(title);
        };
        innerBoxes.onShow = [this](const std::string& text, const std::string& title, BoxAnswer answer) {
            output.begin();
            output.addText("box", text);
            output.addText("title", title);
            output.addText("answer", boxAnswerText(answer));
            output.end();
        };
        printSockets(clients, output);
        for (Form* form : station.forms()) recorder.watchForm(*form, form == &station.gui);
        beBusy();
    }

    // Logs in at once, as a station without a screen does.
    void begin() {
        clock.begin();
        recorder.begin();
        clock.post([this] {
            station.startAtLogin();
            station.login.cmdOK.operatorClick();
        });
    }
    void operatorAt(std::int64_t hostMs, std::function<void(Station&)> action) {
        host.arriveAt(hostMs, [this, action] { clock.arrive([this, action] { action(station); }); });
    }
    void clientAt(std::int64_t hostMs, const std::string& array,
                  std::function<void(VirtualSockets&)> action) {
        host.arriveAt(hostMs, [this, array, action] {
            clock.arrive([this, action] { action(clients); }, &clients.source(array));
        });
    }
    // To the session's end or to that time.
    void run(std::int64_t hostMs) {
        try {
            host.runUntil(hostMs);
        } catch (const ProgramEnd&) {
            output.begin();
            output.addBoolean("ended", true);
            output.end();
        } catch (const ProgramError& error) {
            output.begin();
            output.addText("fatal", error.what());
            output.end();
        }
        recorder.flush();
    }
    std::string piece(int number) {
        return runner.files.read("/state/flight-" + std::to_string(number) + ".jsonl").value_or("");
    }

    ScriptRunner runner;
    VirtualClock host;
    PacedClock clock{host};
    Output output{clock, nullptr};
    ScriptedPrograms programs;
    ScriptedBoxes innerBoxes;
    SimulatedRobot robot;
    DirectLink link;
    PrintingLink printedMot{link.myRobot(), LinkName::myRobot, output, runner.files};
    PrintingLink printedTi{link.robotTI(), LinkName::robotTI, output, runner.files};
    FlightRecorder recorder{clock, runner.files, createInMemory(runner.files), "/state"};
    RecordedLink myRobot{printedMot, LinkName::myRobot, recorder};
    RecordedLink robotTI{printedTi, LinkName::robotTI, recorder};
    RecordedBoxes boxes{innerBoxes, recorder};
    VirtualSockets clients{clock};
    RecordedSockets sockets{clients, recorder};
    ScriptedWave wave{output};
    Station station{StationPorts{clock,
                                 runner.files,
                                 programs,
                                 boxes,
                                 myRobot,
                                 robotTI,
                                 Folders{"/app", "/app/windows", "/app/tempVoice", "/programs"},
                                 [] { throw ProgramEnd{}; },
                                 {},
                                 nullptr,
                                 &sockets,
                                 &wave}};
    std::minstd_rand lateness;

  private:
    // Every now and then the machine does something else for up to 60 ms.
    void beBusy() {
        busy_.setHandler([this] {
            host.block(static_cast<std::int64_t>(lateness() % 60));
            busy_.setInterval(static_cast<std::int64_t>(7 + lateness() % 90));
        });
        busy_.setInterval(13);
        busy_.setEnabled(true);
    }
    TimerMM busy_{host};
};

// What a replay of the recording prints, up to the session's last line.
void expectSameOperations(RecordedSession& session, const std::string& script) {
    ScriptRunner runner;
    const ScriptOutcome replayed = runner.run(script);
    ASSERT_NE(replayed.end, ReplayEnd::badScript)
        << "line " << replayed.error.line << ": " << replayed.error.reason;
    const std::string& live = session.output.text();
    EXPECT_GT(live.size(), 10'000U);
    // The recording ends with the last thing that came in, the session a little later.
    EXPECT_THAT(live, StartsWith(replayed.output));
    EXPECT_LT(live.size() - replayed.output.size(), 1000U);
}

class FlightRecorderProof : public testing::TestWithParam<int> {};

TEST_P(FlightRecorderProof, ARecordedSessionReplaysToTheSameOperations) {
    RecordedSession session(static_cast<std::uint64_t>(GetParam()));
    session.begin();
    session.operatorAt(15'030, [](Station& s) { s.gui.txtTh1.operatorEdit("55"); });
    session.operatorAt(25'017, [](Station& s) { s.gui.cmdChEn.operatorClick(); });
    session.operatorAt(31'400, [](Station& s) { s.gui.cmdChEn.operatorClick(); });
    session.operatorAt(50'000, [](Station& s) { s.gui.cmdShowControlPanel.operatorClick(); });
    // Keys as a keyboard repeats them, some of them inside what another one lets run.
    for (std::int64_t ms = 50'500; ms < 52'500; ms += 30)
        session.operatorAt(ms, [](Station& s) { s.controlPanel.Picture1.operatorKeyDown(38); });
    for (std::int64_t ms = 53'000; ms < 54'000; ms += 7)
        session.operatorAt(ms, [](Station& s) { s.controlPanel.Picture1.operatorKeyDown(37); });
    session.operatorAt(54'010, [](Station& s) { s.controlPanel.Picture1.operatorKeyUp(37); });
    session.operatorAt(55'000, [](Station& s) { s.controlPanel.operatorActivate(); });
    session.operatorAt(56'000, [](Station& s) { s.controlPanel.Picture1.operatorKeyDown(36); });
    session.operatorAt(58'000, [](Station& s) { s.controlPanel.operatorClose(); });
    session.operatorAt(70'000, [](Station& s) { s.gui.cmdStart.operatorClick(); });
    session.run(90'000);
    EXPECT_THAT(session.output.text(), HasSubstr("\"QuorrinGatewaymot\""));
    EXPECT_EQ(session.recorder.complaint(), "");
    expectSameOperations(session, session.piece(1));
}

INSTANTIATE_TEST_SUITE_P(Seeds, FlightRecorderProof, testing::Values(1, 2, 3, 4, 5, 6));

TEST(FlightRecorder, ARemoteSessionReplaysWithItsClientsCallsBytesAndEnds) {
    RecordedSession session(5);
    session.begin();
    const auto call = [&](std::int64_t ms, const std::string& array, int port) {
        session.clientAt(ms, array, [array, port](VirtualSockets& s) { s.connect(array, "10.0.0.5", port); });
    };
    session.operatorAt(14'000, [&](Station& s) {
        s.gui.chkRemote.operatorSet(false);
        session.innerBoxes.prepareAnswer(BoxAnswer::no);
        session.innerBoxes.prepareAnswer(BoxAnswer::yes);
    });
    call(15'000, "wskCommand", 40000);  // refused
    call(16'003, "wskCommand", 40000);
    call(16'004, "wskSensor", 40001);
    call(16'005, "wskSendVoice", 40002);
    session.clientAt(19'000, "wskCommand",
                     [](VirtualSockets& s) { s.receive("wskCommand", 1, frameOf("PING")); });
    for (int i = 0; i < 40; ++i) {
        session.clientAt(20'000 + 250 * i, "wskCommand", [i](VirtualSockets& s) {
            s.receive("wskCommand", 1, frameOf("5100,4000,9500,2000,2000,3000,1," + std::to_string(i)));
        });
    }
    session.clientAt(31'000, "wskCommand",
                     [](VirtualSockets& s) { s.receive("wskCommand", 1, frameOf("PING")); });
    session.clientAt(32'000, "wskSensor", [](VirtualSockets& s) { s.receive("wskSensor", 1, "unread"); });
    session.clientAt(33'000, "wskSensor", [](VirtualSockets& s) { s.fail("wskSensor", 1); });
    session.clientAt(34'000, "wskCommand", [](VirtualSockets& s) { s.hangUp("wskCommand", 1); });
    call(40'000, "wskCommand", 41000);
    session.run(90'000);
    const std::string recording = session.piece(1);
    EXPECT_THAT(recording,
                HasSubstr("\"connect\": \"wskCommand\", \"from\": \"10.0.0.5\", \"port\": 40000}"));
    EXPECT_THAT(recording, HasSubstr("\"receive\": \"wskCommand\", \"element\": 1, \"hex\": \"5e02"));
    EXPECT_THAT(recording, HasSubstr("\"socketError\": \"wskSensor\", \"element\": 1}"));
    EXPECT_THAT(recording, HasSubstr("\"hangup\": \"wskCommand\", \"element\": 1}"));
    EXPECT_THAT(recording, Not(HasSubstr("\"receive\": \"wskSensor\"")));
    EXPECT_THAT(session.output.text(), HasSubstr("sndPlaySoundA"));
    EXPECT_THAT(session.output.text(), HasSubstr("\"send\": \"wskSensor\", \"element\": 1"));
    expectSameOperations(session, recording);
}

TEST(FlightRecorder, TheEndOfASessionReplaysToo) {
    RecordedSession session(9);
    session.begin();
    session.operatorAt(20'000, [](Station& s) { s.gui.operatorClose(); });
    session.run(40'000);
    EXPECT_THAT(session.output.text(), HasSubstr("\"ended\": true"));
    EXPECT_EQ(ScriptRunner().run(session.piece(1)).output, session.output.text());
}

TEST(FlightRecorder, AProgramErrorIsReplayedFromWhatWasFlushed) {
    RecordedSession session(3);
    session.begin();
    session.operatorAt(20'000, [](Station& s) { s.gui.txtWonderSpeed.operatorEdit("fast"); });
    session.run(40'000);
    EXPECT_THAT(session.output.text(), HasSubstr("\"fatal\": "));
    // The error comes with a timer after the last line, so the replay is given a moment more.
    const ScriptOutcome replayed =
        ScriptRunner().run(session.piece(1) + "{\"t\": 30000, \"answer\": \"no\"}\n");
    EXPECT_EQ(replayed.end, ReplayEnd::programError);
    EXPECT_EQ(replayed.output, session.output.text());
}

TEST(FlightRecorder, TheKeysOfTheControlPanelAreWrittenAsAScriptHasThem) {
    RecordedSession session(4);
    session.begin();
    session.operatorAt(2'000, [](Station& s) { s.gui.cmdShowControlPanel.operatorClick(); });
    session.operatorAt(3'000, [](Station& s) { s.controlPanel.Picture1.operatorKeyDown(37); });
    session.operatorAt(3'100, [](Station& s) { s.controlPanel.Picture1.operatorKeyUp(37); });
    session.run(5'000);
    EXPECT_THAT(session.piece(1), HasSubstr(", \"keyDown\": 37}\n"));
    EXPECT_THAT(session.piece(1), HasSubstr(", \"keyUp\": 37}\n"));
}

TEST(FlightRecorder, OfAFrameOnlyWhatChangedIsWritten) {
    RecordedSession session(1);
    session.begin();
    session.run(10'000);
    EXPECT_THAT(session.piece(1),
                StartsWith("# flight recording 1, from 0 ms of its session, 2026-11-20 09:00:00\n"
                           "{\"t\": 0, \"login\": true}\n"
                           "{\"t\": 0, \"click\": \"frmLogin.cmdOK\"}\n"));
    std::istringstream lines(session.piece(1));
    std::string line;
    std::size_t frames = 0;
    std::size_t withEncoder = 0;
    while (std::getline(lines, line)) {
        if (line.find("\"MotorFrame\"") == std::string::npos) continue;
        ++frames;
        // Standing, the encoders keep their values.
        if (line.find("EncoderPosition") != std::string::npos) ++withEncoder;
    }
    EXPECT_GT(frames, 30U);
    EXPECT_LT(withEncoder, frames);
}

TEST(FlightRecorder, HalfAnHourMakesAPieceAndTheTwoLatestStay) {
    RecordedSession session(2);
    session.begin();
    session.run(32 * 60'000);
    EXPECT_THAT(session.piece(1), StartsWith("# flight recording 1, "));
    EXPECT_THAT(session.piece(2), StartsWith("# flight recording 2, from 18000"));
    expectSameOperations(session, session.piece(1) + session.piece(2));
}

TEST(FlightRecorder, ANewSessionLeavesTheLatestPieceOfTheOneBefore) {
    MemoryFiles files;
    files.createFolder("/state");
    VirtualClock host;
    PacedClock clock(host);
    for (int session = 0; session < 3; ++session) {
        FlightRecorder recorder(clock, files, createInMemory(files), "/state");
        recorder.begin();
    }
    EXPECT_THAT(*files.read("/state/flight-1.jsonl"), StartsWith("# flight recording 3, "));
    EXPECT_THAT(*files.read("/state/flight-2.jsonl"), StartsWith("# flight recording 2, "));
}

TEST(FlightRecorder, AFullDiskEndsTheRecordingAndNotTheSession) {
    RecordedSession session(1);
    session.begin();
    session.host.arriveAt(5000, [&] { session.runner.files.setDiskFull(true); });
    session.run(30'000);
    EXPECT_THAT(session.recorder.complaint(), HasSubstr("/state/flight-1.jsonl cannot be written"));
    EXPECT_THAT(session.output.text(), HasSubstr("SetDriveVelocities"));
}

// Keeps nothing but the number of bytes.
class CountingFile : public AppendFile {
  public:
    explicit CountingFile(std::size_t& bytes) : bytes_(bytes) {}
    bool append(std::string_view bytes) override {
        bytes_ += bytes.size();
        return true;
    }

  private:
    std::size_t& bytes_;
};

TEST(FlightRecorder, AFloodEndsTheRecordingAheadOf256MebibytesAndDoesNotFillTheDisk) {
    MemoryFiles files;
    VirtualClock host;
    PacedClock clock(host);
    std::size_t written = 0;
    FlightRecorder recorder(
        clock, files, [&](const std::string&) { return std::make_unique<CountingFile>(written); }, "/state");
    recorder.begin();
    const std::string flood(1024 * 1024, 'x');
    const auto floods = [&](int times) {
        for (int i = 0; i < times; ++i) {
            clock.arrive([&] { recorder.line(flood); });
            host.runFor(1);
        }
    };
    floods(250);
    EXPECT_EQ(recorder.complaint(), "");
    floods(10);
    EXPECT_THAT(recorder.complaint(), HasSubstr("/state/flight-1.jsonl would pass 256 MiB"));
    EXPECT_GT(written, 250U * 1024 * 1024 - 2 * flood.size());
    EXPECT_LE(written, 256U * 1024 * 1024);
}

TEST(FlightRecorder, TheAnswerToABoxStandsBeforeTheEventThatAsked) {
    MemoryFiles files;
    files.createFolder("/state");
    VirtualClock host;
    PacedClock clock(host);
    FlightRecorder recorder(clock, files, createInMemory(files), "/state");
    ScriptedBoxes inner;
    RecordedBoxes boxes(inner, recorder);
    inner.prepareAnswer(BoxAnswer::yes);
    recorder.begin();
    host.arriveAt(40, [&] {
        clock.arrive([&] {
            recorder.line("\"click\": \"cmdAsk\"");
            boxes.show("sure?", "", BoxButtons::yesNo);
            boxes.show("done", "", BoxButtons::ok);
        });
    });
    host.runUntil(100);
    recorder.flush();
    EXPECT_THAT(*files.read("/state/flight-1.jsonl"), HasSubstr("{\"t\": 40, \"answer\": \"yes\"}\n"
                                                                "{\"t\": 40, \"click\": \"cmdAsk\"}\n"));
}

}  // namespace
}  // namespace quorrin

// A recorded session with a joystick replays to the same bytes: the states are written as the station read
// them.
#include "session/recorded_joysticks.h"

#include <gmock/gmock.h>

#include <random>

#include "platform/host/posix_files.h"
#include "platform/virtual/memory_append_file.h"
#include "replay/socket_printer.h"
#include "robot/direct_link.h"
#include "session/recorded_link.h"
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

// A session on its own time with the simulated robot; sticks and links go through the recorder.
class StickSession {
  public:
    explicit StickSession(std::uint64_t seed = 1) : robot(office(), seed), link(clock, robot, runner.files) {
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
        for (Form* form : station.forms()) recorder.watchForm(*form, form == &station.gui);
    }
    void stickAt(std::int64_t hostMs, const std::function<void(JoystickState&)>& change) {
        host.arriveAt(hostMs, [this, change] {
            clock.arrive([this, change] {
                change(state);
                sticks.move(state);
            });
        });
    }
    void run(std::int64_t hostMs) {
        clock.begin();
        recorder.begin();
        clock.post([this] {
            station.startAtLogin();
            station.login.cmdOK.operatorClick();
        });
        host.runUntil(hostMs);
        recorder.flush();
    }
    std::string script() { return runner.files.read("/state/flight-1.jsonl").value_or(""); }
    std::string linesWith(const std::string& part) {
        std::istringstream stream(script());
        std::string found;
        for (std::string line; std::getline(stream, line);) {
            if (line.find(part) != std::string::npos) found += line + "\n";
        }
        return found;
    }

    ScriptRunner runner;
    VirtualClock host;
    PacedClock clock{host};
    Output output{clock, nullptr};
    ScriptedPrograms programs;
    ScriptedBoxes boxes;
    ScriptedJoysticks sticks;
    SimulatedRobot robot;
    DirectLink link;
    PrintingLink printedMot{link.myRobot(), LinkName::myRobot, output, runner.files};
    PrintingLink printedTi{link.robotTI(), LinkName::robotTI, output, runner.files};
    FlightRecorder recorder{clock, runner.files, createInMemory(runner.files), "/state"};
    RecordedLink myRobot{printedMot, LinkName::myRobot, recorder};
    RecordedLink robotTI{printedTi, LinkName::robotTI, recorder};
    RecordedJoysticks recordedSticks{sticks, recorder};
    VirtualSockets sockets{clock};
    Station station{[this] {
        StationPorts ports{clock,
                           runner.files,
                           programs,
                           boxes,
                           myRobot,
                           robotTI,
                           Folders{"/app", "/app/windows", "/app/tempVoice", "/programs"},
                           [] { throw ProgramEnd{}; }};
        ports.joysticks = &recordedSticks;
        printSockets(sockets, output);
        ports.sockets = &sockets;
        return ports;
    }()};
    JoystickState state;
};

std::function<void(JoystickState&)> buttons(std::vector<std::size_t> down) {
    return [down = std::move(down)](JoystickState& state) {
        state.buttons.fill(false);
        for (const std::size_t button : down) state.buttons[button] = true;
    };
}

// The fields that a stick reaches, as the session left them.
std::string fieldsOf(const Station& station) {
    const PublicValues& v = station.values;
    std::ostringstream out;
    out << "{\"joystickActive\": " << (v.joystickActive ? "true" : "false")
        << ", \"caEnabled\": " << (v.caEnabled ? "true" : "false")
        << ", \"steeringLevel\": " << v.steeringLevel.value() << ", \"gasLevel\": " << v.gasLevel.value()
        << ", \"headCmdUpDown\": " << v.headCmdUpDown.value()
        << ", \"joystickGear\": " << v.joystickGear.value()
        << ", \"lButtons\": " << station.gui.lButtons.value() << "}}";
    return out.str();
}

void expectSame(StickSession& session, std::int64_t endMs) {
    const std::string watch =
        "{\"t\": " + std::to_string(endMs) +
        ", \"watch\": [\"joystickActive\", \"caEnabled\", \"steeringLevel\", \"gasLevel\", "
        "\"headCmdUpDown\", \"joystickGear\", \"lButtons\"], \"every\": 60000}\n";
    const ScriptOutcome replayed = ScriptRunner().run(session.script() + watch);
    ASSERT_EQ(replayed.end, ReplayEnd::scriptEnded) << replayed.error.reason;
    const auto state = replayed.output.rfind("{\"t\": ");
    EXPECT_THAT(replayed.output.substr(state), HasSubstr(fieldsOf(session.station)));
    EXPECT_EQ(replayed.output.substr(0, state), session.output.text());
}

class StickSessions : public testing::TestWithParam<int> {};

TEST_P(StickSessions, ReplayToTheSameBytes) {
    StickSession session(static_cast<std::uint64_t>(GetParam()));
    session.sticks.attach();
    std::minstd_rand random(static_cast<std::uint32_t>(GetParam()));
    session.stickAt(14'000, buttons({0, 6}));
    for (std::int64_t t = 14'500; t < 40'000; t += 10 + static_cast<std::int64_t>(random() % 400)) {
        session.stickAt(t, [&random](JoystickState& state) {
            state.x = static_cast<int>(random() % 10'001);
            state.slider = static_cast<int>(random() % 10'001);
            state.y = random() % 5 == 0 ? 6500 : 5000;
            state.pov = random() % 3 == 0 ? 9000 * static_cast<int>(random() % 4) : kHatCentred;
            state.buttons[2] = random() % 4 == 0;
            state.buttons[7] = random() % 4 == 0;
        });
    }
    session.run(42'000);
    EXPECT_THAT(session.output.text(), HasSubstr("SetDriveVelocities"));
    EXPECT_TRUE(session.station.values.joystickActive);
    expectSame(session, 42'000);
}

INSTANTIATE_TEST_SUITE_P(Seeds, StickSessions, testing::Values(1, 2, 3, 4));

TEST(RecordedJoysticks, AStickThatRestsIsWrittenOnceSoThatTheReplayHasOneToo) {
    StickSession session;
    session.sticks.attach(8);
    session.run(2000);
    EXPECT_THAT(session.script(),
                HasSubstr("{\"t\": 0, \"login\": true}\n"
                          "{\"t\": 0, \"joystick\": {\"x\": 5000, \"y\": 5000, \"slider\": 10000, "
                          "\"pov\": -1, \"buttons\": [], \"lButtons\": 8}}\n"
                          "{\"t\": 0, \"click\": \"frmLogin.cmdOK\"}\n"));
    expectSame(session, 2000);
}

class StickSizes : public testing::TestWithParam<int> {};

TEST_P(StickSizes, ReplayWithAsManyButtons) {
    StickSession session;
    session.sticks.attach(GetParam());
    session.stickAt(2500, buttons({0, 6, 9, 31}));
    session.run(3000);
    EXPECT_EQ(session.station.gui.lButtons, GetParam());
    expectSame(session, 3000);
}

INSTANTIATE_TEST_SUITE_P(Buttons, StickSizes, testing::Values(0, 6, 32, 40));

TEST(RecordedJoysticks, AKeyThatIsHeldWhileTheFormLoadsStandsBeforeIt) {
    StickSession session;
    session.sticks.attach();
    buttons({2})(session.state);
    session.sticks.move(session.state);
    session.run(3000);
    EXPECT_FALSE(session.station.values.caEnabled);
    EXPECT_THAT(session.script(), HasSubstr("\"buttons\": [2], \"lButtons\": 12}}\n"
                                            "{\"t\": 0, \"click\": \"frmLogin.cmdOK\"}\n"));
    expectSame(session, 3000);
}

TEST(RecordedJoysticks, WithoutAStickNothingIsWritten) {
    StickSession session;
    session.run(3000);
    EXPECT_THAT(session.script(), Not(HasSubstr("joystick")));
    expectSame(session, 3000);
}

TEST(RecordedJoysticks, EachChangeIsALineOfItsTime) {
    StickSession session;
    session.sticks.attach();
    session.stickAt(2500, buttons({3}));
    session.stickAt(2600, [](JoystickState& state) { state.pov = 18000; });
    session.run(3000);
    EXPECT_THAT(session.linesWith("\"joystick\""),
                testing::EndsWith("{\"t\": 2500, \"joystick\": {\"x\": 5000, \"y\": 5000, \"slider\": 10000, "
                                  "\"pov\": -1, \"buttons\": [3]}}\n"
                                  "{\"t\": 2600, \"joystick\": {\"x\": 5000, \"y\": 5000, \"slider\": 10000, "
                                  "\"pov\": 18000, \"buttons\": [3]}}\n"));
}

TEST(RecordedJoysticks, AStickThatIsPulledOutAndPutBackIsNoLine) {
    StickSession session;
    session.sticks.attach();
    session.stickAt(2500, buttons({3}));
    session.host.arriveAt(2600, [&] { session.clock.arrive([&] { session.sticks.setPluggedIn(false); }); });
    session.host.arriveAt(2700, [&] { session.clock.arrive([&] { session.sticks.setPluggedIn(true); }); });
    session.stickAt(2800, buttons({3, 4}));
    session.run(3000);
    const std::string lines = session.linesWith("\"joystick\"");
    EXPECT_EQ(std::count(lines.begin(), lines.end(), '\n'), 3);
    EXPECT_EQ(session.station.values.mouthCmd, 2650 + 200);
    expectSame(session, 3000);
}

}  // namespace
}  // namespace quorrin

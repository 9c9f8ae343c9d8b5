// What commands do to a station.
#include <gmock/gmock.h>

#include "support/remote_bench.h"

namespace quorrin {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct CommandChannelTest : RemoteBench, testing::Test {
    CommandChannelTest() {
        load();
        session();
        values.remoteCommandActive = false;
        values.robotMode = kModeWondering;
    }
    std::string requests() const {
        return std::string(values.requestIdle ? "I" : "-") + (values.requestWander ? "W" : "-") +
               (values.requestJoy ? "J" : "-") + (values.joystickActive ? "A" : "-");
    }
    std::vector<int> levels() const {
        return {values.steeringLevel,    values.gasLevel, values.brakeLevel,  values.headCmdUpDown,
                values.headCmdLeftRight, values.mouthCmd, values.commandCount};
    }
};

TEST_F(CommandChannelTest, EveryFrameSaysThatCommandsComeIn) {
    for (const char* payload : {"PING", "Clos", "whatever", "0,0,0,0,0,0,0,0"}) {
        values.remoteCommandsSeen = false;
        values.remoteCommandActive = false;
        command(payload);
        EXPECT_TRUE(values.remoteCommandsSeen) << payload;
        EXPECT_TRUE(values.remoteCommandActive) << payload;
    }
}

TEST_F(CommandChannelTest, ModeIsTheOperatorsModeKey) {
    values.joystickActive = true;
    values.requestJoy = true;
    command("Mode");
    EXPECT_EQ(requests(), "I--A");
    values.robotMode = kModeIdle;
    command("Mode");
    EXPECT_EQ(requests(), "-W--");
}

TEST_F(CommandChannelTest, ClosLetsGoOfTheRobot) {
    values.manualPanelActive = true;
    command("Clos");
    EXPECT_FALSE(values.manualPanelActive);
}

TEST_F(CommandChannelTest, RlisOpensTheRobotsMicrophone) {
    command("RLIS");
    EXPECT_TRUE(values.remoteListening);
    EXPECT_TRUE(robotTI.asked("StartSoundCapture 1"));
    EXPECT_EQ(gui.outLight.number(), 8);
}

TEST_F(CommandChannelTest, NlisClosesTheRobotsMicrophone) {
    command("RLIS");
    log.clear();
    command("NLIS");
    EXPECT_FALSE(values.remoteListening);
    EXPECT_THAT(log, ElementsAre("robotTI.StopSoundCapture"));
    EXPECT_EQ(gui.outLight.number(), 6);
}

TEST_F(CommandChannelTest, NlisLeavesTheMicrophoneToAnOperatorWhoListens) {
    gui.cmdListen.setCaption("Stop Listening");
    command("RLIS");
    log.clear();
    command("NLIS");
    EXPECT_FALSE(values.remoteListening);
    EXPECT_THAT(log, IsEmpty());
    EXPECT_EQ(gui.outLight.number(), 6);
}

TEST_F(CommandChannelTest, KeysAreComparedExactly) {
    values.manualPanelActive = true;
    gui.connCheckTicks = 50;
    for (const char* payload : {"clos", "CLOS", " Clos", "Clo ", "ping", "quit", "QUIT", "mode", "rlis"})
        command(payload);
    EXPECT_TRUE(values.manualPanelActive);
    EXPECT_EQ(gui.connCheckTicks, 50);
    EXPECT_EQ(lines().size(), 1U);
    EXPECT_EQ(requests(), "----");
    EXPECT_FALSE(values.remoteListening);
}

TEST_F(CommandChannelTest, PingpongIsAPingAndNoDriveCommand) {
    gui.connCheckTicks = 50;
    const auto before = levels();
    command("PINGPONG");
    EXPECT_EQ(gui.connCheckTicks, 0);
    EXPECT_EQ(levels(), before);
    EXPECT_EQ(gui.txtSteeringlevel.text(), "");
}

TEST_F(CommandChannelTest, AnUnknownShortPayloadDoesNothing) {
    const auto before = levels();
    command("1,2,3,4,5,");
    EXPECT_EQ(levels(), before);
    EXPECT_EQ(gui.txtSteeringlevel.text(), "");
    EXPECT_FALSE(values.manualPanelActive);
}

TEST_F(CommandChannelTest, AKeyAtTheFrontOfALongPayloadDoesBoth) {
    values.steeringLevel = 5;
    values.gasLevel = 4000;
    command("Mode,1,2,3,4,5,6");
    EXPECT_EQ(requests(), "I---");
    EXPECT_EQ(values.steeringLevel, 5);  // the first field failed
    EXPECT_EQ(gui.txtSteeringlevel.text(), "5");
}

TEST_F(CommandChannelTest, QuitAtTheFrontOfALongPayloadDoesBothToo) {
    command("Quit,7,7,7,7,7,7,7");
    EXPECT_THAT(lines(), IsEmpty());
    EXPECT_NE(gui.txtSteeringlevel.text(), "");
}

TEST_F(CommandChannelTest, ADriveCommandSetsLevelsHeadAndMouth) {
    values.caEnabled = false;
    command("5100,4000,9500,2100,1900,3000,1,17");
    EXPECT_THAT(levels(), ElementsAre(5100, 4000, 9500, 2100, 1900, 3000, 17));
    EXPECT_TRUE(values.caEnabled);
    EXPECT_EQ(gui.txtSteeringlevel.text(), "5100");
    EXPECT_EQ(gui.txtGaslevel.text(), "4000");
    EXPECT_EQ(gui.txtBrakelevel.text(), "9500");
    EXPECT_EQ(gui.txtHeadUD.text(), "2100");
    EXPECT_EQ(gui.txtHeadLR.text(), "1900");
    EXPECT_EQ(gui.txtMouthUD.text(), "3000");
    EXPECT_EQ(gui.txtCommandCount.text(), "17");
}

TEST_F(CommandChannelTest, AvoidanceIsOnForOneAndOffForAnythingElse) {
    for (const char* field : {"0", "2", "-1", "x", "10"}) {
        values.caEnabled = true;
        command(std::string("0,0,0,0,0,0,") + field + ",1");
        EXPECT_FALSE(values.caEnabled) << field;
    }
    values.caEnabled = true;
    gui.cmdEnCA.setCaption("Enable");
    command("1,2,3,4,5,6");  // the field is missing
    EXPECT_FALSE(values.caEnabled);
    EXPECT_EQ(gui.cmdEnCA.caption(), "Enable");  // the key's caption is not its business
}

TEST_F(CommandChannelTest, TheTextBoxesAreWrittenInTheirOrder) {
    std::vector<std::string> written;
    for (TextBox* box : {&gui.txtHeadLR, &gui.txtHeadUD, &gui.txtMouthUD, &gui.txtSteeringlevel,
                         &gui.txtGaslevel, &gui.txtBrakelevel})
        box->onChange = [&written, box] { written.push_back(box->name()); };
    const auto inner = gui.txtCommandCount.onChange;
    gui.txtCommandCount.onChange = [&written, inner] {
        written.emplace_back("txtCommandCount");
        inner();
    };
    command("1,2,3,4,5,6,7,8");
    EXPECT_THAT(written, ElementsAre("txtSteeringlevel", "txtGaslevel", "txtBrakelevel", "txtCommandCount",
                                     "txtHeadLR", "txtHeadUD", "txtMouthUD"));
}

TEST_F(CommandChannelTest, ABoxWhoseHandlerFailsDoesNotKeepTheOthersFromBeingWritten) {
    gui.txtGaslevel.onChange = [] { throw ProgramError("refused"); };
    command("1,2,3,4,5,6,7,8");
    EXPECT_EQ(gui.txtMouthUD.text(), "6");
    EXPECT_EQ(values.lastCommandCount, 8);
}

TEST_F(CommandChannelTest, SteeringElevenAsksForJoyAndTenDoesNot) {
    values.joystickActive = true;
    values.requestWander = true;
    command("10,0,0,0,0,0,0,1");
    EXPECT_EQ(requests(), "-W-A");
    command("-50,0,0,0,0,0,0,2");
    EXPECT_EQ(requests(), "-W-A");
    values.requestIdle = true;
    command("11,0,0,0,0,0,0,3");
    EXPECT_EQ(requests(), "--J-");
}

TEST_F(CommandChannelTest, AFieldWrittenWithZerosIsReadTwice) {
    command("007,1,2,3,4,5,1,9");
    EXPECT_EQ(values.steeringLevel, 7);
    EXPECT_EQ(values.gasLevel, 7);
}

TEST_F(CommandChannelTest, ASteppedCounterHoldsTheRobot) {
    command("0,0,0,0,0,0,0,5");
    EXPECT_TRUE(values.manualPanelActive);
    EXPECT_EQ(values.lastCommandCount, 5);
    EXPECT_TRUE(gui.tmrCheckCommandArrival.running());
}

TEST_F(CommandChannelTest, AnUnchangedCounterChangesTheLevelsAndHoldsNothing) {
    command("1,1,1,1,1,1,1,5");
    values.manualPanelActive = false;
    gui.tmrCheckCommandArrival.setRunning(false);
    command("2,2,2,2,2,2,2,5");
    EXPECT_THAT(levels(), ElementsAre(2, 2, 2, 2, 2, 2, 5));
    EXPECT_FALSE(values.manualPanelActive);
    EXPECT_FALSE(gui.tmrCheckCommandArrival.running());
}

TEST_F(CommandChannelTest, TheFirstTickAfterACommandEndsTheActivityAndTheTimer) {
    clock.runUntil(5000);
    command("0,0,0,0,0,0,0,5");
    clock.runUntil(5999);
    EXPECT_TRUE(values.remoteCommandActive);
    clock.runUntil(6000);
    EXPECT_FALSE(values.remoteCommandActive);
    EXPECT_FALSE(gui.tmrCheckCommandArrival.running());
    EXPECT_TRUE(values.manualPanelActive);  // the levels stay in force
    command("PING");
    EXPECT_TRUE(values.remoteCommandActive);
}

TEST_F(CommandChannelTest, FurtherCommandsDoNotPutTheTimerOff) {
    clock.runUntil(5000);
    command("0,0,0,0,0,0,0,5");
    clock.runUntil(5900);
    command("0,0,0,0,0,0,0,6");
    clock.runUntil(6000);
    EXPECT_FALSE(values.remoteCommandActive);
}

TEST_F(CommandChannelTest, AFrameOfAnotherLengthInTheSameReadWaitsForFurtherBytes) {
    gui.connCheckTicks = 50;
    values.manualPanelActive = true;
    read(frameOf("PING") + frameOf("PING") + frameOf("20,0,0,2000,2000,3,1") + frameOf("Clos"));
    EXPECT_EQ(gui.connCheckTicks, 0);
    EXPECT_EQ(gui.txtSteeringlevel.text(), "");
    read("^");
    EXPECT_EQ(gui.txtSteeringlevel.text(), "20");
    EXPECT_TRUE(values.manualPanelActive);
}

TEST_F(CommandChannelTest, ABufferOf4095CharactersIsKeptAndOneMoreIsLost) {
    const std::string full = "^\x02" + std::string("Clos") + std::string(4095 - 6, 'x');
    values.manualPanelActive = true;
    read(full + "x");
    read("^\r");
    EXPECT_TRUE(values.manualPanelActive);
    read(full);
    read("^\r");
    EXPECT_FALSE(values.manualPanelActive);
}

TEST_F(CommandChannelTest, TwoClientsMayMixTheirFrames) {
    call(2);
    values.manualPanelActive = true;
    read(
        "^\x02"
        "Cl",
        1);
    read("os^\r", 2);
    EXPECT_FALSE(values.manualPanelActive);
}

TEST_F(CommandChannelTest, NothingIsEverSentBack) {
    for (const char* payload : {"PING", "Mode", "RLIS", "NLIS", "1,2,3,4,5,6,7,8", "rubbish"})
        command(payload);
    EXPECT_THAT(takeSockets(), IsEmpty());
}

TEST_F(CommandChannelTest, ADriveCommandReachesTheJoyMode) {
    RemoteBench bench;
    bench.reachWondering();
    bench.session();
    bench.command("5000,10000,10000,2000,2000,3000,1,1");
    bench.tick(1);
    EXPECT_EQ(bench.gui.txtRobotStatus.text(), "JOY");
    bench.command("Clos");
    bench.tick(2);
    EXPECT_EQ(bench.gui.txtRobotStatus.text(), "wondering");
}

}  // namespace
}  // namespace quorrin

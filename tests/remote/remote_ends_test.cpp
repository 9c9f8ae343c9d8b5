// How connections end: by the client, by an error, by the station; and the supervision.
#include <gmock/gmock.h>

#include "support/remote_bench.h"

namespace quorrin {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

struct RemoteEnds : RemoteBench, testing::Test {
    RemoteEnds() {
        load();
        session();
        // The ring held the supervision up: it has ticked once, and goes on at 2200.
        clock.runUntil(2000);
        gui.connCheckTicks = 0;
        takeSockets();
    }
    // All that a close or error may touch, made visible.
    void light() {
        gui.inLight.setNumber(11);
        gui.outLight.setNumber(8);
        values.remoteListening = true;
    }
    std::string flags() const {
        return std::string(gui.sensorClientConnected ? "S" : "-") +
               (values.videoClientConnected ? "V" : "-") + (values.remoteListening ? "L" : "-") +
               (values.callAccepted ? "C" : "-") + " " + std::to_string(gui.imgStatus.number()) + " " +
               std::to_string(gui.inLight.number()) + " " + std::to_string(gui.outLight.number()) + " " +
               std::to_string(lines().size());
    }
};

TEST_F(RemoteEnds, AHangUpOfTheCommandTakesItsLineAndPutsOutTheLights) {
    light();
    sockets.hangUp("wskCommand", 1);
    EXPECT_THAT(takeSockets(), ElementsAre("shut wskCommand 1"));
    EXPECT_EQ(flags(), "SVLC 3 9 6 0");
    EXPECT_FALSE(sockets.exists("wskCommand", 1));
    EXPECT_TRUE(sockets.exists("wskSensor", 1));
}

TEST_F(RemoteEnds, AHangUpOfTheSensorChannelClearsItsFlag) {
    light();
    sockets.hangUp("wskSensor", 1);
    EXPECT_THAT(takeSockets(), ElementsAre("shut wskSensor 1"));
    EXPECT_EQ(flags(), "-VLC 1 11 8 1");
    EXPECT_FALSE(sockets.exists("wskSensor", 1));
}

TEST_F(RemoteEnds, AHangUpOfTheVideoChannelClearsItsFlag) {
    light();
    sockets.hangUp("wskVideo", 1);
    EXPECT_EQ(flags(), "S-LC 1 11 8 1");
    EXPECT_FALSE(sockets.exists("wskVideo", 1));
}

TEST_F(RemoteEnds, AHangUpOfTheVoicePutsOutItsLight) {
    light();
    sockets.hangUp("wskAudio", 1);
    EXPECT_EQ(flags(), "SVLC 1 9 8 1");
    EXPECT_FALSE(sockets.exists("wskAudio", 1));
}

TEST_F(RemoteEnds, AHangUpOfTheListenerEndsTheListeningAndLeavesTheRobotsMicrophoneOn) {
    light();
    sockets.hangUp("wskSendVoice", 1);
    EXPECT_EQ(flags(), "SV-C 1 11 6 1");
    EXPECT_FALSE(sockets.exists("wskSendVoice", 1));
    EXPECT_EQ(robotTI.count("StopSoundCapture"), 0U);
}

TEST_F(RemoteEnds, AHangUpOfTheSpeechChannelChangesNothingElse) {
    light();
    sockets.hangUp("wskTTS", 1);
    EXPECT_EQ(flags(), "SVLC 1 11 8 1");
    EXPECT_FALSE(sockets.exists("wskTTS", 1));
}

TEST_F(RemoteEnds, AfterAHangUpTheNextClientComesInWithoutAQuestion) {
    sockets.hangUp("wskCommand", 1);
    takeSockets();
    connect("wskAudio");
    call(40500);
    EXPECT_THAT(takeSockets(), ElementsAre("accept wskAudio 2", "accept wskCommand 1", "ring"));
}

TEST_F(RemoteEnds, AnErrorClosesTheElementAndLeavesItAndItsLineInPlace) {
    light();
    sockets.fail("wskCommand", 1);
    EXPECT_THAT(takeSockets(), ElementsAre("shut wskCommand 1"));
    EXPECT_EQ(flags(), "SVLC 1 11 8 1");
    EXPECT_TRUE(sockets.exists("wskCommand", 1));
    call(40500);
    EXPECT_THAT(takeSockets(), ElementsAre("accept wskCommand 2", "ring"));
}

TEST_F(RemoteEnds, AnErrorOfAChannelClearsWhatIsItsOwn) {
    light();
    for (const auto& [array, left] :
         std::vector<std::pair<std::string, std::string>>{{"wskAudio", "SVLC 1 11 8 1"},
                                                          {"wskTTS", "SVLC 1 11 8 1"},
                                                          {"wskSensor", "-VLC 1 11 8 1"},
                                                          {"wskVideo", "--LC 1 11 8 1"},
                                                          {"wskSendVoice", "---C 1 11 8 1"}}) {
        sockets.fail(array, 1);
        EXPECT_EQ(flags(), left) << array;
        EXPECT_TRUE(sockets.exists(array, 1)) << array;
    }
    EXPECT_THAT(takeSockets(), ElementsAre("shut wskAudio 1", "shut wskTTS 1", "shut wskSensor 1",
                                           "shut wskVideo 1", "shut wskSendVoice 1"));
}

TEST_F(RemoteEnds, AnErrorOfAListenerIsHealedByListeningAgain) {
    sockets.failListener("wskVideo");
    EXPECT_THAT(takeSockets(), ElementsAre("shut wskVideo 0", "listen wskVideo 7080"));
    connect("wskVideo");
    EXPECT_THAT(takeSockets(), ElementsAre("accept wskVideo 2"));
}

TEST_F(RemoteEnds, QuitDropsTheSessionFromInsideItsOwnHandler) {
    light();
    values.requestJoy = false;
    command("Quit");
    EXPECT_THAT(takeSockets(), ElementsAre("shut wskAudio 1", "shut wskTTS 1", "shut wskSendVoice 1",
                                           "shut wskSensor 1", "shut wskVideo 1", "shut wskCommand 1"));
    EXPECT_EQ(flags(), "S--C 3 11 8 0");
    EXPECT_TRUE(values.remoteCommandsSeen);
    EXPECT_TRUE(values.remoteCommandActive);
    for (const Channel& channel : kChannels) {
        EXPECT_FALSE(sockets.exists(channel.name, 1)) << channel.name;
        EXPECT_TRUE(sockets.exists(channel.name, 0)) << channel.name;
    }
}

TEST_F(RemoteEnds, FramesBehindAQuitInTheSameReadAreStillHandled) {
    read(frameOf("Quit") + frameOf("RLIS"));
    EXPECT_TRUE(values.remoteListening);
    EXPECT_EQ(robotTI.count("StartSoundCapture"), 1U);
}

TEST_F(RemoteEnds, ADropLeavesTheHighestElementsFirstAndGapsAreNoHindrance) {
    call(2);
    call(3);
    sockets.hangUp("wskCommand", 2);
    takeSockets();
    command("Quit", 3);
    // The line of element 3 stands second, where the drop looks for element 2, which there is not.
    EXPECT_THAT(takeSockets(),
                ElementsAre("shut wskAudio 1", "shut wskTTS 1", "shut wskSendVoice 1", "shut wskSensor 1",
                            "shut wskVideo 1", "shut wskCommand 3", "shut wskCommand 1"));
    EXPECT_THAT(lines(), ElementsAre("10.0.0.5  [3] - [7060]"));
}

TEST_F(RemoteEnds, ADropTakesABrokenElementWithoutClosingItAgain) {
    sockets.fail("wskCommand", 1);
    takeSockets();
    gui.chkRemote.operatorSet(false);
    EXPECT_THAT(takeSockets(), Not(Contains("shut wskCommand 1")));
    EXPECT_FALSE(sockets.exists("wskCommand", 1));
    EXPECT_THAT(lines(), IsEmpty());
}

TEST_F(RemoteEnds, EveryLineOfTheSameTextGoesWithItsElement) {
    call(40000);
    call(40001);
    call(40000);
    sockets.hangUp("wskCommand", 2);
    EXPECT_THAT(lines(), ElementsAre("10.0.0.5  [40001] - [7060]"));
}

TEST_F(RemoteEnds, TheUnloadDropsTheSessionAndThenClosesTheListeners) {
    values.motLinkUp = false;
    untilEnd([&] { gui.operatorClose(); });
    EXPECT_THAT(takeSockets(),
                ElementsAre("shut wskAudio 1", "shut wskTTS 1", "shut wskSendVoice 1", "shut wskSensor 1",
                            "shut wskVideo 1", "shut wskCommand 1", "shut wskCommand 0", "shut wskVideo 0",
                            "shut wskAudio 0", "shut wskSensor 0", "shut wskTTS 0", "shut wskSendVoice 0"));
    EXPECT_TRUE(ended);
    EXPECT_TRUE(values.remoteCommandsSeen);
    EXPECT_TRUE(values.remoteCommandActive);
    EXPECT_FALSE(values.remoteListening);
}

TEST_F(RemoteEnds, TheLabelsShowTheListenersStates) {
    clock.runFor(300);
    for (const Label* label : {&gui.lblWskCmd, &gui.lblWskAudio, &gui.lblWskSendVoice, &gui.lblWskSensor,
                               &gui.lblWskTTS, &gui.lblWskVideo})
        EXPECT_EQ(label->caption(), "2") << label->name();
    sockets.setPortTaken(7050, true);
    sockets.failListener("wskTTS");
    clock.runFor(300);
    EXPECT_EQ(gui.lblWskTTS.caption(), "9");
    EXPECT_EQ(gui.lblWskCmd.caption(), "2");
}

TEST_F(RemoteEnds, ASilentClientIsDroppedByTheHundredAndFirstTickOfTheCounter) {
    gui.connCheckTicks = 99;
    clock.runFor(300);
    EXPECT_EQ(gui.connCheckTicks, 100);
    EXPECT_EQ(lines().size(), 1U);
    clock.runFor(300);
    EXPECT_EQ(gui.connCheckTicks, 0);
    EXPECT_THAT(lines(), IsEmpty());
    EXPECT_TRUE(values.callAccepted);
    EXPECT_FALSE(sockets.exists("wskSensor", 1));
}

TEST_F(RemoteEnds, ThePingPutsTheCounterBack) {
    gui.connCheckTicks = 100;
    command("PING");
    EXPECT_EQ(gui.connCheckTicks, 0);
    clock.runFor(300);
    EXPECT_EQ(lines().size(), 1U);
}

TEST_F(RemoteEnds, AConnectionDoesNotPutTheCounterBack) {
    gui.connCheckTicks = 90;
    call(2);
    EXPECT_GE(gui.connCheckTicks, 90);
    clock.runFor(11 * 300);
    EXPECT_THAT(lines(), IsEmpty());
}

TEST_F(RemoteEnds, TheCounterRunsAndWrapsWithNobodyThere) {
    values.callAccepted = false;
    gui.connCheckTicks = 100;
    gui.imgStatus.setNumber(1);
    clock.runFor(300);
    EXPECT_EQ(gui.connCheckTicks, 0);
    EXPECT_EQ(gui.imgStatus.number(), 1);  // nothing was dropped
    EXPECT_EQ(lines().size(), 1U);
    gui.connCheckTicks = 32765;
    clock.runFor(300);
    EXPECT_EQ(gui.connCheckTicks, 0);
}

TEST_F(RemoteEnds, ThePeriodOfADroppedSessionIsAboutThirtySeconds) {
    clock.runUntil(2200 + 100 * 300 - 1);
    EXPECT_EQ(lines().size(), 1U);
    clock.runUntil(2200 + 100 * 300);
    EXPECT_THAT(lines(), IsEmpty());
}

TEST_F(RemoteEnds, TheSilenceOfAClientEndsItsHoldOnTheRobot) {
    values.manualPanelActive = true;
    gui.connCheckTicks = 100;
    clock.runFor(300);
    EXPECT_FALSE(values.manualPanelActive);
}

TEST_F(RemoteEnds, AnOperatorAtThePanelHoldsTheRobotOn) {
    gui.cmdShowControlPanel.operatorClick();
    station.controlPanel.show();
    values.manualPanelActive = true;
    gui.connCheckTicks = 100;
    clock.runFor(300);
    EXPECT_TRUE(values.manualPanelActive);
    EXPECT_THAT(lines(), IsEmpty());
}

TEST_F(RemoteEnds, ADropWithNobodyInTheListLeavesTheHoldAlone) {
    sockets.hangUp("wskCommand", 1);
    values.manualPanelActive = true;
    gui.connCheckTicks = 100;
    clock.runFor(300);
    EXPECT_TRUE(values.manualPanelActive);
}

TEST_F(RemoteEnds, NoOtherEndTouchesTheHold) {
    values.manualPanelActive = true;
    command("Quit");
    EXPECT_TRUE(values.manualPanelActive);
    session(41000);
    gui.chkRemote.operatorSet(false);
    EXPECT_TRUE(values.manualPanelActive);
    gui.chkRemote.operatorSet(true);
    session(42000);
    sockets.hangUp("wskCommand", 1);
    EXPECT_TRUE(values.manualPanelActive);
}

TEST_F(RemoteEnds, TheSweepFindsTheClientsThatAreStillThere) {
    connect("wskSensor", 2);
    connect("wskVideo", 2);
    sockets.hangUp("wskSensor", 1);
    sockets.fail("wskVideo", 1);
    EXPECT_FALSE(gui.sensorClientConnected);
    EXPECT_FALSE(values.videoClientConnected);
    clock.runFor(300);
    EXPECT_TRUE(gui.sensorClientConnected);
    EXPECT_TRUE(values.videoClientConnected);
}

TEST_F(RemoteEnds, TheSweepDoesNotTakeABrokenElementForAClient) {
    sockets.fail("wskSensor", 1);
    sockets.fail("wskVideo", 1);
    clock.runFor(300);
    EXPECT_FALSE(gui.sensorClientConnected);
    EXPECT_FALSE(values.videoClientConnected);
}

TEST_F(RemoteEnds, ADroppedSessionLeavesTheSensorFlagAndAReturningClientGetsChangesAtOnce) {
    command("Quit");
    EXPECT_TRUE(gui.sensorClientConnected);
    session(41000);
    gui.txtRobotCurrX.setText("5");
    EXPECT_THAT(takeSockets(), Contains("send wskSensor 1 5,0,0,,,0"));
}

TEST_F(RemoteEnds, ClientsThatFloodTheStationSlowItByTheirRingAndNeverStopIt) {
    command("Quit");
    takeSockets();
    int ticks = 0;
    TimerMM ticking(clock, [&] { ++ticks; });
    ticking.setInterval(100);
    ticking.setEnabled(true);
    // The next call is taken when the one before it is over.
    int calls = 0;
    int ticksMeanwhile = 0;
    std::function<void()> next = [&] {
        call(++calls);
        if (calls < 100) clock.arrive(next, &sockets.source("wskCommand"));
        if (calls == 100) ticksMeanwhile = ticks;
    };
    clock.arrive(next, &sockets.source("wskCommand"));
    const std::int64_t begin = clock.nowMs();
    while (calls < 100 && clock.nowMs() < begin + 60'000) clock.runFor(1);
    EXPECT_EQ(calls, 100);
    EXPECT_EQ(ticksMeanwhile, 32);
    EXPECT_GE(clock.nowMs(), begin + 32 * 907);
}

}  // namespace
}  // namespace quorrin

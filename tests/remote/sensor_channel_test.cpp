// The reports that clients get.
#include <gmock/gmock.h>

#include "support/remote_bench.h"

namespace quorrin {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct SensorChannel : RemoteBench, testing::Test {
    SensorChannel() {
        load();
        session();
    }
};

TEST_F(SensorChannel, AChangeSendsNothingBeforeTheFirstCommand) {
    gui.txtRobotStatus.setText("JOY");
    EXPECT_THAT(takeSockets(), IsEmpty());
    command("PING");
    gui.txtRobotStatus.setText("IDLE");
    EXPECT_THAT(takeSockets(), ElementsAre("send wskSensor 1 0,0,0,,IDLE,0"));
}

TEST_F(SensorChannel, EachOfTheFiveBoxesReportsItsChangeAsItReads) {
    command("PING");
    gui.txtRobotCurrX.operatorEdit("1.5");
    gui.txtRobotCurrY.operatorEdit("here");
    gui.txtRobotCurrZ.operatorEdit("");
    gui.txtHumanLocation.setText("4");
    gui.txtRobotStatus.setText("wondering");
    EXPECT_THAT(takeSockets(),
                ElementsAre("send wskSensor 1 1.5,0,0,,,0", "send wskSensor 1 1.5,here,0,,,0",
                            "send wskSensor 1 1.5,here,,,,0", "send wskSensor 1 1.5,here,,4,,0",
                            "send wskSensor 1 1.5,here,,4,wondering,0"));
    EXPECT_EQ(gui.txtChangeCount.text(), "5");
}

TEST_F(SensorChannel, AReportIsMadeOfCharactersOfOneByte) {
    command("PING");
    gui.txtRobotCurrX.operatorEdit("\u00FC\u20AC\u673A");
    EXPECT_THAT(takeSockets(), ElementsAre("send wskSensor 1 \xFC\x80?,0,0,,,0"));
}

TEST_F(SensorChannel, WritingTheSameWordAgainIsNoChange) {
    command("PING");
    gui.txtRobotStatus.setText("JOY");
    takeSockets();
    gui.txtRobotStatus.setText("JOY");
    EXPECT_THAT(takeSockets(), IsEmpty());
}

TEST_F(SensorChannel, TwoClientsGetTheSameReportEachOnItsOwnElement) {
    session(41000);
    command("PING");
    gui.txtRobotStatus.setText("JOY");
    EXPECT_THAT(takeSockets(), ElementsAre("send wskSensor 1 0,0,0,,JOY,0", "send wskSensor 2 0,0,0,,JOY,0"));
}

TEST_F(SensorChannel, AReportGoesToTheElementOfTheLinesPlaceWhoeverThatIs) {
    session(41000);
    command("PING");
    sockets.hangUp("wskCommand", 1);
    takeSockets();
    // The second client's line has moved up; there is no look-up by client.
    gui.txtRobotStatus.setText("JOY");
    EXPECT_THAT(takeSockets(), ElementsAre("send wskSensor 1 0,0,0,,JOY,0"));
}

TEST_F(SensorChannel, AClientWithoutASensorConnectionLosesItsReport) {
    call(41000);
    command("PING");
    gui.txtRobotStatus.setText("JOY");
    EXPECT_THAT(takeSockets(), testing::Contains("send wskSensor 1 0,0,0,,JOY,0"));
    sockets.fail("wskSensor", 1);
    gui.sensorClientConnected = true;
    takeSockets();
    gui.txtRobotStatus.setText("IDLE");
    EXPECT_THAT(takeSockets(), IsEmpty());
}

TEST_F(SensorChannel, NothingLeavesWithoutTheFlagOrWithoutALine) {
    command("PING");
    gui.sensorClientConnected = false;
    gui.txtRobotStatus.setText("JOY");
    EXPECT_THAT(takeSockets(), IsEmpty());
    gui.sensorClientConnected = true;
    sockets.hangUp("wskCommand", 1);
    takeSockets();
    gui.txtRobotStatus.setText("IDLE");
    EXPECT_THAT(takeSockets(), IsEmpty());
}

TEST_F(SensorChannel, TheCountGoesBackToZeroAndReportsThatToo) {
    command("PING");
    gui.txtChangeCount.setText("32765");
    takeSockets();
    gui.txtRobotStatus.setText("JOY");
    EXPECT_EQ(gui.txtChangeCount.text(), "0");
    EXPECT_THAT(takeSockets(), ElementsAre("send wskSensor 1 0,0,0,,JOY,0"));
}

TEST_F(SensorChannel, AClientThatSaysNothingGetsPeriodicReportsOnly) {
    powerFrames(11);
    tick(1);
    gui.statusBroadcastTicks = 49;
    takeSockets();
    tick(1);
    EXPECT_THAT(takeSockets(), IsEmpty());
    tick(1);
    EXPECT_THAT(takeSockets(), ElementsAre("send wskSensor 1 0,0,0,,,0"));
    tick(50);
    EXPECT_THAT(takeSockets(), IsEmpty());
    tick(1);
    EXPECT_EQ(takeSockets().size(), 1U);
}

TEST_F(SensorChannel, WhatAClientSendsThereIsThrownAway) {
    sockets.receive("wskSensor", 1, frameOf("Quit"));
    sockets.receive("wskSendVoice", 1, frameOf("Quit"));
    EXPECT_EQ(lines().size(), 1U);
    EXPECT_FALSE(values.remoteCommandsSeen);
}

TEST_F(SensorChannel, AClientThatNeverReadsIsHeldOneMebibyteAndThenIsAnError) {
    command("PING");
    sockets.onSend = nullptr;
    sockets.setSlow("wskSensor", 1);
    takeSockets();
    gui.txtRobotCurrX.setText(std::string(1000, 'x'));
    for (int i = 0; i < 2000; ++i) gui.txtHumanLocation.setText(std::to_string(i % 2));
    EXPECT_LE(sockets.held("wskSensor", 1), kSocketSendBound);
    clock.runFor(0);
    EXPECT_THAT(takeSockets(), ElementsAre("shut wskSensor 1"));
    EXPECT_FALSE(gui.sensorClientConnected);
    EXPECT_EQ(lines().size(), 1U);
}

}  // namespace
}  // namespace quorrin

// The six connections of a client to a station.
#include <gmock/gmock.h>

#include "client/client_bench.h"

namespace quorrin {
namespace {

using testing::Contains;
using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::IsSupersetOf;

struct RemoteLinkTest : ClientBench, testing::Test {
    void load() { station.startAtMainForm(); }
    std::vector<int> triedPorts() const {
        std::vector<int> tried;
        for (const RemoteChannel channel : kRemoteChannels) tried.push_back(calls.tried(portOf(channel)));
        return tried;
    }
    // Times at which the command channel is dialled within the next while, counted from now.
    std::vector<std::int64_t> dialled(RemoteChannel channel, std::int64_t ms) {
        std::vector<std::int64_t> times;
        int before = calls.tried(portOf(channel));
        for (std::int64_t t = 0; t < ms; t += 10) {
            run(10);
            const int now = calls.tried(portOf(channel));
            if (now > before) times.push_back(t + 10);
            before = now;
        }
        return times;
    }
    int elements(const std::string& array) const {
        int count = 0;
        for (int i = 1; i <= 32; ++i) count += sockets.exists(array, i) ? 1 : 0;
        return count;
    }
};

TEST_F(RemoteLinkTest, DoesNothingBeforeItIsStarted) {
    load();
    run(3000);
    EXPECT_THAT(triedPorts(), Each(0));
    EXPECT_FALSE(link.started());
    EXPECT_FALSE(link.command("Mode"));
}

TEST_F(RemoteLinkTest, TheCommandConnectionComesFirstAndTheOthersAfterIt) {
    load();
    link.start();
    run(100);
    EXPECT_THAT(triedPorts(), ElementsAre(1, 0, 0, 0, 0, 0));
    EXPECT_TRUE(link.connected(RemoteChannel::command));
    EXPECT_FALSE(link.allConnected());
    run(2000);
    EXPECT_TRUE(link.allConnected());
    EXPECT_THAT(triedPorts(), Each(1));
    EXPECT_THAT(accepted,
                ElementsAre("wskCommand", "wskSensor", "wskVideo", "wskAudio", "wskSendVoice", "wskTTS"));
    EXPECT_EQ(gui.ConnectionList.count(), 1U);
}

TEST_F(RemoteLinkTest, StartedTwiceItConnectsOnce) {
    connectAll();
    link.start();
    run(2000);
    EXPECT_THAT(triedPorts(), Each(1));
    EXPECT_THAT(states, IsEmpty());
}

TEST_F(RemoteLinkTest, AStationThatDoesNotListenIsTriedAfter1And2And4And8AndThenEvery15Seconds) {
    link.start();
    EXPECT_THAT(dialled(RemoteChannel::command, 50'000), ElementsAre(1000, 3000, 7000, 15000, 30000, 45000));
    EXPECT_EQ(link.problem(RemoteChannel::command), "Connection refused");
    EXPECT_EQ(link.state(RemoteChannel::command), ChannelState::waiting);
    ASSERT_TRUE(link.nextTryInMs(RemoteChannel::command));
    EXPECT_LE(*link.nextTryInMs(RemoteChannel::command), 15'000);
    EXPECT_THAT(triedPorts(), ElementsAre(7, 0, 0, 0, 0, 0));
}

TEST_F(RemoteLinkTest, AStationOutOfReachIsGivenUpAfterFiveSecondsAndTriedAgain) {
    load();
    calls.setReachable(false);
    link.start();
    run(4990);
    EXPECT_EQ(link.state(RemoteChannel::command), ChannelState::connecting);
    run(20);
    EXPECT_EQ(link.problem(RemoteChannel::command), "no answer within 5 s");
    calls.setReachable(true);
    run(4000);
    EXPECT_TRUE(link.allConnected());
}

TEST_F(RemoteLinkTest, AStationThatRefusesIsAskedAgainLaterAndLater) {
    load();
    gui.chkRemote.operatorSet(false);
    link.start();
    const auto times = dialled(RemoteChannel::command, 40'000);
    EXPECT_EQ(times.size(), 5U);
    EXPECT_EQ(link.problem(RemoteChannel::command), "the station closed the connection");
    EXPECT_THAT(triedPorts(), ElementsAre(6, 0, 0, 0, 0, 0));
}

TEST_F(RemoteLinkTest, SideConnectionsThatAStationDoesNotTakeAreTriedAgain) {
    load();
    link.start();
    run(1500);
    // As if the question stood: the command connection is up, the others are not taken.
    link.hangUp(RemoteChannel::sensor);
    run(100);
    values.callAccepted = false;
    link.start();
    run(500);
    EXPECT_EQ(link.state(RemoteChannel::sensor), ChannelState::waiting);
    EXPECT_TRUE(link.connected(RemoteChannel::command));
    values.callAccepted = true;
    run(4000);
    EXPECT_TRUE(link.allConnected());
}

TEST_F(RemoteLinkTest, PingGoesOutAtOnceAndEveryThreeSecondsWhileItIsWanted) {
    load();
    link.start();
    run(1500);
    int pings = 0;
    sockets.onSend = nullptr;
    gui.connCheckTicks = 50;
    for (int i = 0; i < 100; ++i) {
        const Integer before = gui.connCheckTicks;
        run(300);
        if (gui.connCheckTicks < before) ++pings;
    }
    EXPECT_NEAR(pings, 10, 1);
    link.setPinging(false);
    run(6000);
    EXPECT_GE(gui.connCheckTicks, 19);
    link.setPinging(true);
    run(10);
    EXPECT_EQ(gui.connCheckTicks, 0) << "switched on it goes out at once";
}

TEST_F(RemoteLinkTest, ASilentClientIsDroppedAndComesBackByItself) {
    connectAll();
    link.setPinging(false);
    run(31'000);
    EXPECT_THAT(states, Contains("command waiting"));
    EXPECT_THAT(states, IsSupersetOf({"sensor off", "video off", "audio off", "voice off", "speech off"}));
    run(3000);
    EXPECT_TRUE(link.allConnected());
    EXPECT_EQ(gui.ConnectionList.count(), 1U);
}

TEST_F(RemoteLinkTest, WithoutReconnectingALostConnectionStaysDown) {
    connectAll();
    link.setReconnect(false);
    station.gui.chkRemote.operatorSet(false);
    run(60'000);
    EXPECT_FALSE(link.started());
    for (const RemoteChannel channel : kRemoteChannels) EXPECT_EQ(link.state(channel), ChannelState::off);
    EXPECT_EQ(link.problem(RemoteChannel::command), "the station closed the connection");
    EXPECT_EQ(link.problem(RemoteChannel::video), "the command connection is gone");
    EXPECT_THAT(triedPorts(), Each(1));
}

TEST_F(RemoteLinkTest, ABrokenConnectionIsTakenUpAgainTheCommandConnectionFirst) {
    connectAll();
    accepted.clear();
    calls.breakAll();
    run(500);
    EXPECT_EQ(link.problem(RemoteChannel::command), "the connection broke");
    run(4000);
    EXPECT_TRUE(link.allConnected());
    ASSERT_EQ(accepted.size(), 6U);
    EXPECT_EQ(accepted[0], "wskCommand");
}

TEST_F(RemoteLinkTest, NoCommandIsKeptForAConnectionThatIsNotThere) {
    connectAll();
    calls.breakAll();
    run(100);
    EXPECT_FALSE(link.command("Mode"));
    const bool wandering = values.requestWander;
    run(5000);
    ASSERT_TRUE(link.allConnected());
    EXPECT_EQ(values.requestWander, wandering);
    EXPECT_FALSE(values.requestIdle);
}

TEST_F(RemoteLinkTest, AChannelThatIsHungUpStaysDownAndTheOthersStand) {
    connectAll();
    link.hangUp(RemoteChannel::sensor);
    run(20'000);
    EXPECT_EQ(link.state(RemoteChannel::sensor), ChannelState::off);
    EXPECT_EQ(link.problem(RemoteChannel::sensor), "");
    EXPECT_TRUE(link.connected(RemoteChannel::video));
    EXPECT_EQ(elements("wskSensor"), 0);
    link.start();
    run(2000);
    EXPECT_TRUE(link.allConnected());
}

TEST_F(RemoteLinkTest, WithTheCommandConnectionAllAreHungUp) {
    connectAll();
    link.hangUp(RemoteChannel::command);
    run(1000);
    for (const RemoteChannel channel : kRemoteChannels) EXPECT_EQ(link.state(channel), ChannelState::off);
    EXPECT_EQ(gui.ConnectionList.count(), 0U);
}

TEST_F(RemoteLinkTest, StoppedItClosesInOrderAndTheStationLosesEachElement) {
    connectAll();
    std::vector<std::string> shut;
    sockets.onShut = [&](const std::string& array, int) { shut.push_back(array); };
    link.stop();
    run(30'000);
    EXPECT_THAT(shut,
                ElementsAre("wskTTS", "wskSendVoice", "wskAudio", "wskVideo", "wskSensor", "wskCommand"));
    for (const char* array : {"wskTTS", "wskSendVoice", "wskAudio", "wskVideo", "wskSensor", "wskCommand"})
        EXPECT_EQ(elements(array), 0) << array;
    EXPECT_THAT(triedPorts(), Each(1));
}

TEST_F(RemoteLinkTest, ReportsOfChangesAndPeriodicOnesComeInAndRenewTheAge) {
    connectAll();
    EXPECT_FALSE(link.reportAgeMs());
    EXPECT_FALSE(link.answered());
    modeBecomes("JOY");
    EXPECT_THAT(reports, ElementsAre("0,0,0,,JOY,0"));
    ASSERT_TRUE(link.report());
    EXPECT_EQ(link.report()->mode, "JOY");
    EXPECT_TRUE(link.answered());
    run(1000);
    EXPECT_NEAR(static_cast<double>(*link.reportAgeMs()), 1000, 20);
}

TEST_F(RemoteLinkTest, ReportsThatRunTogetherAreToldOneByOne) {
    connectAll();
    gui.txtRobotStatus.setText("JOY");
    gui.txtRobotStatus.setText("IDLE");
    run(10);
    EXPECT_THAT(reports, ElementsAre("0,0,0,,JOY,0", "0,0,0,,IDLE,0"));
}

TEST_F(RemoteLinkTest, AReadThatCannotBeToldApartIsToldAsItIsAndStillRenewsTheAge) {
    connectAll();
    std::vector<std::string> unreadable;
    link.onUnreadable.add([&](const std::string& read) { unreadable.push_back(read); });
    gui.txtRobotCurrX.operatorEdit("1,5");
    run(10);
    EXPECT_THAT(unreadable, ElementsAre("1,5,0,0,,,0"));
    EXPECT_THAT(reports, IsEmpty());
    EXPECT_TRUE(link.reportAgeMs());
}

TEST_F(RemoteLinkTest, TheAgeGoesOnOverALostConnection) {
    connectAll();
    modeBecomes("JOY");
    calls.setReachable(false);
    calls.breakAll();
    run(10'000);
    EXPECT_GE(*link.reportAgeMs(), 10'000);
    EXPECT_EQ(link.report()->mode, "JOY");
}

TEST_F(RemoteLinkTest, TheRoundTripIsTheCommandConnections) {
    EXPECT_FALSE(link.roundTripMs());
    calls.setRoundTripMs(3.5);
    connectAll();
    ASSERT_TRUE(link.roundTripMs());
    EXPECT_EQ(*link.roundTripMs(), 3.5);
    link.stop();
    EXPECT_FALSE(link.roundTripMs());
}

TEST_F(RemoteLinkTest, BytesGoOverAConnectedChannelAsTheyAreAndElseNotAtAll) {
    connectAll();
    EXPECT_TRUE(link.send(RemoteChannel::tts, "hello"));
    link.hangUp(RemoteChannel::tts);
    EXPECT_FALSE(link.send(RemoteChannel::tts, "hello"));
}

TEST(RemoteLinkBytes, WhatComesOnAChannelIsToldAsItCame) {
    VirtualClock clock;
    VirtualSockets sockets(clock);
    VirtualCalls calls(clock, sockets);
    RemoteLink link(clock, calls, "station");
    std::vector<std::unique_ptr<Socket>> held;
    for (const RemoteChannel channel : kRemoteChannels) {
        const std::string array(nameOf(channel));
        held.push_back(sockets.create(array, 0));
        held.push_back(sockets.create(array, 1));
        Socket* listener = held[held.size() - 2].get();
        Socket* element = held.back().get();
        listener->setLocalPort(portOf(channel));
        listener->onConnectionRequest = [element](std::int64_t request) { element->accept(request); };
        listener->listen();
    }
    std::vector<std::string> got;
    link.onBytes.add([&](RemoteChannel channel, std::string_view bytes) {
        got.push_back(std::string(nameOf(channel)) + " " + std::string(bytes));
    });
    link.start();
    clock.runFor(1000);
    held[5]->send("^\x02Name:9^\r");
    clock.runFor(10);
    EXPECT_THAT(got, ElementsAre("video ^\x02Name:9^\r"));
}

TEST_F(RemoteLinkTest, TwoClientsOfOneStationStandBesideEachOther) {
    RemoteLink other(clock, calls, "station");
    connectAll();
    other.start();
    run(3000);
    EXPECT_TRUE(other.allConnected());
    EXPECT_TRUE(link.allConnected());
    EXPECT_EQ(gui.ConnectionList.count(), 2U);
    modeBecomes("JOY");
    EXPECT_EQ(other.report()->mode, "JOY");
    EXPECT_EQ(link.report()->mode, "JOY");
}

TEST_F(RemoteLinkTest, AListenerMayStopTheLinkInEveryStateOfIt) {
    load();
    for (const char* stopAt : {"command connecting", "command connected", "sensor waiting",
                               "sensor connecting", "sensor connected", "speech connected"}) {
        RemoteLink one(clock, calls, "station");
        one.onState.add([&](RemoteChannel channel) {
            if (std::string(nameOf(channel)) + " " + stateName(one.state(channel)) == stopAt) one.stop();
        });
        one.start();
        run(3000);
        for (const RemoteChannel channel : kRemoteChannels)
            EXPECT_EQ(one.state(channel), ChannelState::off) << stopAt << " " << nameOf(channel);
    }
    EXPECT_EQ(gui.ConnectionList.count(), 0U);
}

}  // namespace
}  // namespace quorrin

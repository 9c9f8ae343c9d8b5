// How clients come in: listeners, calls, the operator's question, elements, the list.
#include <gmock/gmock.h>

#include "sound/wave_resource.h"
#include "support/remote_bench.h"

namespace quorrin {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

const std::string kQuestion = "box Incomming call from [10.0.0.5]...\r\nDo you wish to answer?";

struct RemoteCall : RemoteBench, testing::Test {};

TEST_F(RemoteCall, TheListenersComeUpInTheirOrderAheadOfTheSoundCapture) {
    station.startAtMainForm();
    std::vector<std::string> tail(log.end() - 7, log.end());
    EXPECT_THAT(tail, ElementsAre("listen wskCommand 7060", "listen wskVideo 7080", "listen wskSensor 7070",
                                  "listen wskAudio 7090", "listen wskTTS 7050", "listen wskSendVoice 7040",
                                  "robotTI.StopSoundCapture"));
}

TEST_F(RemoteCall, TheLoadForgetsThatCommandsWereSeen) {
    values.remoteCommandsSeen = true;
    load();
    EXPECT_FALSE(values.remoteCommandsSeen);
    EXPECT_FALSE(values.callAccepted);
}

TEST_F(RemoteCall, NobodyIsHeardBeforeTheLoad) {
    call();
    EXPECT_THAT(takeSockets(), IsEmpty());
}

TEST_F(RemoteCall, IsAnsweredByItselfWhileTheSwitchIsChecked) {
    load();
    call(40123);
    EXPECT_THAT(takeSockets(), ElementsAre("accept wskCommand 1", "ring"));
    EXPECT_TRUE(values.callAccepted);
    EXPECT_EQ(gui.imgStatus.number(), 1);
    EXPECT_THAT(lines(), ElementsAre("10.0.0.5  [40123] - [7060]"));
    EXPECT_EQ(gui.ConnectionList.itemData(0), 1);
}

TEST_F(RemoteCall, TheRingHoldsTheStationForItsLengthAndTheListShowsTheClientMeanwhile) {
    load();
    std::vector<std::string> listed;
    int status = -1;
    wave.onPlay = [&] {
        listed = lines();
        status = gui.imgStatus.number();
    };
    call();
    EXPECT_EQ(clock.nowMs(), 1907);
    EXPECT_EQ(listed.size(), 1U);
    EXPECT_EQ(status, 3);  // the picture comes after the ring
    EXPECT_EQ(wave.last, *waveResource(kRingTone));
}

TEST_F(RemoteCall, TheOperatorIsAskedWhileTheSwitchIsUnchecked) {
    load();
    gui.chkRemote.operatorSet(false);
    takeSockets();
    boxes.prepareAnswer(BoxAnswer::yes);
    call();
    EXPECT_THAT(takeSockets(), ElementsAre(kQuestion, "accept wskCommand 1", "ring"));
    EXPECT_TRUE(gui.chkRemote.checked());
    EXPECT_EQ(gui.imgNetwork.number(), 4);
    EXPECT_TRUE(values.callAccepted);
}

TEST_F(RemoteCall, ANoChangesNothingAndTheSideChannelsStayShut) {
    load();
    gui.chkRemote.operatorSet(false);
    takeSockets();
    boxes.prepareAnswer(BoxAnswer::no);
    call();
    EXPECT_THAT(takeSockets(), ElementsAre(kQuestion));
    EXPECT_FALSE(values.callAccepted);
    EXPECT_FALSE(gui.chkRemote.checked());
    EXPECT_EQ(gui.imgNetwork.number(), 5);
    EXPECT_EQ(gui.imgStatus.number(), 3);
    for (const char* array : {"wskSensor", "wskVideo", "wskAudio", "wskSendVoice", "wskTTS"}) connect(array);
    EXPECT_THAT(takeSockets(), IsEmpty());
    EXPECT_FALSE(gui.sensorClientConnected);
    EXPECT_FALSE(values.videoClientConnected);
}

TEST_F(RemoteCall, TheQuestionNamesTheCallerInUpperCase) {
    load();
    gui.chkRemote.operatorSet(false);
    takeSockets();
    sockets.connect("wskCommand", "fe80::1b", 1, "robin.example");
    EXPECT_THAT(takeSockets(),
                ElementsAre("box Incomming call from [ROBIN.EXAMPLE]...\r\nDo you wish to answer?"));
    sockets.connect("wskCommand", "fe80::1b", 1);
    EXPECT_THAT(takeSockets(),
                ElementsAre("box Incomming call from [FE80::1B]...\r\nDo you wish to answer?"));
}

TEST_F(RemoteCall, TheListShowsTheAddressAndNotTheName) {
    load();
    sockets.connect("wskCommand", "10.0.0.9", 5, "robin.example");
    EXPECT_THAT(lines(), ElementsAre("10.0.0.9  [5] - [7060]"));
}

TEST_F(RemoteCall, TheFiveSideChannelsFollowInAnyOrder) {
    load();
    call();
    takeSockets();
    for (const char* array : {"wskTTS", "wskSendVoice", "wskVideo", "wskAudio", "wskSensor"}) connect(array);
    EXPECT_THAT(takeSockets(), ElementsAre("accept wskTTS 1", "accept wskSendVoice 1", "accept wskVideo 1",
                                           "accept wskAudio 1", "accept wskSensor 1"));
    EXPECT_TRUE(gui.sensorClientConnected);
    EXPECT_TRUE(values.videoClientConnected);
    EXPECT_EQ(lines().size(), 1U);
}

TEST_F(RemoteCall, ASideChannelNeitherAsksNorRings) {
    load();
    call();
    gui.chkRemote.operatorSet(false);
    values.callAccepted = true;
    takeSockets();
    const std::int64_t before = clock.nowMs();
    connect("wskSensor");
    EXPECT_THAT(takeSockets(), ElementsAre("accept wskSensor 1"));
    EXPECT_EQ(clock.nowMs(), before);
}

TEST_F(RemoteCall, ASideChannelAheadOfTheCommandIsNeverAccepted) {
    load();
    connect("wskSensor");
    EXPECT_THAT(takeSockets(), IsEmpty());
    EXPECT_FALSE(gui.sensorClientConnected);
}

TEST_F(RemoteCall, TheThirtyThirdClientIsNotAccepted) {
    load();
    for (int i = 1; i <= 32; ++i) call(40000 + i);
    takeSockets();
    values.callAccepted = false;
    gui.imgStatus.setNumber(3);
    call(41000);
    EXPECT_THAT(takeSockets(), IsEmpty());
    EXPECT_EQ(lines().size(), 32U);
    EXPECT_TRUE(values.callAccepted);  // though nothing further happened
    EXPECT_EQ(gui.imgStatus.number(), 3);
}

TEST_F(RemoteCall, TheThirtyThirdClientOfASideChannelIsNotAcceptedEither) {
    load();
    call();
    for (int i = 1; i <= 32; ++i) connect("wskSensor", i);
    gui.sensorClientConnected = false;
    takeSockets();
    connect("wskSensor", 33);
    EXPECT_THAT(takeSockets(), IsEmpty());
    EXPECT_FALSE(gui.sensorClientConnected);
}

TEST_F(RemoteCall, TheFirstElementThatDoesNotExistIsTaken) {
    load();
    for (int port : {1, 2, 3}) call(port);
    sockets.hangUp("wskCommand", 2);
    takeSockets();
    call(4);
    call(5);
    EXPECT_THAT(takeSockets(), ElementsAre("accept wskCommand 2", "ring", "accept wskCommand 4", "ring"));
    EXPECT_EQ(gui.ConnectionList.itemData(2), 2);
}

TEST_F(RemoteCall, ACallDuringTheRingWaitsForItsEnd) {
    load();
    const auto callAt = [this](std::int64_t ms, int port) {
        clock.arriveAt(
            ms, [this, port] { call(port); }, &sockets.source("wskCommand"));
    };
    callAt(2000, 1);
    callAt(2001, 2);
    clock.runUntil(2000);
    EXPECT_EQ(clock.nowMs(), 2907);
    EXPECT_EQ(lines().size(), 1U);
    clock.runUntil(2907);
    EXPECT_EQ(lines().size(), 2U);
    EXPECT_EQ(clock.nowMs(), 2907 + 907);
}

TEST_F(RemoteCall, ACallWhileTheQuestionStandsWaitsForItsAnswer) {
    load();
    gui.chkRemote.operatorSet(false);
    int questions = 0;
    bool askedMeanwhile = false;
    boxes.onShow = [&](const std::string&, const std::string&, BoxAnswer) {
        if (++questions > 1) return;
        clock.arrive([this] { call(2); }, &sockets.source("wskCommand"));
        clock.yield();
        askedMeanwhile = questions > 1;
    };
    clock.arrive([this] { call(1); }, &sockets.source("wskCommand"));
    clock.runFor(0);
    EXPECT_FALSE(askedMeanwhile);
    EXPECT_EQ(questions, 2);
}

TEST_F(RemoteCall, UncheckingTheSwitchWithNobodyThereStillEndsTheOpenState) {
    load();
    values.callAccepted = true;
    gui.chkRemote.operatorSet(false);
    EXPECT_FALSE(values.callAccepted);
    EXPECT_EQ(gui.imgNetwork.number(), 5);
    EXPECT_EQ(gui.imgStatus.number(), 3);
    gui.chkRemote.operatorSet(true);
    EXPECT_EQ(gui.imgNetwork.number(), 4);
    EXPECT_FALSE(values.callAccepted);
}

TEST_F(RemoteCall, UncheckingTheSwitchEndsTheClients) {
    load();
    session();
    gui.chkRemote.operatorSet(false);
    EXPECT_THAT(takeSockets(), ElementsAre("shut wskAudio 1", "shut wskTTS 1", "shut wskSendVoice 1",
                                           "shut wskSensor 1", "shut wskVideo 1", "shut wskCommand 1"));
    EXPECT_THAT(lines(), IsEmpty());
    EXPECT_FALSE(values.callAccepted);
}

TEST_F(RemoteCall, APortInUseIsTriedAgainEachSecondUntilItIsFree) {
    sockets.setPortTaken(7060, true);
    load();
    EXPECT_EQ(values.listenProblem, "port 7060 is in use");
    clock.runUntil(1999);
    EXPECT_THAT(takeSockets(), IsEmpty());
    clock.runUntil(2000);
    EXPECT_THAT(takeSockets(), ElementsAre("shut wskCommand 0"));
    clock.runUntil(3000);
    EXPECT_THAT(takeSockets(), ElementsAre("shut wskCommand 0"));
    sockets.setPortTaken(7060, false);
    clock.runUntil(4000);
    EXPECT_THAT(takeSockets(), ElementsAre("shut wskCommand 0", "listen wskCommand 7060"));
    EXPECT_EQ(values.listenProblem, "");
    call();
    EXPECT_THAT(takeSockets(), ElementsAre("accept wskCommand 1", "ring"));
}

TEST_F(RemoteCall, APortInUseOfOneChannelLeavesTheOthersUp) {
    sockets.setPortTaken(7080, true);
    sockets.setPortTaken(7040, true);
    load();
    EXPECT_EQ(values.listenProblem, "port 7080 is in use, port 7040 is in use");
    call();
    connect("wskSensor");
    connect("wskVideo");
    EXPECT_THAT(takeSockets(), ElementsAre("accept wskCommand 1", "ring", "accept wskSensor 1"));
}

TEST_F(RemoteCall, AnElementWithoutAPortListensOn7040AndOneThatListensIsLeftAlone) {
    const auto element = sockets.create("wskOther", 0);
    startListening(*element);
    startListening(*element);
    EXPECT_THAT(takeSockets(), ElementsAre("listen wskOther 7040"));
}

TEST(RingTone, IsEightBitMonoOf11025HertzAndALittleUnderASecond) {
    const std::string& wav = *waveResource(101);
    EXPECT_EQ(wav.size(), 10038U);
    EXPECT_EQ(waveLengthMs(wav), 907);
    EXPECT_EQ(wav.substr(0, 4) + wav.substr(8, 8), "RIFFWAVEfmt ");
    const auto number = [&wav](std::size_t at, int bytes) {
        std::uint32_t value = 0;
        for (int i = bytes; i-- > 0;)
            value = value << 8U | static_cast<unsigned char>(wav[at + static_cast<std::size_t>(i)]);
        return value;
    };
    EXPECT_EQ(number(4, 4), 10030U);
    EXPECT_EQ(number(20, 2), 1U);
    EXPECT_EQ(number(22, 2), 1U);
    EXPECT_EQ(number(24, 4), 11025U);
    EXPECT_EQ(number(34, 2), 8U);
    EXPECT_EQ(number(40, 4), 9994U);
    EXPECT_NE(wav.substr(44, 100), wav.substr(144, 100));
}

TEST(RingTone, IsTheOnlySoundOfTheProgram) {
    EXPECT_EQ(waveResource(100), nullptr);
    EXPECT_EQ(waveLengthMs("short"), 0);
}

}  // namespace
}  // namespace quorrin

// What the client's window says, with a whole station at the other end.
#include "client/client_face.h"

#include <gmock/gmock.h>

#include "support/desk_bench.h"

namespace quorrin {
namespace {

using testing::HasSubstr;

struct ClientFaceTest : DeskBench, testing::Test {
    ClientFaceTest() {
        forward.forward = true;
        calls.setRoundTripMs(12.4);
    }
    const Glance& channel(const ClientFace& from, RemoteChannel which) const {
        return from.channels[static_cast<std::size_t>(which)];
    }
    // Held by this client, in JOY as its station reports it.
    void hold() {
        connectAll();
        modeBecomes("wondering");
        setKeys(forward);
        run(200);
        modeBecomes("JOY");
    }

    HeldKeys forward;
};

TEST_F(ClientFaceTest, BeforeAnythingNothingIsKnownAndNothingCanBeDriven) {
    const ClientFace now = face();
    EXPECT_EQ(now.mode.word, "not known");
    EXPECT_EQ(now.holder.word, "not known");
    EXPECT_EQ(now.linkAge.word, "none");
    EXPECT_EQ(now.roundTrip.word, "none");
    EXPECT_EQ(now.connectCaption, "Connect");
    EXPECT_EQ(now.drivingText, "Connect, to drive.");
    EXPECT_FALSE(now.canDrive);
    EXPECT_FALSE(now.canRelease);
    for (const Glance& one : now.channels) EXPECT_EQ(one.word, "off");
}

TEST_F(ClientFaceTest, ConnectedAllSixSaySoWithTheirPorts) {
    connectAll();
    modeBecomes("IDLE");
    const ClientFace now = face();
    for (const RemoteChannel one : kRemoteChannels) {
        EXPECT_EQ(channel(now, one).word, "connected");
        EXPECT_EQ(channel(now, one).detail, "port " + std::to_string(portOf(one)));
        EXPECT_EQ(channel(now, one).tone, Tone::good);
    }
    EXPECT_EQ(now.connectCaption, "Disconnect");
    EXPECT_TRUE(now.canDrive);
}

TEST_F(ClientFaceTest, ACommandConnectionThatWasNotAnsweredByAReportIsInDoubt) {
    connectAll();
    const Glance command = channel(face(), RemoteChannel::command);
    EXPECT_EQ(command.tone, Tone::busy);
    EXPECT_THAT(command.detail, HasSubstr("no report yet"));
}

TEST_F(ClientFaceTest, AStationThatIsNotThereIsCalledAgainAndTheSecondsAreCounted) {
    desk.connect("station");
    run(10);
    const Glance command = channel(face(), RemoteChannel::command);
    EXPECT_EQ(command.word, "in 1 s");
    EXPECT_EQ(command.tone, Tone::warning);
    EXPECT_NE(command.detail, "");
    EXPECT_EQ(face().drivingText, "Waiting for the station.");
}

TEST_F(ClientFaceTest, ACallUnderWaySaysSo) {
    load();
    calls.setReachable(false);
    desk.connect("station");
    run(10);
    EXPECT_EQ(channel(face(), RemoteChannel::command).word, "calling");
}

TEST_F(ClientFaceTest, SideConnectionsThatFellWithTheCommandConnectionAreLost) {
    connectAll();
    calls.breakAll();
    run(10);
    const Glance video = channel(face(), RemoteChannel::video);
    EXPECT_EQ(video.word, "lost");
    EXPECT_EQ(video.tone, Tone::bad);
}

struct ModeWords {
    const char* reported;
    const char* word;
    Tone tone;
    ModePicture picture;
};

class ClientFaceModes : public ClientFaceTest, public testing::WithParamInterface<ModeWords> {};

TEST_P(ClientFaceModes, AreSaidInTheStationsOwnWords) {
    connectAll();
    modeBecomes(GetParam().reported);
    const ClientFace now = face();
    EXPECT_EQ(now.mode.word, GetParam().word);
    EXPECT_EQ(now.mode.tone, GetParam().tone);
    EXPECT_EQ(now.modePicture, GetParam().picture);
}

INSTANTIATE_TEST_SUITE_P(
    All, ClientFaceModes,
    testing::Values(ModeWords{"IDLE", "IDLE", Tone::off, ModePicture::idle},
                    ModeWords{"wondering", "wondering", Tone::good, ModePicture::wandering},
                    ModeWords{"JOY", "JOY", Tone::good, ModePicture::joystick},
                    ModeWords{"comm wrong", "comm wrong", Tone::bad, ModePicture::none},
                    ModeWords{"what a long mode", "what a lo...", Tone::warning, ModePicture::none}),
    [](const auto& tested) { return "Mode" + std::to_string(tested.index); });

TEST_F(ClientFaceTest, TheModeIsUnknownAsSoonAsTheConnectionIsGone) {
    connectAll();
    modeBecomes("JOY");
    calls.breakAll();
    run(10);
    EXPECT_EQ(face().mode.word, "not known");
    EXPECT_EQ(face().modePicture, ModePicture::none);
}

TEST_F(ClientFaceTest, ThisClientHoldsFromItsFirstCommandOn) {
    connectAll();
    modeBecomes("IDLE");
    setKeys(forward);
    run(10);
    EXPECT_EQ(face().holder.word, "you");
    EXPECT_EQ(face().holder.tone, Tone::busy) << "not in JOY yet";
    EXPECT_TRUE(face().canRelease);
}

TEST_F(ClientFaceTest, HoldingAndDrivingIsToldFromHoldingAndStanding) {
    hold();
    EXPECT_EQ(face().holder.detail, "You drive.");
    setKeys({});
    EXPECT_EQ(face().holder.detail, "The robot stands and waits.");
    EXPECT_EQ(face().holder.tone, Tone::good);
}

TEST_F(ClientFaceTest, AReleaseUnderWayIsToldOf) {
    connectAll();
    setKeys(forward);
    run(100);
    desk.drive([](RemoteDriver& driver) { driver.release(); });
    EXPECT_EQ(face().holder.detail, "It is being let go.");
    desk.disconnect();
    EXPECT_EQ(face().drivingText, "Letting the robot go.");
    EXPECT_EQ(face().connectCaption, "Connect");
    EXPECT_FALSE(face().canDrive);
}

TEST_F(ClientFaceTest, SomebodyElseHoldsAJoyThatThisClientDoesNot) {
    connectAll();
    modeBecomes("JOY");
    EXPECT_EQ(face().holder.word, "not you");
}

TEST_F(ClientFaceTest, AWanderingRobotIsHeldByNobody) {
    connectAll();
    modeBecomes("wondering");
    EXPECT_EQ(face().holder.word, "nobody");
}

TEST_F(ClientFaceTest, AHoldThatWasCutOffIsBad) {
    hold();
    calls.breakAll();
    run(10);
    EXPECT_EQ(face().holder.word, "you, cut off");
    EXPECT_EQ(face().holder.tone, Tone::bad);
    EXPECT_FALSE(face().canRelease);
}

TEST_F(ClientFaceTest, KeysThatWereHeldThroughAReconnectHaveToBeLetGo) {
    hold();
    calls.breakAll();
    run(3000);
    ASSERT_TRUE(face().canDrive);
    EXPECT_EQ(face().drivingText, "Let all keys and the stick go first.");
    EXPECT_EQ(face().holder.tone, Tone::warning);
}

TEST_F(ClientFaceTest, TheReleaseTextSaysWhatTheRobotDoesThen) {
    hold();
    EXPECT_EQ(face().releaseText, "The robot stops, and then wanders off by itself.");
}

TEST_F(ClientFaceTest, LinkAgeCountsFromTheLastReport) {
    connectAll();
    modeBecomes("IDLE");
    run(1190);
    EXPECT_EQ(face().linkAge.word, "1.2 s");
    EXPECT_EQ(face().linkAge.tone, Tone::good);
}

TEST_F(ClientFaceTest, AnOverdueReportWarnsAndALongSilenceIsBad) {
    connectAll();
    modeBecomes("IDLE");
    calls.setPulled(true);
    run(RemoteLink::kLateMs - 20);
    EXPECT_EQ(face().linkAge.tone, Tone::good);
    run(20);
    EXPECT_EQ(face().linkAge.tone, Tone::warning);
    run(kLostMs - RemoteLink::kLateMs);
    EXPECT_EQ(face().linkAge.tone, Tone::bad);
}

TEST_F(ClientFaceTest, WithoutAConnectionTheLastReportHasAnAge) {
    connectAll();
    modeBecomes("IDLE");
    desk.disconnect();
    run(2990);
    EXPECT_EQ(face().linkAge.detail, "last report 3 s ago");
}

TEST_F(ClientFaceTest, LatencyIsTheKernelsWithATenthWhereThatCounts) {
    connectAll();
    EXPECT_EQ(face().roundTrip.word, "12 ms");
    calls.setRoundTripMs(0.31);
    EXPECT_EQ(face().roundTrip.word, "0.3 ms");
    calls.setRoundTripMs(0.02);
    EXPECT_EQ(face().roundTrip.word, "under 0.1 ms");
}

TEST_F(ClientFaceTest, AGreatLatencyWarns) {
    connectAll();
    calls.setRoundTripMs(kSlowMs - 0.1);
    EXPECT_EQ(face().roundTrip.tone, Tone::good);
    calls.setRoundTripMs(kSlowMs);
    EXPECT_EQ(face().roundTrip.tone, Tone::warning);
}

TEST_F(ClientFaceTest, ThePersonIsSaidByPlace) {
    connectAll();
    const std::pair<const char*, const char*> kPlaces[] = {
        {"1", "right"}, {"2", "left"}, {"3", "near"}, {"4", "nobody"}};
    for (const auto& [number, word] : kPlaces) {
        gui.txtHumanLocation.setText(number);
        run(10);
        EXPECT_EQ(face().person.word, word);
    }
}

TEST_F(ClientFaceTest, ThePositionIsWhatTheBoxesSay) {
    connectAll();
    gui.txtRobotCurrX.setText("12");
    gui.txtRobotCurrY.setText("-3");
    run(10);
    EXPECT_EQ(face().position.word, "12, -3, 0");
    EXPECT_THAT(face().position.detail, HasSubstr("X 12  Y -3  Z 0"));
}

TEST_F(ClientFaceTest, TextsOfTheStationAreCutAndShownPlainly) {
    EXPECT_EQ(shown("plain"), "plain");
    EXPECT_EQ(shown("a\tb\x80"), "a?b?");
    EXPECT_EQ(shown("123456789012"), "123456789012");
    EXPECT_EQ(shown("1234567890123"), "123456789...");
}

TEST_F(ClientFaceTest, LevelsAreTheOnesThatWentOut) {
    hold();
    EXPECT_EQ(face().gasText, "25 %");
    EXPECT_EQ(face().gas, 0.25);
    HeldKeys left;
    left.left = true;
    setKeys(left);
    EXPECT_EQ(face().steeringText, "10 % left");
    EXPECT_EQ(face().gasText, "0 %");
    HeldKeys brake;
    brake.brake = true;
    setKeys(brake);
    EXPECT_TRUE(face().brake);
    EXPECT_EQ(face().steeringText, "straight");
}

TEST_F(ClientFaceTest, FullLeftReadsAsAllOfIt) {
    connectAll();
    HeldKeys left;
    left.left = true;
    setKeys(left);
    run(3000);
    EXPECT_EQ(face().steeringText, "100 % left");
}

TEST_F(ClientFaceTest, ASliderThatHasTheArrowKeysIsNamed) {
    connectAll();
    EXPECT_THAT(faceOf(desk, true).drivingText, HasSubstr("slider"));
    EXPECT_THAT(faceOf(desk, false).drivingText, HasSubstr("arrow key"));
}

TEST_F(ClientFaceTest, AJoystickIsToldOf) {
    connectAll();
    EXPECT_EQ(face().stickText, "No joystick.");
    clientSticks.attach();
    run(StickWatch::kSearchMs);
    EXPECT_THAT(face().stickText, HasSubstr("take over"));
    JoystickState takeOver;
    takeOver.buttons[0] = takeOver.buttons[6] = true;
    clientSticks.move(takeOver);
    EXPECT_THAT(face().stickText, HasSubstr("drives"));
}

}  // namespace
}  // namespace quorrin

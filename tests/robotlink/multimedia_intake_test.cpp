#include "robotlink/multimedia_intake.h"

#include <gtest/gtest.h>

#include "support/fake_link.h"
#include "support/intake_form.h"

namespace quorrin {
namespace {

using Log = std::vector<std::string>;

class MultimediaIntake : public ::testing::Test {
  protected:
    MultimediaIntake() {
        powerHooks.pressStart = [this] {
            note("cmdStart");
            startSawPending = mode.autoStartPending;
        };
        imageHooks.encodeVideoFrame = [this] { note("encodeVideoFrame"); };
        imageHooks.announceVideoFrame = [this] { note("announceVideoFrame"); };
        imageHooks.encodeCaptureFrame = [this] { note("encodeCaptureFrame"); };
        soundHooks.recordSendWave = [this](Long address, Long length) {
            note("recordSendWave " + std::to_string(address.value()) + " " + std::to_string(length.value()));
            return sendResult;
        };
        soundHooks.queueRobotSound = [this] {
            note("queueRobotSound " + std::to_string(voice.robotSoundAddress.value()) + " " +
                 std::to_string(voice.robotSoundLength.value()));
        };
    }
    void note(const std::string& line) { log.push_back(line); }
    void powerFrame(int times = 1) {
        for (int i = 0; i < times; ++i) onPowerFrame(robot, link, mode, power, gui, gui, powerHooks);
    }
    void imageFrame(int times = 1) {
        for (int i = 0; i < times; ++i) onImageFrame(camera, gui, imageHooks, robot);
    }
    void soundFrame() { onSoundFrame(robot, remote, voice, gui, soundHooks); }

    VirtualClock clock;
    IntakeForm gui{clock};
    Log log;
    FakeLink robot{log, "robotTI."};
    LinkValues link;
    ModeValues mode;
    PowerValues power;
    CameraValues camera;
    RemoteValues remote;
    VoiceValues voice;
    PowerHooks powerHooks;
    ImageHooks imageHooks;
    SoundHooks soundHooks;
    Long sendResult = -1;
    bool startSawPending = false;
};

TEST_F(MultimediaIntake, RaisesTheLinkOnTheEleventhPowerFrame) {
    powerFrame(10);
    EXPECT_FALSE(link.tiLinkUp);
    EXPECT_EQ(link.tiWarmupCount, 10);
    powerFrame();
    EXPECT_TRUE(link.tiLinkUp);
    EXPECT_EQ(link.tiWarmupCount, 0);
}

TEST_F(MultimediaIntake, PressesStartOnceOnTheEleventhPowerFrame) {
    mode.autoStartPending = true;
    powerFrame(10);
    EXPECT_TRUE(log.empty());
    powerFrame();
    EXPECT_EQ(log, (Log{"cmdStart"}));
    EXPECT_TRUE(startSawPending);  // it is cleared after the press
    EXPECT_FALSE(mode.autoStartPending);
    powerFrame(50);
    EXPECT_EQ(log, (Log{"cmdStart"}));
}

TEST_F(MultimediaIntake, DoesNotPressStartUnlessItIsPending) {
    powerFrame(20);
    EXPECT_TRUE(log.empty());
}

TEST_F(MultimediaIntake, DoesNotPressStartWhenTheLinkIsAlreadyUp) {
    link.tiLinkUp = true;
    mode.autoStartPending = true;
    powerFrame(20);
    EXPECT_TRUE(log.empty());
    EXPECT_TRUE(mode.autoStartPending);
}

TEST_F(MultimediaIntake, RefreshesARaisedLink) {
    link.tiLinkUp = true;
    link.tiSilentTicks = 199;
    link.tiWarmupCount = 3;
    powerFrame();
    EXPECT_EQ(link.tiSilentTicks, 0);
    EXPECT_EQ(link.tiWarmupCount, 0);
}

TEST_F(MultimediaIntake, DoesNotTouchTheSilenceOfALinkThatIsNotUp) {
    link.tiSilentTicks = 7;
    powerFrame(11);
    EXPECT_EQ(link.tiSilentTicks, 7);
}

TEST_F(MultimediaIntake, MeasuresFromTheFirstPowerFrameOn) {
    robot.PowerRefAdc = 4095;
    powerFrame();
    EXPECT_EQ(gui.lblVolRef.caption(), "1.500");
}

// The start resets what it resets before this frame is measured, not after.
TEST_F(MultimediaIntake, StartsTheSessionBeforeItMeasures) {
    mode.autoStartPending = true;
    robot.PowerRefAdc = 4095;
    robot.DcInAdc = 4095;
    robot.Battery1TempAdc = robot.Battery2TempAdc = 900;
    powerHooks.pressStart = [this] { mode.requestIdle = false; };
    powerFrame(11);
    EXPECT_TRUE(mode.requestIdle);
}

TEST_F(MultimediaIntake, AsksForTheNextImageWhateverElseHappens) {
    camera.frameWatchdog = 3;
    imageFrame();
    EXPECT_EQ(log, (Log{"robotTI.RequestImage"}));
    EXPECT_EQ(camera.frameWatchdog, 0);
    EXPECT_EQ(gui.lblVideoCnt.caption(), "0");
}

TEST_F(MultimediaIntake, PreparesAFrameForAReadyClientBeforeItAsksForTheNext) {
    camera.videoClientConnected = camera.videoClientReady = true;
    camera.videoWaitFrames = 4;
    bool readyDuringEncoding = true;
    imageHooks.encodeVideoFrame = [&] {
        note("encodeVideoFrame");
        readyDuringEncoding = camera.videoClientReady;
    };
    imageFrame();
    EXPECT_EQ(log, (Log{"encodeVideoFrame", "announceVideoFrame", "robotTI.RequestImage"}));
    EXPECT_FALSE(readyDuringEncoding);
    EXPECT_FALSE(camera.videoClientReady);
    EXPECT_EQ(camera.videoWaitFrames, 0);
    EXPECT_EQ(gui.lblVideoCnt.caption(), "1");
}

TEST_F(MultimediaIntake, PreparesNothingWithoutAClient) {
    camera.videoClientReady = true;
    imageFrame(3);
    EXPECT_EQ(log, (Log{"robotTI.RequestImage", "robotTI.RequestImage", "robotTI.RequestImage"}));
    EXPECT_TRUE(camera.videoClientReady);
}

TEST_F(MultimediaIntake, ResetsASilentClientOnTheEleventhEventAndSendsOnTheTwelfth) {
    camera.videoClientConnected = true;
    imageFrame(10);
    EXPECT_FALSE(camera.videoClientReady);
    EXPECT_EQ(camera.videoWaitFrames, 10);
    imageFrame();
    EXPECT_TRUE(camera.videoClientReady);
    EXPECT_EQ(camera.videoWaitFrames, 0);
    EXPECT_EQ(gui.lblVideoCnt.caption(), "0");
    imageFrame();
    EXPECT_EQ(gui.lblVideoCnt.caption(), "1");
    EXPECT_FALSE(camera.videoClientReady);
}

TEST_F(MultimediaIntake, SendsASilentClientOneFrameInTwelve) {
    camera.videoClientConnected = true;
    imageFrame(12 * 5);
    EXPECT_EQ(gui.lblVideoCnt.caption(), "5");
    EXPECT_EQ(std::count(log.begin(), log.end(), "announceVideoFrame"), 5);
    EXPECT_EQ(std::count(log.begin(), log.end(), "robotTI.RequestImage"), 60);
}

TEST_F(MultimediaIntake, KeepsAnAnswerThatComesInsideTheAnnouncement) {
    camera.videoClientConnected = camera.videoClientReady = true;
    imageHooks.announceVideoFrame = [this] { camera.videoClientReady = true; };
    imageFrame(3);
    EXPECT_EQ(gui.lblVideoCnt.caption(), "3");
}

TEST_F(MultimediaIntake, ArchivesWhileTheCaptureTimerIsEnabledEvenWithoutAnInterval) {
    gui.tmrCatchPhoto.setRunning(true);
    ASSERT_EQ(gui.tmrCatchPhoto.interval(), 0);
    imageFrame();
    EXPECT_EQ(log, (Log{"encodeCaptureFrame", "robotTI.RequestImage"}));
    log.clear();
    gui.tmrCatchPhoto.setRunning(false);
    imageFrame();
    EXPECT_EQ(log, (Log{"robotTI.RequestImage"}));
}

TEST_F(MultimediaIntake, RunsBothEncodersForAClientDuringACapture) {
    gui.tmrCatchPhoto.setRunning(true);
    camera.videoClientConnected = camera.videoClientReady = true;
    imageFrame();
    EXPECT_EQ(log,
              (Log{"encodeVideoFrame", "announceVideoFrame", "encodeCaptureFrame", "robotTI.RequestImage"}));
}

TEST_F(MultimediaIntake, RemembersEachSoundBuffer) {
    robot.SoundBufferAddress = 70000;
    robot.SoundBufferLength = 3200;
    soundFrame();
    EXPECT_EQ(voice.robotSoundAddress, 70000);
    EXPECT_EQ(voice.robotSoundLength, 3200);
    EXPECT_TRUE(log.empty());
    EXPECT_EQ(gui.lblVoice.caption(), "");
}

TEST_F(MultimediaIntake, SendsASoundBufferToTheRemoteListenerAndShowsTheResult) {
    robot.SoundBufferAddress = 7;
    robot.SoundBufferLength = 640;
    remote.remoteListening = true;
    soundFrame();
    EXPECT_EQ(log, (Log{"recordSendWave 7 640"}));
    EXPECT_EQ(gui.lblVoice.caption(), "True");
    for (const int result : {0, 1, -2}) {
        sendResult = -1;
        soundFrame();
        sendResult = result;
        soundFrame();
        EXPECT_EQ(gui.lblVoice.caption(), "False");
    }
}

TEST_F(MultimediaIntake, PlaysASoundBufferWhenTheOperatorListens) {
    robot.SoundBufferAddress = 9;
    robot.SoundBufferLength = 320;
    soundHooks.listeningToRobot = true;
    soundFrame();
    EXPECT_EQ(log, (Log{"queueRobotSound 9 320"}));
}

TEST_F(MultimediaIntake, ServesTheRemoteListenerBeforeTheLocalOne) {
    remote.remoteListening = soundHooks.listeningToRobot = true;
    soundFrame();
    EXPECT_EQ(log, (Log{"recordSendWave 0 0", "queueRobotSound 0 0"}));
}

}  // namespace
}  // namespace quorrin

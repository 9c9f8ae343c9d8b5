#include "robotlink/multimedia_intake.h"

#include "base/number_text.h"

namespace quorrin {

namespace {

// Ten frames after a gateway start do not count, the next one raises the link.
constexpr int kWarmupFrames = 10;
// Frame events a client may leave unanswered; the next one takes its answer as given.
constexpr int kPatience = 10;

void noteFrame(LinkValues& link, ModeValues& mode, const PowerHooks& hooks) {
    if (link.tiLinkUp) {
        link.tiSilentTicks = 0;
        link.tiWarmupCount = 0;
        return;
    }
    ++link.tiWarmupCount;
    if (link.tiWarmupCount <= kWarmupFrames) return;
    link.tiLinkUp = true;
    link.tiWarmupCount = 0;
    if (mode.autoStartPending) {
        if (hooks.pressStart) hooks.pressStart();
        mode.autoStartPending = false;
    }
}

void serveVideoClient(CameraValues& camera, Label& count, const ImageHooks& hooks) {
    if (!camera.videoClientReady) {
        ++camera.videoWaitFrames;
        if (camera.videoWaitFrames > kPatience) {
            camera.videoClientReady = true;
            camera.videoWaitFrames = 0;
        }
        return;
    }
    camera.videoClientReady = false;
    if (hooks.encodeVideoFrame) hooks.encodeVideoFrame();
    if (hooks.announceVideoFrame) hooks.announceVideoFrame();
    count.setCaption(formatShortest(toDouble(count.caption()) + 1));
    camera.videoWaitFrames = 0;
}

}  // namespace

void onPowerFrame(const LinkProperties& frame, LinkValues& link, ModeValues& mode, PowerValues& power,
                  PowerControls& controls, LampControls& lamps, const PowerHooks& hooks) {
    noteFrame(link, mode, hooks);
    measurePower(frame, mode, power, controls, lamps, hooks);
}

void onImageFrame(CameraValues& camera, MultimediaControls& controls, const ImageHooks& hooks,
                  QuorrinSDK& robotTI) {
    if (camera.videoClientConnected) serveVideoClient(camera, controls.lblVideoCnt, hooks);
    if (controls.tmrCatchPhoto.running() && hooks.encodeCaptureFrame) hooks.encodeCaptureFrame();
    robotTI.RequestImage();
    camera.frameWatchdog = 0;
}

void onSoundFrame(const LinkProperties& frame, const RemoteValues& remote, VoiceValues& voice,
                  MultimediaControls& controls, const SoundHooks& hooks) {
    voice.robotSoundAddress = frame.SoundBufferAddress;
    voice.robotSoundLength = frame.SoundBufferLength;
    if (remote.remoteListening && hooks.recordSendWave) {
        const Long result = hooks.recordSendWave(frame.SoundBufferAddress, frame.SoundBufferLength);
        controls.lblVoice.setCaption(booleanText(result == -1));
    }
    if (hooks.listeningToRobot && hooks.queueRobotSound) hooks.queueRobotSound();
}

}  // namespace quorrin

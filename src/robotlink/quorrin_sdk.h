// One link to the robot, as the station uses it: operations, properties and events of `myRobot` (motion) and
// `robotTI` (multimedia). Nothing else of the link is used.
//
// Servo and drive values are signed 16-bit; -32768 means that the call does not command this channel. Servo
// channels 1 to 6: head up/down, head left/right, mouth, spare, eyes up/down, eyes left/right. Drive channel
// numbers count from 0: 0 left, 1 right; a forward roll needs a negative left and a positive right velocity
// (encoder counts per second). Durations are milliseconds, text arguments full paths unless said otherwise.
//
// No operation reports anything: a failure shows only as silence on the link. Operations towards a gateway
// that is not there are dropped, never queued. Properties are read inside the event that announces their
// frame, are written by the link only, and start at 0. Events have no arguments and come on the one thread,
// each with an EventSource of its own, so that a running handler is not entered again.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <string>

#include "base/checked_int.h"
#include "platform/event_queue.h"

namespace quorrin {

// A channel that is not commanded by this call.
constexpr int kNotCommanded = -32768;

// What the last frames said. Raw readings of the robot's converters.
struct LinkProperties {
    // SensorFrame
    Integer IrAdc0;
    Integer IrAdcDisplay;
    Integer IrAdcHead;
    std::array<Integer, 4> sonarCm;  // SonarCm(index)
    Integer HumanAdc1;
    Integer HumanAdc2;
    // IrFrame
    Integer IrAdc1;
    Integer IrAdc2;
    Integer IrAdc3;
    Integer IrAdc4;
    Integer IrAdc5;
    Integer IrAdc6;
    // MotorFrame
    Integer EncoderPositionLeft;
    Integer EncoderPositionRight;
    Integer EncoderSpeedLeft;
    Integer EncoderSpeedRight;
    Integer DriveCurrentLeft;
    Integer DriveCurrentRight;
    // PowerFrame
    Integer PowerRefAdc;
    Integer Battery1Adc;
    Integer Battery2Adc;
    Integer DcInAdc;
    Integer Battery1TempAdc;
    Integer Battery2TempAdc;
    Integer ChargerStatusByte;
    Integer ChargerFlagsByte;
    // SoundFrame: a handle that the link resolves to bytes, valid until the next frame, and the length in
    // bytes
    Long SoundBufferAddress;
    Long SoundBufferLength;

    Integer SonarCm(int index) const { return sonarCm.at(static_cast<std::size_t>(index)); }
};

// One event slot: its handler and its identity for the no-re-entry rule.
struct LinkEvent {
    std::function<void()> handler;
    EventSource source;
    void raise() const {
        if (handler) handler();
    }
};

struct LinkEvents {
    LinkEvents() {
        SensorFrame.source.setName("SensorFrame");
        MotorFrame.source.setName("MotorFrame");
        IrFrame.source.setName("IrFrame");
        PowerFrame.source.setName("PowerFrame");
        ImageFrame.source.setName("ImageFrame");
        SoundFrame.source.setName("SoundFrame");
    }
    LinkEvent SensorFrame;
    LinkEvent MotorFrame;
    LinkEvent IrFrame;
    LinkEvent PowerFrame;
    LinkEvent ImageFrame;
    LinkEvent SoundFrame;
};

using SixValues = std::array<Integer, 6>;

class QuorrinSDK : public LinkProperties, public LinkEvents {
  public:
    virtual ~QuorrinSDK() = default;

    // Which gateway the instance belongs to: "motcom" or "ticom".
    virtual void BindGateway(const std::string& name) = 0;

    // Motion link
    // mode 1 position, 2 velocity
    virtual void SetDriveControlMode(Integer channel, Integer mode) = 0;
    virtual void SetDriveVelocities(const SixValues& countsPerSecond) = 0;
    virtual void MoveDrivesTimed(const SixValues& positions, Integer durationMs) = 0;
    virtual void MoveServosTimed(const SixValues& positions, Integer durationMs) = 0;
    virtual void SuspendDrive(Integer channel) = 0;
    virtual void ShowLcdBitmap(const std::string& path) = 0;
    virtual void SelectLandmarks(Integer first, Integer second, Integer third, Integer fourth) = 0;

    // Multimedia link
    virtual void WritePowerByte(Integer value) = 0;
    virtual void RequestImage() = 0;
    // The frame most recently received, as a 24-bit bitmap, written before the call returns.
    virtual void SaveFrameToFile(const std::string& path) = 0;
    virtual void PlaySoundFile(const std::string& path) = 0;
    virtual void StartSoundCapture(Integer mode) = 0;
    virtual void StopSoundCapture() = 0;
    virtual void StopSoundPlayback() = 0;
};

// The one stop command: suspends the left drive, then the right one. Touches no shared flag.
void stopDrives(QuorrinSDK& myRobot);

}  // namespace quorrin

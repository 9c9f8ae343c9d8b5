// A link whose frames are written down before the station sees them; operations pass through.
//
// Stands between the station and the inner link: it takes the inner link's event handlers, copies the
// properties of each frame, writes down those that differ from the last frame's, and raises its own event.
// The inner link delivers under its own event's source, so the no-re-entry rule holds as without it.
#pragma once

#include <functional>
#include <string>

#include "robotlink/frame_table.h"
#include "robotlink/quorrin_sdk.h"
#include "session/flight_recorder.h"

namespace quorrin {

class RecordedLink : public QuorrinSDK {
  public:
    // Both must outlive it.
    RecordedLink(QuorrinSDK& inner, LinkName name, FlightRecorder& recorder);
    ~RecordedLink() override;

    // How the bytes of a sound buffer are found; without it sound frames are written without bytes.
    void setSoundBuffer(std::function<std::string(Long address)> find) { soundBuffer_ = std::move(find); }

    void BindGateway(const std::string& name) override { inner_.BindGateway(name); }
    void SetDriveControlMode(Integer channel, Integer mode) override {
        inner_.SetDriveControlMode(channel, mode);
    }
    void SetDriveVelocities(const SixValues& v) override { inner_.SetDriveVelocities(v); }
    void MoveDrivesTimed(const SixValues& v, Integer ms) override { inner_.MoveDrivesTimed(v, ms); }
    void MoveServosTimed(const SixValues& v, Integer ms) override { inner_.MoveServosTimed(v, ms); }
    void SuspendDrive(Integer channel) override { inner_.SuspendDrive(channel); }
    void ShowLcdBitmap(const std::string& path) override { inner_.ShowLcdBitmap(path); }
    void SelectLandmarks(Integer first, Integer second, Integer third, Integer fourth) override {
        inner_.SelectLandmarks(first, second, third, fourth);
    }
    void WritePowerByte(Integer value) override { inner_.WritePowerByte(value); }
    void RequestImage() override { inner_.RequestImage(); }
    void SaveFrameToFile(const std::string& path) override { inner_.SaveFrameToFile(path); }
    void PlaySoundFile(const std::string& path) override { inner_.PlaySoundFile(path); }
    void StartSoundCapture(Integer mode) override { inner_.StartSoundCapture(mode); }
    void StopSoundCapture() override { inner_.StopSoundCapture(); }
    void StopSoundPlayback() override { inner_.StopSoundPlayback(); }

  private:
    void take(const FrameKind& kind);

    QuorrinSDK& inner_;
    LinkName name_;
    FlightRecorder& recorder_;
    std::function<std::string(Long)> soundBuffer_;
};

}  // namespace quorrin

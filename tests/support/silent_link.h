// A robot link that keeps nothing and needs no heap: it only counts the wheel commands. For tests and
// benchmarks that watch what a tick itself costs.
#pragma once

#include <string>

#include "robotlink/quorrin_sdk.h"

namespace quorrin {

class SilentLink : public QuorrinSDK {
  public:
    int velocityCommands() const { return velocityCommands_; }

    void BindGateway(const std::string&) override {}
    void SetDriveControlMode(Integer, Integer) override {}
    void SetDriveVelocities(const SixValues&) override { ++velocityCommands_; }
    void MoveDrivesTimed(const SixValues&, Integer) override {}
    void MoveServosTimed(const SixValues&, Integer) override {}
    void SuspendDrive(Integer) override {}
    void ShowLcdBitmap(const std::string&) override {}
    void SelectLandmarks(Integer, Integer, Integer, Integer) override {}
    void WritePowerByte(Integer) override {}
    void RequestImage() override {}
    void SaveFrameToFile(const std::string&) override {}
    void PlaySoundFile(const std::string&) override {}
    void StartSoundCapture(Integer) override {}
    void StopSoundCapture() override {}
    void StopSoundPlayback() override {}

  private:
    int velocityCommands_ = 0;
};

}  // namespace quorrin

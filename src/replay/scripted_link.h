// A robot link without a robot: prints every operation, and takes its frames from the script.
//
// Path arguments under the application folder print relative to it, with "/". A frame line sets the named
// properties and raises the event; properties that it does not name keep their values.
//
// SaveFrameToFile writes the bitmap of the last image frame that carried one, SoundBufferAddress is a handle
// that soundBytes() resolves.
#pragma once

#include <initializer_list>
#include <string>

#include "platform/files.h"
#include "replay/output.h"
#include "replay/script_line.h"
#include "robotlink/frame_table.h"
#include "robotlink/quorrin_sdk.h"

namespace quorrin {

class ScriptedLink : public QuorrinSDK {
  public:
    // All must outlive the link. `applicationFolder` without a trailing "/".
    ScriptedLink(LinkName name, Output& output, Files& files, std::string applicationFolder);

    // Sets the properties that the line names.
    void setProperties(const FrameLine& line);
    // The bytes of the next SaveFrameToFile.
    void setBitmap(std::string bytes) { bitmap_ = std::move(bytes); }
    void setSound(std::string bytes);
    const std::string& soundBytes() const { return sound_; }

    void BindGateway(const std::string& name) override;
    void SetDriveControlMode(Integer channel, Integer mode) override;
    void SetDriveVelocities(const SixValues& countsPerSecond) override;
    void MoveDrivesTimed(const SixValues& positions, Integer durationMs) override;
    void MoveServosTimed(const SixValues& positions, Integer durationMs) override;
    void SuspendDrive(Integer channel) override;
    void ShowLcdBitmap(const std::string& path) override;
    void SelectLandmarks(Integer first, Integer second, Integer third, Integer fourth) override;
    void WritePowerByte(Integer value) override;
    void RequestImage() override;
    void SaveFrameToFile(const std::string& path) override;
    void PlaySoundFile(const std::string& path) override;
    void StartSoundCapture(Integer mode) override;
    void StopSoundCapture() override;
    void StopSoundPlayback() override;

  private:
    std::string& begin(const char* operation);
    void end();
    void print(const char* operation, std::initializer_list<Integer> values);
    void printText(const char* operation, const std::string& text);
    std::string shortened(const std::string& path) const;

    LinkName name_;
    Output& output_;
    Files& files_;
    std::string applicationFolder_;
    std::string bitmap_;
    std::string sound_;
};

}  // namespace quorrin

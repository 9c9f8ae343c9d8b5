// A robot link that only writes down what it is asked, one line an operation: the name, then the arguments,
// separated by blanks ("SetDriveVelocities -120 120 -32768 -32768 -32768 -32768").
//
// Two links may share one log by giving both the same vector and a prefix each ("myRobot." and "robotTI.").
// Properties are the public fields of the link itself: set them, then raise the event.
#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "platform/virtual/virtual_clock.h"
#include "robotlink/quorrin_sdk.h"

namespace quorrin {

class FakeLink : public QuorrinSDK {
  public:
    FakeLink() : log_(own_) {}
    FakeLink(std::vector<std::string>& sharedLog, std::string prefix)
        : log_(sharedLog), prefix_(std::move(prefix)) {}

    // What was asked so far, in order.
    const std::vector<std::string>& operations() const { return log_; }
    // What was asked since the last take.
    std::vector<std::string> take() {
        std::vector<std::string> taken;
        taken.swap(log_);
        return taken;
    }
    // How many operations have that name.
    std::size_t count(const std::string& name) const {
        const std::string start = prefix_ + name;
        return static_cast<std::size_t>(std::count_if(log_.begin(), log_.end(), [&](const std::string& line) {
            return line == start || line.rfind(start + " ", 0) == 0;
        }));
    }
    bool asked(const std::string& line) const {
        return std::find(log_.begin(), log_.end(), prefix_ + line) != log_.end();
    }

    // The frame's event comes at `dueMs` of the virtual clock, under the no-re-entry rule.
    static void arriveAt(VirtualClock& clock, std::int64_t dueMs, LinkEvent& event) {
        clock.arriveAt(
            dueMs, [&event] { event.raise(); }, &event.source);
    }

    void BindGateway(const std::string& name) override { note("BindGateway " + name); }
    void SetDriveControlMode(Integer channel, Integer mode) override {
        note("SetDriveControlMode" + text(channel) + text(mode));
    }
    void SetDriveVelocities(const SixValues& values) override { note("SetDriveVelocities" + text(values)); }
    void MoveDrivesTimed(const SixValues& values, Integer durationMs) override {
        note("MoveDrivesTimed" + text(values) + text(durationMs));
    }
    void MoveServosTimed(const SixValues& values, Integer durationMs) override {
        note("MoveServosTimed" + text(values) + text(durationMs));
    }
    void SuspendDrive(Integer channel) override { note("SuspendDrive" + text(channel)); }
    void ShowLcdBitmap(const std::string& path) override { note("ShowLcdBitmap " + path); }
    void SelectLandmarks(Integer first, Integer second, Integer third, Integer fourth) override {
        note("SelectLandmarks" + text(first) + text(second) + text(third) + text(fourth));
    }
    void WritePowerByte(Integer value) override { note("WritePowerByte" + text(value)); }
    void RequestImage() override { note("RequestImage"); }
    void SaveFrameToFile(const std::string& path) override { note("SaveFrameToFile " + path); }
    void PlaySoundFile(const std::string& path) override { note("PlaySoundFile " + path); }
    void StartSoundCapture(Integer mode) override { note("StartSoundCapture" + text(mode)); }
    void StopSoundCapture() override { note("StopSoundCapture"); }
    void StopSoundPlayback() override { note("StopSoundPlayback"); }

  private:
    static std::string text(Integer value) { return " " + std::to_string(value.value()); }
    static std::string text(const SixValues& values) {
        std::string all;
        for (const Integer value : values) all += text(value);
        return all;
    }
    void note(const std::string& line) { log_.push_back(prefix_ + line); }

    std::vector<std::string> own_;
    std::vector<std::string>& log_;
    std::string prefix_;
};

}  // namespace quorrin

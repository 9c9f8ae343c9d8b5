// A robot link of a real session: operations go to the gateway, frames come from it.
//
// Once bound, it looks for its gateway's local endpoint ten times a second and connects whenever one is
// there. An operation while no gateway is connected is dropped. A frame's properties are written when its
// event is delivered, through the clock's queue, under the event's own source; a handler that runs keeps its
// values.
//
// Files are read when they are sent: the display's bitmap, and a sound, whose name may have "EOF" behind it
// that is not part of the name on disk. A file that cannot be read, or that is above what a packet can carry,
// is dropped. SaveFrameToFile writes the last picture; without one it does nothing.
//
// The sound buffer's address is a number that soundBuffer() resolves; it holds until the next SoundFrame.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "platform/clock.h"
#include "platform/files.h"
#include "platform/streams.h"
#include "platform/timer_mm.h"
#include "robotlink/quorrin_sdk.h"
#include "wire/packet_channel.h"

namespace quorrin {

class GatewayLink : public QuorrinSDK {
  public:
    GatewayLink(Clock& clock, Streams& streams, Files& files);

    // A gateway is connected and has said hello.
    bool connected() const { return channel_ && channel_->greeted() && channel_->open(); }
    // The bytes of the sound buffer with that address; empty for any but the latest.
    std::string soundBuffer(Long address) const;

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
    void look();
    void send(const wire::Packet& packet);
    void sendPowerByte();
    void receive(const wire::Packet& packet);
    // Writes the frame's properties; the event that tells of it, or null for what is no frame.
    LinkEvent* eventOf(const wire::Packet& frame);
    void take(const wire::Packet& frame);

    Clock& clock_;
    Streams& streams_;
    Files& files_;
    TimerMM look_;
    std::string name_;
    std::optional<Integer> powerByte_;  // as last written
    wire::Role role_ = wire::ROLE_UNKNOWN;
    std::unique_ptr<Connecting> connecting_;
    std::unique_ptr<PacketChannel> channel_;
    wire::ImageFrame image_;
    std::string sound_;
};

}  // namespace quorrin

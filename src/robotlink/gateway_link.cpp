#include "robotlink/gateway_link.h"

#include <utility>

#include "robotlink/bmp_24.h"
#include "robotlink/frame_properties.h"

namespace quorrin {

namespace {

constexpr std::int64_t kLookMs = 100;
const std::string kStreamEnd = "EOF";

template <typename Six>
void putSix(Six& six, const SixValues& values) {
    six.set_channel1(values[0]);
    six.set_channel2(values[1]);
    six.set_channel3(values[2]);
    six.set_channel4(values[3]);
    six.set_channel5(values[4]);
    six.set_channel6(values[5]);
}

std::string nameOf(const std::string& path) {
    return path.substr(path.find_last_of('/') + 1);
}

bool endsWith(const std::string& text, const std::string& end) {
    return text.size() >= end.size() && text.compare(text.size() - end.size(), end.size(), end) == 0;
}

}  // namespace

GatewayLink::GatewayLink(Clock& clock, Streams& streams, Files& files)
    : clock_(clock), streams_(streams), files_(files), look_(clock, [this] { look(); }) {
    look_.setInterval(kLookMs);
}

void GatewayLink::BindGateway(const std::string& name) {
    name_ = name;
    role_ = name == "motcom" ? wire::ROLE_MOT : wire::ROLE_TI;
    look_.setEnabled(true);
    look();
}

void GatewayLink::look() {
    if (connecting_ || channel_) return;
    connecting_ =
        streams_.connectLocal(name_, [this](std::unique_ptr<ByteStream> stream, const std::string&) {
            connecting_.reset();
            if (!stream) return;
            channel_ = std::make_unique<PacketChannel>(std::move(stream), role_, "station");
            channel_->onGreeted = [this](const std::string&) {
                if (powerByte_) sendPowerByte();
            };
            channel_->onPacket = [this](const wire::Packet& packet) { receive(packet); };
            channel_->onEnded = [this](const std::string&) { channel_.reset(); };
        });
}

void GatewayLink::send(const wire::Packet& packet) {
    if (connected()) channel_->send(packet);
}

void GatewayLink::receive(const wire::Packet& packet) {
    LinkEvent* const event = eventOf(packet);
    if (event == nullptr) return;
    clock_.arrive(
        [this, event, packet] {
            take(packet);
            event->raise();
        },
        &event->source);
}

LinkEvent* GatewayLink::eventOf(const wire::Packet& frame) {
    switch (frame.body_case()) {
        case wire::Packet::kSensorFrame:
            return &SensorFrame;
        case wire::Packet::kIrFrame:
            return &IrFrame;
        case wire::Packet::kMotorFrame:
            return &MotorFrame;
        case wire::Packet::kPowerFrame:
            return &PowerFrame;
        case wire::Packet::kImageFrame:
            return &ImageFrame;
        case wire::Packet::kSoundFrame:
            return &SoundFrame;
        default:
            return nullptr;
    }
}

void GatewayLink::take(const wire::Packet& frame) {
    if (frame.has_sensor_frame()) takeSensorFrame(*this, frame.sensor_frame());
    if (frame.has_ir_frame()) takeIrFrame(*this, frame.ir_frame());
    if (frame.has_motor_frame()) takeMotorFrame(*this, frame.motor_frame());
    if (frame.has_power_frame()) takePowerFrame(*this, frame.power_frame());
    if (frame.has_image_frame()) image_ = frame.image_frame();
    if (frame.has_sound_frame()) {
        sound_ = frame.sound_frame().data();
        // Numbers go round before they reach the type's end.
        SoundBufferAddress = SoundBufferAddress.value() % 1'000'000 + 1;
        SoundBufferLength = static_cast<std::int64_t>(sound_.size());
    }
}

std::string GatewayLink::soundBuffer(Long address) const {
    return address.value() != 0 && address.value() == SoundBufferAddress.value() ? sound_ : std::string();
}

void GatewayLink::SetDriveControlMode(Integer channel, Integer mode) {
    wire::Packet packet;
    packet.mutable_set_drive_control_mode()->set_channel(channel);
    packet.mutable_set_drive_control_mode()->set_mode(mode);
    send(packet);
}

void GatewayLink::SetDriveVelocities(const SixValues& countsPerSecond) {
    wire::Packet packet;
    putSix(*packet.mutable_set_drive_velocities(), countsPerSecond);
    send(packet);
}

void GatewayLink::MoveDrivesTimed(const SixValues& positions, Integer durationMs) {
    wire::Packet packet;
    putSix(*packet.mutable_move_drives_timed(), positions);
    packet.mutable_move_drives_timed()->set_duration_ms(durationMs);
    send(packet);
}

void GatewayLink::MoveServosTimed(const SixValues& positions, Integer durationMs) {
    wire::Packet packet;
    putSix(*packet.mutable_move_servos_timed(), positions);
    packet.mutable_move_servos_timed()->set_duration_ms(durationMs);
    send(packet);
}

void GatewayLink::SuspendDrive(Integer channel) {
    wire::Packet packet;
    packet.mutable_suspend_drive()->set_channel(channel);
    send(packet);
}

void GatewayLink::ShowLcdBitmap(const std::string& path) {
    if (!connected()) return;
    auto content = files_.read(path);
    if (!content) return;
    wire::Packet packet;
    packet.mutable_show_lcd_bitmap()->set_name(nameOf(path));
    packet.mutable_show_lcd_bitmap()->set_data(std::move(*content));
    send(packet);
}

void GatewayLink::SelectLandmarks(Integer first, Integer second, Integer third, Integer fourth) {
    wire::Packet packet;
    auto* four = packet.mutable_select_landmarks();
    four->set_first(first);
    four->set_second(second);
    four->set_third(third);
    four->set_fourth(fourth);
    send(packet);
}

void GatewayLink::WritePowerByte(Integer value) {
    powerByte_ = value;
    sendPowerByte();
}

void GatewayLink::sendPowerByte() {
    wire::Packet packet;
    packet.mutable_write_power_byte()->set_value(*powerByte_);
    send(packet);
}

void GatewayLink::RequestImage() {
    wire::Packet packet;
    packet.mutable_request_image();
    send(packet);
}

void GatewayLink::SaveFrameToFile(const std::string& path) {
    if (image_.width() == 0) return;
    files_.writeVolatile(path, encodeBmp24(image_.width(), image_.height(), image_.pixels()));
}

void GatewayLink::PlaySoundFile(const std::string& path) {
    if (!connected()) return;
    const bool last = endsWith(path, kStreamEnd);
    const std::string onDisk = last ? path.substr(0, path.size() - kStreamEnd.size()) : path;
    auto content = files_.read(onDisk);
    if (!content) return;
    wire::Packet packet;
    packet.mutable_play_sound()->set_name(nameOf(onDisk));
    packet.mutable_play_sound()->set_data(std::move(*content));
    packet.mutable_play_sound()->set_end_of_stream(last ? 1 : 0);
    send(packet);
}

void GatewayLink::StartSoundCapture(Integer mode) {
    wire::Packet packet;
    packet.mutable_start_sound_capture()->set_mode(mode);
    send(packet);
}

void GatewayLink::StopSoundCapture() {
    wire::Packet packet;
    packet.mutable_stop_sound_capture();
    send(packet);
}

void GatewayLink::StopSoundPlayback() {
    wire::Packet packet;
    packet.mutable_stop_sound_playback();
    send(packet);
}

}  // namespace quorrin

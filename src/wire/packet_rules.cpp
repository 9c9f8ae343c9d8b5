#include "wire/packet_rules.h"

#include <cstdint>
#include <initializer_list>
#include <limits>

namespace quorrin {

namespace {

using wire::Packet;

constexpr int kMaxPictureSide = 4096;
const std::string kMagic = "quorrin";

bool fit16(std::initializer_list<std::int32_t> values) {
    for (const std::int32_t value : values) {
        if (value < std::numeric_limits<std::int16_t>::min() ||
            value > std::numeric_limits<std::int16_t>::max())
            return false;
    }
    return true;
}

template <typename Six>
bool sixFit(const Six& six) {
    return fit16(
        {six.channel1(), six.channel2(), six.channel3(), six.channel4(), six.channel5(), six.channel6()});
}

bool pictureFits(const wire::ImageFrame& image) {
    const std::int64_t width = image.width();
    const std::int64_t height = image.height();
    return width > 0 && height > 0 && width <= kMaxPictureSide && height <= kMaxPictureSide &&
           static_cast<std::int64_t>(image.pixels().size()) == width * height * 3;
}

bool operationFits(const Packet& packet) {
    switch (packet.body_case()) {
        case Packet::kSetDriveControlMode:
            return fit16({packet.set_drive_control_mode().channel(), packet.set_drive_control_mode().mode()});
        case Packet::kSetDriveVelocities:
            return sixFit(packet.set_drive_velocities());
        case Packet::kMoveDrivesTimed:
            return sixFit(packet.move_drives_timed()) && fit16({packet.move_drives_timed().duration_ms()});
        case Packet::kMoveServosTimed:
            return sixFit(packet.move_servos_timed()) && fit16({packet.move_servos_timed().duration_ms()});
        case Packet::kSuspendDrive:
            return fit16({packet.suspend_drive().channel()});
        case Packet::kSelectLandmarks: {
            const auto& four = packet.select_landmarks();
            return fit16({four.first(), four.second(), four.third(), four.fourth()});
        }
        case Packet::kWritePowerByte:
            return packet.write_power_byte().value() >= 0 && packet.write_power_byte().value() <= 255;
        case Packet::kStartSoundCapture:
            return fit16({packet.start_sound_capture().mode()});
        default:
            return true;
    }
}

bool frameFits(const Packet& packet) {
    switch (packet.body_case()) {
        case Packet::kSensorFrame: {
            const auto& f = packet.sensor_frame();
            return fit16({f.ir_adc_0(), f.ir_adc_display(), f.ir_adc_head(), f.sonar_cm_0(), f.sonar_cm_1(),
                          f.sonar_cm_2(), f.sonar_cm_3(), f.human_adc_1(), f.human_adc_2()});
        }
        case Packet::kIrFrame: {
            const auto& f = packet.ir_frame();
            return fit16(
                {f.ir_adc_1(), f.ir_adc_2(), f.ir_adc_3(), f.ir_adc_4(), f.ir_adc_5(), f.ir_adc_6()});
        }
        case Packet::kMotorFrame: {
            const auto& f = packet.motor_frame();
            return fit16({f.encoder_position_left(), f.encoder_position_right(), f.encoder_speed_left(),
                          f.encoder_speed_right(), f.drive_current_left(), f.drive_current_right()});
        }
        case Packet::kPowerFrame: {
            const auto& f = packet.power_frame();
            return fit16({f.power_ref_adc(), f.battery1_adc(), f.battery2_adc(), f.dc_in_adc(),
                          f.battery1_temp_adc(), f.battery2_temp_adc(), f.charger_status_byte(),
                          f.charger_flags_byte()});
        }
        case Packet::kImageFrame:
            return pictureFits(packet.image_frame());
        default:
            return true;
    }
}

}  // namespace

PacketKind kindOf(const Packet& packet) {
    switch (packet.body_case()) {
        case Packet::kHello:
            return PacketKind::hello;
        case Packet::kHeartbeat:
        case Packet::BODY_NOT_SET:
            return PacketKind::heartbeat;
        case Packet::kGoodbye:
            return PacketKind::goodbye;
        case Packet::kSensorFrame:
        case Packet::kIrFrame:
        case Packet::kMotorFrame:
        case Packet::kPowerFrame:
        case Packet::kImageFrame:
        case Packet::kSoundFrame:
            return PacketKind::frame;
        default:
            return PacketKind::operation;
    }
}

wire::Role roleOf(const Packet& packet) {
    switch (packet.body_case()) {
        case Packet::kSetDriveControlMode:
        case Packet::kSetDriveVelocities:
        case Packet::kMoveDrivesTimed:
        case Packet::kMoveServosTimed:
        case Packet::kSuspendDrive:
        case Packet::kShowLcdBitmap:
        case Packet::kSelectLandmarks:
        case Packet::kSensorFrame:
        case Packet::kIrFrame:
        case Packet::kMotorFrame:
            return wire::ROLE_MOT;
        case Packet::kHello:
        case Packet::kHeartbeat:
        case Packet::kGoodbye:
        case Packet::BODY_NOT_SET:
            return wire::ROLE_UNKNOWN;
        default:
            return wire::ROLE_TI;
    }
}

std::string roleName(wire::Role role) {
    return role == wire::ROLE_MOT ? "mot" : role == wire::ROLE_TI ? "ti" : "unknown";
}

std::string packetFault(const Packet& packet) {
    return operationFits(packet) && frameFits(packet) ? "" : "a packet with a value out of its range";
}

wire::Packet helloPacket(wire::Role role, const std::string& name) {
    Packet packet;
    auto* hello = packet.mutable_hello();
    hello->set_magic(kMagic);
    hello->set_version(kProtocolVersion);
    hello->set_role(role);
    hello->set_name(name);
    return packet;
}

std::string helloFault(const Packet& packet, wire::Role role) {
    if (!packet.has_hello()) return "something else than a Hello first";
    const auto& hello = packet.hello();
    if (hello.magic() != kMagic) return "a Hello of another protocol";
    if (hello.version() != kProtocolVersion)
        return "protocol version " + std::to_string(hello.version()) + ", but this program speaks version " +
               std::to_string(kProtocolVersion);
    if (hello.role() != role)
        return "a Hello for the " + roleName(hello.role()) + " link, but this is the " + roleName(role) +
               " link";
    return "";
}

}  // namespace quorrin

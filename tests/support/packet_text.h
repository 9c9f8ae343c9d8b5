// A packet as the protocol's document writes it: its name, then its values in the order of their fields.
// Covers the kinds that a motion link's conversation needs; others are their field number.
#pragma once

#include <string>

#include "wire/packet_rules.h"

namespace quorrin {

namespace packet_text {

template <typename... Values>
std::string line(const std::string& name, const Values&... values) {
    std::string text = name;
    ((text += " " + std::to_string(values)), ...);
    return text;
}

template <typename Six>
std::string six(const std::string& name, const Six& s) {
    return line(name, s.channel1(), s.channel2(), s.channel3(), s.channel4(), s.channel5(), s.channel6());
}

}  // namespace packet_text

inline std::string packetText(const wire::Packet& packet) {
    using packet_text::line;
    using wire::Packet;
    switch (packet.body_case()) {
        case Packet::kHello:
            return "Hello " + packet.hello().magic() + " " + std::to_string(packet.hello().version()) + " " +
                   roleName(packet.hello().role()) + " " + packet.hello().name();
        case Packet::kHeartbeat:
            return "Heartbeat";
        case Packet::kGoodbye:
            return "Goodbye " + packet.goodbye().reason();
        case Packet::kSetDriveVelocities:
            return packet_text::six("SetDriveVelocities", packet.set_drive_velocities());
        case Packet::kSuspendDrive:
            return line("SuspendDrive", packet.suspend_drive().channel());
        case Packet::kSensorFrame: {
            const auto& f = packet.sensor_frame();
            return line("SensorFrame", f.ir_adc_0(), f.ir_adc_display(), f.ir_adc_head(), f.sonar_cm_0(),
                        f.sonar_cm_1(), f.sonar_cm_2(), f.sonar_cm_3(), f.human_adc_1(), f.human_adc_2());
        }
        case Packet::kIrFrame: {
            const auto& f = packet.ir_frame();
            return line("IrFrame", f.ir_adc_1(), f.ir_adc_2(), f.ir_adc_3(), f.ir_adc_4(), f.ir_adc_5(),
                        f.ir_adc_6());
        }
        case Packet::kMotorFrame: {
            const auto& f = packet.motor_frame();
            return line("MotorFrame", f.encoder_position_left(), f.encoder_position_right(),
                        f.encoder_speed_left(), f.encoder_speed_right(), f.drive_current_left(),
                        f.drive_current_right());
        }
        default:
            return std::to_string(static_cast<int>(packet.body_case()));
    }
}

}  // namespace quorrin

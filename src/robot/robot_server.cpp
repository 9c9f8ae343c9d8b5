#include "robot/robot_server.h"

#include <utility>

namespace quorrin {

namespace {

constexpr std::int64_t kTickMs = kRobotStepMs;
constexpr std::int64_t kHeldUpMs = 3 * kTickMs;  // a longer tick was this program's own delay
constexpr std::int64_t kSoundMs = 100;
constexpr std::size_t kBehindBytes = 64 * 1024;  // with more under way a picture waits
constexpr int kSamplesABuffer = 800;
constexpr double kHum = 20.0;  // a quiet room

}  // namespace

RobotServer::RobotServer(Clock& clock, Streams& streams, SimulatedRobot& robot,
                         std::function<void(const std::string&)> log, CameraSetup camera)
    : clock_(clock),
      streams_(streams),
      robot_(robot),
      startMs_(clock.nowMs() - robot.nowMs()),
      motion_(clock, wire::ROLE_MOT, log),
      multimedia_(clock, wire::ROLE_TI, log),
      eyes_(robot.site(), camera.size),
      standIn_(std::move(camera.standIn)),
      pictures_(clock, camera.rate, [this] { return sendPicture(); }),
      timer_(clock, [this] { tick(); }),
      sound_(clock, [this] { sendSound(); }) {
    motion_.refuses = [this] { return robot_.refused(RobotLink::mot); };
    motion_.onCame = [this] { robot_.motionPeerCame(); };
    motion_.onGone = [this] { robot_.motionPeerGone(); };
    motion_.onOperation = [this](const wire::Packet& packet) { motionOperation(packet); };
    multimedia_.refuses = [this] { return robot_.refused(RobotLink::ti); };
    multimedia_.onGone = [this] {
        pictures_.forget();
        sound_.setEnabled(false);
    };
    multimedia_.onOperation = [this](const wire::Packet& packet) { multimediaOperation(packet); };

    robot_.onRanges = [this](const RangeReadings& readings) { sendRanges(readings); };
    robot_.onMotors = [this](const MotorReadings& readings) { sendMotors(readings); };
    robot_.onPower = [this](const PowerReadings& readings) { sendPower(readings); };
    robot_.onDrop = [this](RobotLink link) {
        (link == RobotLink::mot ? motion_ : multimedia_).drop("was cut off by the scenario");
    };
    timer_.setInterval(kTickMs);
    timer_.setEnabled(true);
    sound_.setInterval(kSoundMs);
}

RobotServer::~RobotServer() {
    robot_.onRanges = nullptr;
    robot_.onMotors = nullptr;
    robot_.onPower = nullptr;
    robot_.onDrop = nullptr;
}

std::string RobotServer::listen(const std::string& address, int port) {
    std::string error = motion_.open(streams_, address, port);
    if (error.empty()) error = multimedia_.open(streams_, address, port + 1);
    return error;
}

void RobotServer::close(const std::string& reason) {
    motion_.close(reason);
    multimedia_.close(reason);
    robot_.motionPeerGone();
}

void RobotServer::tick() {
    const std::int64_t now = clock_.nowMs() - startMs_;
    // What the gateway said while this program was held up has not come in yet.
    while (now - robot_.nowMs() > kHeldUpMs) {
        if (motion_.inside()) robot_.motionPeerHeard();
        robot_.advanceTo(robot_.nowMs() + kTickMs);
    }
    if (motion_.heardSomething()) robot_.motionPeerHeard();
    robot_.advanceTo(now);
}

void RobotServer::motionOperation(const wire::Packet& packet) {
    switch (packet.body_case()) {
        case wire::Packet::kSetDriveControlMode:
            robot_.setDriveControlMode(packet.set_drive_control_mode().channel(),
                                       packet.set_drive_control_mode().mode());
            break;
        case wire::Packet::kSetDriveVelocities:
            robot_.setDriveVelocities(packet.set_drive_velocities().channel1(),
                                      packet.set_drive_velocities().channel2());
            break;
        case wire::Packet::kMoveDrivesTimed:
            robot_.moveDrivesTimed(packet.move_drives_timed().channel1(),
                                   packet.move_drives_timed().channel2(),
                                   packet.move_drives_timed().duration_ms());
            break;
        case wire::Packet::kMoveServosTimed: {
            const wire::MoveServosTimed& it = packet.move_servos_timed();
            robot_.moveServosTimed(
                {it.channel1(), it.channel2(), it.channel3(), it.channel4(), it.channel5(), it.channel6()},
                it.duration_ms());
            break;
        }
        case wire::Packet::kSuspendDrive:
            robot_.suspendDrive(packet.suspend_drive().channel());
            break;
        case wire::Packet::kShowLcdBitmap:
            robot_.showLcd(packet.show_lcd_bitmap().data());
            break;
        default:
            break;  // landmarks: this robot has no receivers for them
    }
}

void RobotServer::multimediaOperation(const wire::Packet& packet) {
    switch (packet.body_case()) {
        case wire::Packet::kWritePowerByte:
            robot_.writePowerByte(packet.write_power_byte().value());
            break;
        case wire::Packet::kRequestImage:
            pictures_.add();
            break;
        case wire::Packet::kPlaySound:
            robot_.playSound(packet.play_sound().name(), packet.play_sound().data());
            break;
        case wire::Packet::kStartSoundCapture:
            sound_.setEnabled(true);
            break;
        case wire::Packet::kStopSoundCapture:
            sound_.setEnabled(false);
            break;
        default:
            break;  // a sound that is told to stop: nothing of it is heard here
    }
}

void RobotServer::sendRanges(const RangeReadings& r) {
    wire::Packet sensors;
    wire::SensorFrame& sensor = *sensors.mutable_sensor_frame();
    sensor.set_ir_adc_0(r.irAdc[0]);
    sensor.set_ir_adc_display(r.irAdc[kIrDisplay]);
    sensor.set_ir_adc_head(r.irAdc[kIrHead]);
    sensor.set_sonar_cm_0(r.sonarCm[0]);
    sensor.set_sonar_cm_1(r.sonarCm[1]);
    sensor.set_sonar_cm_2(r.sonarCm[2]);
    sensor.set_sonar_cm_3(r.sonarCm[3]);
    sensor.set_human_adc_1(r.humanAdc[0]);
    sensor.set_human_adc_2(r.humanAdc[1]);
    motion_.send(sensors);

    wire::Packet rangers;
    wire::IrFrame& ir = *rangers.mutable_ir_frame();
    ir.set_ir_adc_1(r.irAdc[1]);
    ir.set_ir_adc_2(r.irAdc[2]);
    ir.set_ir_adc_3(r.irAdc[3]);
    ir.set_ir_adc_4(r.irAdc[4]);
    ir.set_ir_adc_5(r.irAdc[5]);
    ir.set_ir_adc_6(r.irAdc[6]);
    motion_.send(rangers);
}

void RobotServer::sendMotors(const MotorReadings& r) {
    wire::Packet packet;
    wire::MotorFrame& frame = *packet.mutable_motor_frame();
    frame.set_encoder_position_left(r.encoder[0]);
    frame.set_encoder_position_right(r.encoder[1]);
    frame.set_encoder_speed_left(r.speed[0]);
    frame.set_encoder_speed_right(r.speed[1]);
    frame.set_drive_current_left(r.currentAdc[0]);
    frame.set_drive_current_right(r.currentAdc[1]);
    motion_.send(packet);
}

void RobotServer::sendPower(const PowerReadings& r) {
    wire::Packet packet;
    wire::PowerFrame& frame = *packet.mutable_power_frame();
    frame.set_power_ref_adc(r.refAdc);
    frame.set_battery1_adc(r.batteryAdc[0]);
    frame.set_battery2_adc(r.batteryAdc[1]);
    frame.set_dc_in_adc(r.dcInAdc);
    frame.set_battery1_temp_adc(r.temperatureAdc[0]);
    frame.set_battery2_temp_adc(r.temperatureAdc[1]);
    frame.set_charger_status_byte(r.chargerStatus);
    frame.set_charger_flags_byte(r.chargerFlags);
    multimedia_.send(packet);
}

bool RobotServer::sendPicture() {
    if (robot_.silent(RobotLink::ti)) return true;  // nobody hears it
    if (multimedia_.waitingBytes() > kBehindBytes) return false;
    ++frames_;
    CameraPicture picture = standIn_ ? standIn_() : eyes_.takePicture(robot_.view(frames_));
    wire::Packet packet;
    wire::ImageFrame& frame = *packet.mutable_image_frame();
    frame.set_width(picture.width);
    frame.set_height(picture.height);
    frame.set_pixels(std::move(picture.pixels));
    multimedia_.send(packet);
    return true;
}

void RobotServer::sendSound() {
    if (robot_.silent(RobotLink::ti)) return;
    wire::Packet packet;
    std::string& data = *packet.mutable_sound_frame()->mutable_data();
    for (int i = 0; i < kSamplesABuffer; ++i) {
        const auto sample = static_cast<std::int16_t>(kHum * microphone_.gauss());
        data += static_cast<char>(sample & 0xFF);
        data += static_cast<char>(sample >> 8 & 0xFF);
    }
    multimedia_.send(packet);
}

}  // namespace quorrin

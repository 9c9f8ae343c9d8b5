#include "robotlink/gateway_link.h"

#include <gtest/gtest.h>

#include "platform/virtual/memory_files.h"
#include "platform/virtual/virtual_clock.h"
#include "platform/virtual/virtual_network.h"
#include "support/wire_peer.h"

namespace quorrin {
namespace {

using wire::Packet;

class GatewayLinkTest : public ::testing::Test {
  protected:
    void openGateway(const std::string& name = "motcom") {
        listener = network.listenLocal(name, nullptr);
        listener->onConnection = [this](auto stream) { gateway.take(std::move(stream)); };
    }
    // Bound, connected and greeted.
    void bringUp(const std::string& name = "motcom") {
        role = name == "motcom" ? wire::ROLE_MOT : wire::ROLE_TI;
        openGateway(name);
        link.BindGateway(name);
        clock.runFor(100);
        greet();
    }
    void greet() {
        gateway.say(helloPacket(role, "gateway"));
        clock.runFor(0);
        gateway.takeHeard();
    }
    // The one packet that the gateway heard.
    Packet heard() {
        clock.runFor(0);
        const auto packets = gateway.takeHeard();
        EXPECT_EQ(packets.size(), 1U);
        return packets.empty() ? Packet() : packets.front();
    }
    void frame(const Packet& packet) {
        gateway.say(packet);
        clock.runFor(0);
    }

    VirtualClock clock;
    VirtualNetwork network{clock};
    MemoryFiles files;
    GatewayLink link{clock, network, files};
    WirePeer gateway;
    std::unique_ptr<Listener> listener;
    wire::Role role = wire::ROLE_MOT;
};

Packet sensorFrame(int adc) {
    Packet packet;
    packet.mutable_sensor_frame()->set_ir_adc_0(adc);
    return packet;
}

TEST_F(GatewayLinkTest, ConnectsWithinATenthOfASecondOfItsGatewaysComing) {
    link.BindGateway("motcom");
    clock.runFor(10'000);
    EXPECT_FALSE(link.connected());
    openGateway();
    clock.runFor(100);
    greet();
    EXPECT_TRUE(link.connected());
    EXPECT_EQ(gateway.connections(), 1);
}

TEST_F(GatewayLinkTest, TriesNothingBeforeItIsBound) {
    openGateway();
    clock.runFor(10'000);
    EXPECT_EQ(network.attempts(localPlace("motcom")), 0);
}

TEST_F(GatewayLinkTest, SaysHelloForTheLinkThatItIsBoundTo) {
    openGateway("ticom");
    link.BindGateway("ticom");
    clock.runFor(100);
    const Packet hello = heard();
    EXPECT_EQ(helloFault(hello, wire::ROLE_TI), "");
}

TEST_F(GatewayLinkTest, DropsOperationsWithoutAGatewayAndSendsNoneOfThemLater) {
    link.BindGateway("motcom");
    link.SetDriveVelocities({-500, 500, -32768, -32768, -32768, -32768});
    openGateway();
    clock.runFor(100);
    link.SetDriveVelocities({-600, 600, -32768, -32768, -32768, -32768});
    clock.runFor(0);
    gateway.say(helloPacket(wire::ROLE_MOT, "gateway"));
    clock.runFor(1000);
    EXPECT_EQ(gateway.count(Packet::kSetDriveVelocities), 0U);
}

TEST_F(GatewayLinkTest, TellsAGatewayThatConnectsTheLastPowerByteOnly) {
    role = wire::ROLE_TI;
    link.BindGateway("ticom");
    link.RequestImage();
    link.WritePowerByte(63);
    link.WritePowerByte(59);
    openGateway("ticom");
    clock.runFor(100);
    gateway.takeHeard();
    gateway.say(helloPacket(role, "gateway"));
    EXPECT_EQ(heard().write_power_byte().value(), 59);
}

TEST_F(GatewayLinkTest, ConnectsAtOnceToAGatewayThatIsThereWhenItIsBound) {
    openGateway();
    link.BindGateway("motcom");
    clock.runFor(0);
    EXPECT_EQ(gateway.connections(), 1);
}

TEST_F(GatewayLinkTest, SendsEveryMotionOperationWithItsArguments) {
    bringUp();
    link.SetDriveControlMode(1, 2);
    Packet packet = heard();
    EXPECT_EQ(packet.set_drive_control_mode().channel(), 1);
    EXPECT_EQ(packet.set_drive_control_mode().mode(), 2);

    link.SetDriveVelocities({-120, 121, -32768, 4, 5, 6});
    const auto velocities = heard().set_drive_velocities();
    EXPECT_EQ(velocities.channel1(), -120);
    EXPECT_EQ(velocities.channel2(), 121);
    EXPECT_EQ(velocities.channel3(), -32768);
    EXPECT_EQ(velocities.channel4(), 4);
    EXPECT_EQ(velocities.channel5(), 5);
    EXPECT_EQ(velocities.channel6(), 6);

    link.MoveDrivesTimed({1, 2, 3, 4, 5, 6}, 1300);
    packet = heard();
    EXPECT_EQ(packet.move_drives_timed().channel1(), 1);
    EXPECT_EQ(packet.move_drives_timed().channel6(), 6);
    EXPECT_EQ(packet.move_drives_timed().duration_ms(), 1300);

    link.MoveServosTimed({2000, 2001, 3000, -32768, 2005, 2006}, 100);
    packet = heard();
    EXPECT_EQ(packet.move_servos_timed().channel2(), 2001);
    EXPECT_EQ(packet.move_servos_timed().channel4(), -32768);
    EXPECT_EQ(packet.move_servos_timed().duration_ms(), 100);

    link.SuspendDrive(1);
    EXPECT_EQ(heard().suspend_drive().channel(), 1);

    link.SelectLandmarks(1, 2, 3, 4);
    const auto landmarks = heard().select_landmarks();
    EXPECT_EQ(landmarks.first(), 1);
    EXPECT_EQ(landmarks.second(), 2);
    EXPECT_EQ(landmarks.third(), 3);
    EXPECT_EQ(landmarks.fourth(), 4);
}

TEST_F(GatewayLinkTest, SendsEveryMultimediaOperation) {
    bringUp("ticom");
    link.WritePowerByte(63);
    EXPECT_EQ(heard().write_power_byte().value(), 63);
    link.RequestImage();
    EXPECT_TRUE(heard().has_request_image());
    link.StartSoundCapture(1);
    EXPECT_EQ(heard().start_sound_capture().mode(), 1);
    link.StopSoundCapture();
    EXPECT_TRUE(heard().has_stop_sound_capture());
    link.StopSoundPlayback();
    EXPECT_TRUE(heard().has_stop_sound_playback());
}

TEST_F(GatewayLinkTest, SendsTheDisplaysBitmapAsBytes) {
    files.put("/data/quorrin128.bmp", "BM...");
    bringUp();
    link.ShowLcdBitmap("/data/quorrin128.bmp");
    const Packet packet = heard();
    EXPECT_EQ(packet.show_lcd_bitmap().name(), "quorrin128.bmp");
    EXPECT_EQ(packet.show_lcd_bitmap().data(), "BM...");
}

TEST_F(GatewayLinkTest, DropsAFileThatIsMissingOrTooLarge) {
    files.put("/data/large.wav", std::string(kMaxPacketBytes, 'x'));
    bringUp("ticom");
    link.PlaySoundFile("/data/none.wav");
    link.PlaySoundFile("/data/large.wav");
    link.ShowLcdBitmap("/data/none.bmp");
    link.WritePowerByte(1);
    EXPECT_EQ(heard().write_power_byte().value(), 1);
    EXPECT_TRUE(link.connected());
}

TEST_F(GatewayLinkTest, PlaysASoundAndTellsTheOneThatEndsAStream) {
    files.put("/voice/VtoR0.wav", "RIFF");
    bringUp("ticom");
    link.PlaySoundFile("/voice/VtoR0.wav");
    Packet packet = heard();
    EXPECT_EQ(packet.play_sound().name(), "VtoR0.wav");
    EXPECT_EQ(packet.play_sound().data(), "RIFF");
    EXPECT_EQ(packet.play_sound().end_of_stream(), 0);
    link.PlaySoundFile("/voice/VtoR0.wavEOF");
    packet = heard();
    EXPECT_EQ(packet.play_sound().name(), "VtoR0.wav");
    EXPECT_EQ(packet.play_sound().data(), "RIFF");
    EXPECT_EQ(packet.play_sound().end_of_stream(), 1);
}

TEST_F(GatewayLinkTest, WritesAFramesPropertiesBeforeItsEvent) {
    bringUp();
    int seen = -1;
    link.SensorFrame.handler = [&] { seen = link.SonarCm(3); };
    Packet packet;
    auto* body = packet.mutable_sensor_frame();
    body->set_ir_adc_0(1);
    body->set_ir_adc_display(2);
    body->set_ir_adc_head(3);
    body->set_sonar_cm_0(4);
    body->set_sonar_cm_3(7);
    body->set_human_adc_1(8);
    body->set_human_adc_2(9);
    frame(packet);
    EXPECT_EQ(seen, 7);
    EXPECT_EQ(link.IrAdc0, 1);
    EXPECT_EQ(link.IrAdcDisplay, 2);
    EXPECT_EQ(link.IrAdcHead, 3);
    EXPECT_EQ(link.SonarCm(0), 4);
    EXPECT_EQ(link.HumanAdc1, 8);
    EXPECT_EQ(link.HumanAdc2, 9);
}

TEST_F(GatewayLinkTest, TakesIrAndMotorFrames) {
    bringUp();
    int events = 0;
    link.IrFrame.handler = [&] { ++events; };
    link.MotorFrame.handler = [&] { ++events; };
    Packet ir;
    ir.mutable_ir_frame()->set_ir_adc_1(1);
    ir.mutable_ir_frame()->set_ir_adc_6(6);
    frame(ir);
    Packet motor;
    motor.mutable_motor_frame()->set_encoder_position_left(32767);
    motor.mutable_motor_frame()->set_encoder_speed_right(-200);
    motor.mutable_motor_frame()->set_drive_current_right(728);
    frame(motor);
    EXPECT_EQ(events, 2);
    EXPECT_EQ(link.IrAdc1, 1);
    EXPECT_EQ(link.IrAdc6, 6);
    EXPECT_EQ(link.EncoderPositionLeft, 32767);
    EXPECT_EQ(link.EncoderSpeedRight, -200);
    EXPECT_EQ(link.DriveCurrentRight, 728);
}

TEST_F(GatewayLinkTest, TakesPowerFrames) {
    bringUp("ticom");
    int events = 0;
    link.PowerFrame.handler = [&] { ++events; };
    Packet packet;
    packet.mutable_power_frame()->set_power_ref_adc(2000);
    packet.mutable_power_frame()->set_charger_flags_byte(0x1FF);
    frame(packet);
    EXPECT_EQ(events, 1);
    EXPECT_EQ(link.PowerRefAdc, 2000);
    EXPECT_EQ(link.ChargerFlagsByte, 0x1FF);
}

TEST_F(GatewayLinkTest, ARunningHandlerIsNotEnteredAgainAndKeepsItsValues) {
    bringUp();
    std::vector<int> before;
    std::vector<int> after;
    link.SensorFrame.handler = [&] {
        before.push_back(link.IrAdc0);
        clock.yield();
        after.push_back(link.IrAdc0);
    };
    gateway.say(sensorFrame(1));
    gateway.say(sensorFrame(2));
    clock.runFor(0);
    EXPECT_EQ(before, (std::vector<int>{1, 2}));
    EXPECT_EQ(after, (std::vector<int>{1, 2}));
}

TEST_F(GatewayLinkTest, FindsItsGatewayAgainAfterItWasKilled) {
    bringUp();
    gateway.hangUp();
    listener.reset();
    clock.runFor(1000);
    EXPECT_FALSE(link.connected());
    link.SuspendDrive(0);
    openGateway();
    clock.runFor(100);
    greet();
    EXPECT_TRUE(link.connected());
}

TEST_F(GatewayLinkTest, AGatewayThatTalksRubbishIsLeft) {
    bringUp();
    gateway.sayBytes(std::string(8, '\xFF'));
    clock.runFor(0);
    EXPECT_FALSE(gateway.connected());
}

TEST_F(GatewayLinkTest, SavesTheLatestPictureAsABitmapBeforeItReturns) {
    bringUp("ticom");
    link.SaveFrameToFile("/tmp/none.bmp");
    EXPECT_FALSE(files.fileExists("/tmp/none.bmp"));
    Packet packet;
    packet.mutable_image_frame()->set_width(1);
    packet.mutable_image_frame()->set_height(2);
    packet.mutable_image_frame()->set_pixels("RGBrgb");
    frame(packet);
    files.createFolder("/tmp");
    link.SaveFrameToFile("/tmp/a.bmp");
    const std::string file = files.read("/tmp/a.bmp").value_or("");
    ASSERT_EQ(file.size(), 54U + 8U);
    EXPECT_EQ(file.substr(0, 2), "BM");
    EXPECT_EQ(file.substr(54), std::string("bgr\0BGR\0", 8));
}

TEST_F(GatewayLinkTest, ResolvesASoundBufferUntilTheNextOne) {
    bringUp("ticom");
    std::vector<std::string> heardSound;
    link.SoundFrame.handler = [&] { heardSound.push_back(link.soundBuffer(link.SoundBufferAddress)); };
    Packet packet;
    packet.mutable_sound_frame()->set_data("first");
    frame(packet);
    const Long first = link.SoundBufferAddress;
    EXPECT_EQ(link.SoundBufferLength, 5);
    packet.mutable_sound_frame()->set_data("second");
    frame(packet);
    EXPECT_EQ(heardSound, (std::vector<std::string>{"first", "second"}));
    EXPECT_EQ(link.soundBuffer(first), "");
    EXPECT_EQ(link.soundBuffer(0), "");
}

}  // namespace
}  // namespace quorrin

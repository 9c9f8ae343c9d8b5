#include "wire/packet_channel.h"

#include <gtest/gtest.h>

#include <optional>

#include "platform/virtual/virtual_clock.h"
#include "platform/virtual/virtual_network.h"
#include "support/wire_peer.h"

namespace quorrin {
namespace {

using wire::Packet;

class PacketChannelTest : public ::testing::Test {
  protected:
    PacketChannelTest() {
        listener = network.listenLocal("motcom", nullptr);
        listener->onConnection = [this](auto stream) { peer.take(std::move(stream)); };
        connecting = network.connectLocal("motcom", [this](auto stream, const std::string&) {
            channel.emplace(std::move(stream), wire::ROLE_MOT, "me");
            channel->onGreeted = [this](const std::string& name) { greetings.push_back(name); };
            channel->onPacket = [this](const Packet& packet) { packets.push_back(packet); };
            channel->onEnded = [this](const std::string& why) { ends.push_back(why); };
        });
        clock.runFor(0);
    }
    void hello() {
        peer.say(helloPacket(wire::ROLE_MOT, "peer"));
        clock.runFor(0);
    }
    static Packet beat() {
        Packet packet;
        packet.mutable_heartbeat();
        return packet;
    }

    VirtualClock clock;
    VirtualNetwork network{clock};
    WirePeer peer;
    std::unique_ptr<Listener> listener;
    std::unique_ptr<Connecting> connecting;
    std::optional<PacketChannel> channel;
    std::vector<std::string> greetings;
    std::vector<Packet> packets;
    std::vector<std::string> ends;
};

TEST_F(PacketChannelTest, SaysHelloAtOnce) {
    ASSERT_EQ(peer.heard().size(), 1U);
    EXPECT_EQ(helloFault(peer.heard()[0], wire::ROLE_MOT), "");
    EXPECT_EQ(peer.heard()[0].hello().name(), "me");
}

TEST_F(PacketChannelTest, GreetsOnceAndThenGivesPackets) {
    hello();
    peer.say(beat());
    clock.runFor(0);
    EXPECT_EQ(greetings, std::vector<std::string>{"peer"});
    ASSERT_EQ(packets.size(), 1U);
    EXPECT_TRUE(packets[0].has_heartbeat());
}

TEST_F(PacketChannelTest, GivesNoPacketBeforeTheHello) {
    peer.say(beat());
    clock.runFor(0);
    EXPECT_TRUE(packets.empty());
    EXPECT_EQ(ends, std::vector<std::string>{"sent something else than a Hello first"});
}

TEST_F(PacketChannelTest, RefusesAHelloOfAnotherProtocol) {
    Packet packet = helloPacket(wire::ROLE_MOT, "peer");
    packet.mutable_hello()->set_magic("quarrel");
    peer.say(packet);
    clock.runFor(0);
    EXPECT_EQ(ends, std::vector<std::string>{"sent a Hello of another protocol"});
}

TEST_F(PacketChannelTest, RefusesASecondHello) {
    hello();
    hello();
    EXPECT_EQ(ends, std::vector<std::string>{"sent a second Hello"});
}

TEST_F(PacketChannelTest, EndsOnceAndGivesNothingAfterwards) {
    hello();
    peer.sayBytes(std::string(4, '\0') + encodePacket(beat()));
    peer.sayBytes(encodePacket(beat()));
    peer.hangUp();
    clock.runFor(0);
    EXPECT_EQ(ends.size(), 1U);
    EXPECT_TRUE(packets.empty());
    EXPECT_FALSE(channel->send(beat()));
}

TEST_F(PacketChannelTest, TellsACloseFromACutPacket) {
    hello();
    peer.sayBytes(std::string("\0\0", 2));
    peer.hangUp();
    clock.runFor(0);
    EXPECT_EQ(ends, std::vector<std::string>{"closed in the middle of a packet"});
}

TEST_F(PacketChannelTest, KeepsAPeersTextPrintableAndShort) {
    peer.say(helloPacket(wire::ROLE_MOT, "\x1B[2J" + std::string(200, 'n')));
    clock.runFor(0);
    ASSERT_EQ(greetings.size(), 1U);
    EXPECT_EQ(greetings[0], "?[2J" + std::string(76, 'n'));
}

TEST_F(PacketChannelTest, SaysGoodbyeWhenItClosesAndIsNotToldOfItsOwnEnd) {
    hello();
    channel->close("that was all");
    clock.runFor(0);
    EXPECT_EQ(peer.heard().back().goodbye().reason(), "that was all");
    EXPECT_FALSE(peer.connected());
    EXPECT_TRUE(ends.empty());
}

TEST_F(PacketChannelTest, MayBeDestroyedInsideAnyOfItsHandlers) {
    channel->onGreeted = [this](const std::string&) { channel.reset(); };
    peer.sayBytes(encodePacket(helloPacket(wire::ROLE_MOT, "peer")) + encodePacket(beat()));
    clock.runFor(0);
    EXPECT_FALSE(channel);
    EXPECT_FALSE(peer.connected());
    EXPECT_TRUE(packets.empty());
}

TEST_F(PacketChannelTest, CountsTheBytesItHears) {
    const auto before = channel->bytesHeard();
    peer.sayBytes(std::string("\0\0", 2));
    clock.runFor(0);
    EXPECT_EQ(channel->bytesHeard(), before + 2);
}

TEST(PacketRules, EveryNumberOfAnOperationIsHeldTo16Bits) {
    Packet packet;
    packet.mutable_move_servos_timed()->set_duration_ms(40'000);
    EXPECT_NE(packetFault(packet), "");
    packet.mutable_move_servos_timed()->set_duration_ms(500);
    EXPECT_EQ(packetFault(packet), "");
    packet.mutable_set_drive_velocities()->set_channel6(-32769);
    EXPECT_NE(packetFault(packet), "");
    packet.mutable_set_drive_velocities()->set_channel6(-32768);
    EXPECT_EQ(packetFault(packet), "");
    packet.mutable_write_power_byte()->set_value(256);
    EXPECT_NE(packetFault(packet), "");
    packet.mutable_select_landmarks()->set_fourth(1 << 20);
    EXPECT_NE(packetFault(packet), "");
}

TEST(PacketRules, APictureHasAllItsPixels) {
    Packet packet;
    auto* image = packet.mutable_image_frame();
    image->set_width(2);
    image->set_height(2);
    image->set_pixels(std::string(12, 'p'));
    EXPECT_EQ(packetFault(packet), "");
    image->set_pixels(std::string(11, 'p'));
    EXPECT_NE(packetFault(packet), "");
    image->set_width(0);
    image->set_pixels("");
    EXPECT_NE(packetFault(packet), "");
    image->set_width(1 << 30);
    image->set_height(1 << 30);
    EXPECT_NE(packetFault(packet), "");
}

// Each body is of one kind and of the link that the schema's sections say.
TEST(PacketRules, KnowsKindAndLinkOfEveryBody) {
    const auto of = [](int field) {
        Packet packet;
        const std::string bytes{static_cast<char>(field << 3 | 2 | (field > 15 ? 0x80 : 0))};
        const std::string more = field > 15 ? std::string(1, static_cast<char>(field >> 4)) : "";
        EXPECT_TRUE(packet.ParseFromString(bytes + more + std::string(1, '\0'))) << field;
        return packet;
    };
    for (int field = 4; field <= 22; ++field) {
        const Packet packet = of(field);
        const bool motion = field <= 10 || (field >= 17 && field <= 19);
        EXPECT_EQ(roleOf(packet), motion ? wire::ROLE_MOT : wire::ROLE_TI) << field;
        EXPECT_EQ(kindOf(packet), field <= 16 ? PacketKind::operation : PacketKind::frame) << field;
    }
    for (int field = 1; field <= 3; ++field) EXPECT_EQ(roleOf(of(field)), wire::ROLE_UNKNOWN);
}

}  // namespace
}  // namespace quorrin

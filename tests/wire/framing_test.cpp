#include "wire/framing.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace quorrin {
namespace {

wire::Packet velocities(int left, int right) {
    wire::Packet packet;
    auto* body = packet.mutable_set_drive_velocities();
    body->set_channel1(left);
    body->set_channel2(right);
    return packet;
}

std::vector<wire::Packet> decodeInPiecesOf(const std::string& bytes, std::size_t piece) {
    PacketDecoder decoder;
    std::vector<wire::Packet> packets;
    for (std::size_t at = 0; at < bytes.size(); at += piece) {
        decoder.add(std::string_view(bytes).substr(at, piece));
        while (auto packet = decoder.next()) packets.push_back(*packet);
    }
    EXPECT_FALSE(decoder.failed()) << decoder.error();
    EXPECT_FALSE(decoder.midPacket());
    return packets;
}

std::string transcript() {
    wire::Packet hello;
    hello.mutable_hello()->set_magic("quorrin");
    hello.mutable_hello()->set_version(1);
    wire::Packet image;
    image.mutable_image_frame()->set_pixels(std::string(1000, '\xAB'));
    return encodePacket(hello) + encodePacket(velocities(-120, 120)) + encodePacket(image);
}

TEST(Framing, PutsTheLengthInFrontMostSignificantByteFirst) {
    wire::Packet packet;
    packet.mutable_heartbeat();
    EXPECT_EQ(encodePacket(packet), std::string("\0\0\0\2\x12\0", 6));
}

TEST(Framing, WritesANegativeNumberAsAVarintOfTenBytes) {
    const std::string bytes = encodePacket(velocities(-2, 0));
    EXPECT_EQ(bytes, std::string("\0\0\0\x0D\x2A\x0B\x08\xFE\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\x01", 17));
}

TEST(Framing, DecodesTheSamePacketsWholeByteByByteAndInOddPieces) {
    const std::string bytes = transcript();
    for (const std::size_t piece :
         {bytes.size(), std::size_t{1}, std::size_t{3}, std::size_t{7}, std::size_t{513}}) {
        const auto packets = decodeInPiecesOf(bytes, piece);
        ASSERT_EQ(packets.size(), 3U) << "pieces of " << piece;
        EXPECT_EQ(packets[0].hello().magic(), "quorrin");
        EXPECT_EQ(packets[0].hello().version(), 1);
        EXPECT_EQ(packets[1].set_drive_velocities().channel1(), -120);
        EXPECT_EQ(packets[1].set_drive_velocities().channel2(), 120);
        EXPECT_EQ(packets[2].image_frame().pixels(), std::string(1000, '\xAB'));
    }
}

TEST(Framing, KeepsTheUncommandedChannelValue) {
    PacketDecoder decoder;
    decoder.add(encodePacket(velocities(-32768, 32767)));
    const auto packet = decoder.next();
    ASSERT_TRUE(packet);
    EXPECT_EQ(packet->set_drive_velocities().channel1(), -32768);
    EXPECT_EQ(packet->set_drive_velocities().channel2(), 32767);
}

TEST(Framing, SaysThatAStreamWasCutOffInsideAPacket) {
    const std::string bytes = transcript();
    PacketDecoder decoder;
    decoder.add(std::string_view(bytes).substr(0, bytes.size() - 1));
    while (decoder.next()) {
    }
    EXPECT_TRUE(decoder.midPacket());
    EXPECT_FALSE(decoder.failed());
}

TEST(Framing, FailsOnALengthAboveTheLimitBeforeAnyOfItsBytesCome) {
    PacketDecoder decoder;
    decoder.add(std::string("\0\x80\0\1", 4));
    EXPECT_FALSE(decoder.next());
    EXPECT_EQ(decoder.error(), "packet of 8388609 bytes, above the limit");
}

TEST(Framing, FailsOnTextThatSpeaksAnotherProtocol) {
    PacketDecoder decoder;
    decoder.add("GET / HTTP/1.1\r\n\r\n");
    EXPECT_FALSE(decoder.next());
    EXPECT_TRUE(decoder.failed());
}

TEST(Framing, FailsOnAnEmptyPacket) {
    PacketDecoder decoder;
    decoder.add(std::string(4, '\0'));
    EXPECT_FALSE(decoder.next());
    EXPECT_EQ(decoder.error(), "empty packet");
}

TEST(Framing, FailsOnBytesThatDoNotParse) {
    PacketDecoder decoder;
    decoder.add(std::string("\0\0\0\3\xFF\xFF\xFF", 7));
    EXPECT_FALSE(decoder.next());
    EXPECT_EQ(decoder.error(), "packet of 3 bytes that does not parse");
}

TEST(Framing, FailsOnAPacketOfAnUnknownKind) {
    PacketDecoder decoder;
    decoder.add(std::string("\0\0\0\3\xB8\x02\x01", 7));  // field 39, a number
    EXPECT_FALSE(decoder.next());
    EXPECT_EQ(decoder.error(), "packet of an unknown kind");
}

TEST(Framing, StaysFailedWhateverFollows) {
    PacketDecoder decoder;
    decoder.add(std::string(4, '\0'));
    EXPECT_FALSE(decoder.next());
    decoder.add(transcript());
    EXPECT_FALSE(decoder.next());
    EXPECT_TRUE(decoder.failed());
}

TEST(Framing, GivesThePacketsBeforeTheRubbishFirst) {
    PacketDecoder decoder;
    decoder.add(encodePacket(velocities(1, 2)) + std::string(4, '\xFF'));
    EXPECT_TRUE(decoder.next());
    EXPECT_FALSE(decoder.failed());
    EXPECT_FALSE(decoder.next());
    EXPECT_TRUE(decoder.failed());
}

TEST(Framing, RefusesToEncodeAPacketAboveTheLimit) {
    wire::Packet packet;
    packet.mutable_play_sound()->set_data(std::string(100, 'x'));
    EXPECT_EQ(encodePacket(packet, 100), "");
    EXPECT_NE(encodePacket(packet, 200), "");
}

TEST(Framing, DecodesAPacketOfExactlyTheLimit) {
    wire::Packet packet;
    packet.mutable_sound_frame()->set_data(std::string(300, 'x'));
    const std::string bytes = encodePacket(packet);
    PacketDecoder decoder(bytes.size() - kLengthBytes);
    decoder.add(bytes);
    EXPECT_TRUE(decoder.next());
}

}  // namespace
}  // namespace quorrin

// The document's byte-level conversation, held between a real gateway core and the lines of the document.
#include <fstream>
#include <sstream>

#include "gateway/gateway_fixture.h"
#include "support/packet_text.h"

namespace quorrin {
namespace {

struct Line {
    bool fromGateway = false;
    std::string bytes;
    std::string says;
};

std::vector<Line> documentLines() {
    std::ifstream document(std::string(QUORRIN_SOURCE_DIR) + "/docs/robot-protocol.md");
    std::vector<Line> lines;
    std::string text;
    bool inside = false;
    while (std::getline(document, text)) {
        if (text.rfind("```", 0) == 0) {
            inside = text == "```transcript";
            continue;
        }
        if (!inside) continue;
        const auto colon = text.find(':');
        const auto bar = text.find(" | ");
        Line line;
        line.fromGateway = text.substr(0, colon) == "gateway";
        line.says = text.substr(bar + 3);
        std::istringstream hex(text.substr(colon + 1, bar - colon - 1));
        for (std::string byte; hex >> byte;)
            line.bytes.push_back(static_cast<char>(std::stoi(byte, nullptr, 16)));
        lines.push_back(line);
    }
    return lines;
}

wire::Packet decoded(const std::string& bytes) {
    PacketDecoder decoder;
    decoder.add(bytes);
    return decoder.next().value_or(wire::Packet());
}

TEST(ProtocolDocument, SaysOfEachLineWhatItsBytesSay) {
    const auto lines = documentLines();
    ASSERT_EQ(lines.size(), 11U);
    for (const Line& line : lines) EXPECT_EQ(packetText(decoded(line.bytes)), line.says);
}

// What the gateway sends is compared byte by byte. What the station asks for is taken from the document's own
// gateway lines; hellos, heartbeats and the end come from the gateway itself.
TEST_F(GatewayTest, HoldsTheDocumentsConversationByteByByte) {
    std::string gatewayBytes;
    std::unique_ptr<ByteStream> robotStream;
    robotListener = network.listenTcp("10.0.0.1", 10001, nullptr);
    robotListener->onConnection = [&](std::unique_ptr<ByteStream> stream) {
        robotStream = std::move(stream);
        robotStream->onBytes = [&](std::string_view bytes) { gatewayBytes += bytes; };
    };
    start();
    connectStation();
    station.takeHeard();
    clock.runFor(0);
    ASSERT_TRUE(robotStream);

    std::size_t read = 0;
    for (const Line& line : documentLines()) {
        const wire::Packet packet = decoded(line.bytes);
        if (!line.fromGateway) {
            robotStream->send(line.bytes);
            clock.runFor(0);
            if (kindOf(packet) == PacketKind::frame) {
                ASSERT_FALSE(station.heard().empty());
                EXPECT_EQ(packetText(station.heard().back()), line.says);
            }
            continue;
        }
        if (packet.has_heartbeat()) clock.runFor(100);
        if (packet.has_set_drive_velocities()) station.say(packet);
        if (packet.has_suspend_drive() && packet.suspend_drive().channel() == 0) gateway->close();
        clock.runFor(0);
        EXPECT_EQ(gatewayBytes.substr(read, line.bytes.size()), line.bytes) << line.says;
        read += line.bytes.size();
    }
    EXPECT_EQ(read, gatewayBytes.size()) << "the gateway said more than the document does";
}

}  // namespace
}  // namespace quorrin

#include "wire/framing.h"

#include <utility>

namespace quorrin {

namespace {

std::size_t lengthAt(std::string_view bytes) {
    std::size_t length = 0;
    for (std::size_t i = 0; i < kLengthBytes; ++i)
        length = length << 8 | static_cast<unsigned char>(bytes[i]);
    return length;
}

}  // namespace

std::string encodePacket(const wire::Packet& packet, std::size_t limit) {
    const std::size_t length = packet.ByteSizeLong();
    if (length > limit) return {};
    std::string bytes;
    bytes.reserve(kLengthBytes + length);
    for (int shift = 24; shift >= 0; shift -= 8) bytes.push_back(static_cast<char>(length >> shift & 0xFF));
    packet.AppendToString(&bytes);
    return bytes;
}

void PacketDecoder::add(std::string_view bytes) {
    if (failed()) return;
    if (taken_ == buffer_.size()) {
        buffer_.clear();
        taken_ = 0;
    } else if (taken_ > limit_) {
        buffer_.erase(0, taken_);
        taken_ = 0;
    }
    buffer_.append(bytes);
}

std::optional<wire::Packet> PacketDecoder::fail(std::string why) {
    error_ = std::move(why);
    buffer_ = {};
    taken_ = 0;
    return std::nullopt;
}

std::optional<wire::Packet> PacketDecoder::next() {
    if (failed()) return std::nullopt;
    const std::string_view rest = std::string_view(buffer_).substr(taken_);
    if (rest.size() < kLengthBytes) return std::nullopt;
    const std::size_t length = lengthAt(rest);
    if (length == 0) return fail("empty packet");
    if (length > limit_) return fail("packet of " + std::to_string(length) + " bytes, above the limit");
    if (rest.size() < kLengthBytes + length) return std::nullopt;

    wire::Packet packet;
    if (!packet.ParseFromArray(rest.data() + kLengthBytes, static_cast<int>(length)))
        return fail("packet of " + std::to_string(length) + " bytes that does not parse");
    if (packet.body_case() == wire::Packet::BODY_NOT_SET) return fail("packet of an unknown kind");
    taken_ += kLengthBytes + length;
    return packet;
}

}  // namespace quorrin

#include "wire/packet_channel.h"

#include <utility>

namespace quorrin {

namespace {

// Text of a peer for our log: printable, and not longer than a line can take.
std::string printable(const std::string& text) {
    std::string clean;
    for (const char c : text.substr(0, 80)) clean.push_back(c >= ' ' && c <= '~' ? c : '?');
    return clean;
}

}  // namespace

PacketChannel::PacketChannel(std::unique_ptr<ByteStream> stream, wire::Role role, const std::string& ownName)
    : stream_(std::move(stream)), role_(role), alive_(std::make_shared<bool>(true)) {
    stream_->onBytes = [this](std::string_view bytes) { receive(bytes); };
    stream_->onClosed = [this] {
        end(decoder_.midPacket() ? "closed in the middle of a packet" : "closed the connection");
    };
    stream_->send(encodePacket(helloPacket(role, ownName)));
}

PacketChannel::~PacketChannel() {
    *alive_ = false;
}

bool PacketChannel::send(const wire::Packet& packet) {
    if (!open_) return false;
    const std::string bytes = encodePacket(packet);
    return !bytes.empty() && stream_->send(bytes);
}

void PacketChannel::close(const std::string& reason) {
    if (!open_) return;
    wire::Packet goodbye;
    goodbye.mutable_goodbye()->set_reason(reason);
    send(goodbye);
    open_ = false;
    stream_->close();
}

void PacketChannel::receive(std::string_view bytes) {
    if (!open_) return;
    bytesHeard_ += bytes.size();
    decoder_.add(bytes);
    const auto alive = alive_;
    while (*alive && open_) {
        const auto packet = decoder_.next();
        if (!packet) break;
        take(*packet);
    }
    if (*alive && open_ && decoder_.failed()) end("sent rubbish: " + decoder_.error());
}

void PacketChannel::take(const wire::Packet& packet) {
    if (packet.has_goodbye()) return end("said goodbye: " + printable(packet.goodbye().reason()));
    if (!greeted_) {
        const std::string fault = helloFault(packet, role_);
        if (!fault.empty()) return end("sent " + fault);
        greeted_ = true;
        if (const auto handler = onGreeted) handler(printable(packet.hello().name()));
        return;
    }
    if (packet.has_hello()) return end("sent a second Hello");
    const wire::Role role = roleOf(packet);
    if (role != wire::ROLE_UNKNOWN && role != role_)
        return end("sent a packet of the " + roleName(role) + " link");
    const std::string fault = packetFault(packet);
    if (!fault.empty()) return end("sent " + fault);
    if (const auto handler = onPacket) handler(packet);
}

void PacketChannel::end(const std::string& why) {
    if (!open_) return;
    open_ = false;
    stream_->close();
    if (const auto handler = onEnded) handler(why);
}

}  // namespace quorrin

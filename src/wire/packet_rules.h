// What makes a packet sound: of which kind and link it is, and whether its numbers can be what they stand
// for.
//
// Pure functions. A fault is a text for the log; "" is none.
#pragma once

#include <string>

#include "robot.pb.h"

namespace quorrin {

constexpr int kProtocolVersion = 1;

enum class PacketKind { hello, heartbeat, goodbye, operation, frame };

PacketKind kindOf(const wire::Packet& packet);
// The link that an operation or frame belongs to; ROLE_UNKNOWN for what belongs to both.
wire::Role roleOf(const wire::Packet& packet);
// "mot" or "ti".
std::string roleName(wire::Role role);

// Numbers that do not fit 16 bits, and a picture whose bytes are not width x height x 3.
std::string packetFault(const wire::Packet& packet);

wire::Packet helloPacket(wire::Role role, const std::string& name);
// Why this is not the first packet that is expected from the other side of this link.
std::string helloFault(const wire::Packet& packet, wire::Role role);

}  // namespace quorrin

// Which frame events there are, which link instance owns each, and the properties by name.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "robotlink/quorrin_sdk.h"

namespace quorrin {

enum class LinkName : std::uint8_t { myRobot, robotTI };
const char* linkText(LinkName link);

struct FrameKind {
    const char* name;
    LinkName link;
    LinkEvent LinkEvents::*event;
};

struct FrameProperty {
    const char* name;
    LinkName link;
    // Null for SonarCm, which is an array of four.
    Integer LinkProperties::*value;
};

constexpr int kFrameKinds = 6;
constexpr int kFrameProperties = 26;

const std::array<FrameKind, kFrameKinds>& frameKinds();
const std::array<FrameProperty, kFrameProperties>& frameProperties();

// Number of the entry of that name, or -1. The search for a property begins at `hint`, which makes it one
// comparison for names that come in the table's order.
int findFrameKind(std::string_view name);
int findFrameProperty(std::string_view name, int hint = 0);

}  // namespace quorrin

// The title under which a station's window is found by its gateways. A constant only.
#pragma once

namespace quorrin {

inline constexpr const char* kStationTitle = "Quorrin Station";

}  // namespace quorrin

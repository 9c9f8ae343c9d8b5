// How a client's words go over the framed channels: "^", 0x02, payload, "^", carriage return.
//
// The station has one rule on its command channel that a client must know. Of several frames in one read it
// handles the next one only where its end mark stands at the same place as that of the one before; else the
// rest waits in its buffer for bytes that come later. A stop that waits behind a frame of another length
// would be a stop that does not stop. What stands ahead of a start mark is dropped with the frame, so every
// frame of the command channel is filled up with blanks in front to one length, and all that are in a read
// are handled.
//
// Pure functions; a payload holds no end mark, and is short enough for a unit.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace quorrin {

// Whole length of a command on the wire; the longest drive command fits.
constexpr std::size_t kCommandUnit = 64;

std::string channelFrame(std::string_view payload);
// Longer payloads go as they are.
std::string commandUnit(std::string_view payload);

}  // namespace quorrin

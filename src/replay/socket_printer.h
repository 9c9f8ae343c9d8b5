// Prints what a station asks of its socket arrays: listeners, accepted calls, closed elements, sent bytes.
#pragma once

#include "platform/virtual/virtual_sockets.h"
#include "replay/output.h"

namespace quorrin {

// Takes the hooks of `sockets`. The output must outlive them.
void printSockets(VirtualSockets& sockets, Output& output);

}  // namespace quorrin

// TCP outwards as the machine gives it: connecting, the end of a connection, its round-trip time. Nothing
// here waits; descriptors are closed in programs that this one starts. No events: the owner watches the
// descriptor, which becomes writable when the attempt is over. Bytes go by tcp_calls.h.
#pragma once

#include <optional>
#include <string>

#include "platform/host/file_handle.h"

namespace quorrin {

// Whether the text is a dotted IPv4 address.
bool isAddress(const std::string& text);
// Begins to connect. Not valid on failure, with the reason in `error`. A connection whose other side is not
// to be reached any more breaks within some ten seconds, also while nothing is sent.
FileHandle connectTcp(const std::string& address, int port, std::string& error);
// How the attempt came out: "" for a connection, else the reason.
std::string connectOutcome(const FileHandle& socket);
// Nothing more is sent: the other side sees the end, and may still send.
void endSending(const FileHandle& socket);
// Closes. What the other machine has not confirmed is thrown away, and the connection reset: the kernel would
// else go on trying on its own.
void closeWithoutRest(FileHandle& socket);
// The kernel's smoothed round-trip time; empty where it has none.
std::optional<double> roundTripMs(const FileHandle& socket);

}  // namespace quorrin

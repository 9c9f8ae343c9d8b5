// TCP as the machine gives it: a listener on all IPv4 interfaces, accepted calls, bytes both ways. Nothing
// here waits; all descriptors are closed in programs that this one starts. No events: the owner watches the
// descriptors.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "platform/host/file_handle.h"

namespace quorrin {

struct TcpCall {
    FileHandle socket;
    std::string ip;  // of the caller, dotted
    int port = 0;
    int localPort = 0;
};

// Not valid on failure, with the reason in `error`.
FileHandle listenTcp(int port, std::string& error);

enum class TcpAccept { call, nobody, noDescriptors, broken };
// Takes one waiting call.
TcpAccept acceptTcp(const FileHandle& listener, TcpCall& call);

enum class TcpResult { some, later, ended, broken };
// Appends at most `atMost` bytes.
TcpResult receiveTcp(const FileHandle& socket, std::size_t atMost, std::string& bytes);
// Takes what the machine takes off the front of `bytes`: some is all of it, later a rest. Ended: the peer has
// closed in order and takes nothing more; what it sent before, and its close, are still there to be read.
TcpResult sendTcp(const FileHandle& socket, std::string_view& bytes);

// A descriptor kept for the day on which there is none left: given up for a moment, it lets a caller be taken
// and turned away, who would else stay in front of the listener for ever.
FileHandle spareDescriptor();

}  // namespace quorrin

// The command line of quorrin-remote.
//
// Reads no file and no environment. An error is a text that names the argument.
#pragma once

#include <string>
#include <vector>

namespace quorrin {

struct RemoteOptions {
    std::string host;    // "": none was given
    std::string script;  // a file; "" for the window
    bool help = false;
    bool version = false;
    std::string error;
};

RemoteOptions parseRemoteOptions(const std::vector<std::string>& arguments);
std::string remoteUsage();

}  // namespace quorrin

// Where this session's files and programs lie, and which robot it is for.
//
// The gateways lie in the folder of this program; their profile files in the Windows folder's stand-in.
#pragma once

#include "platform/files.h"
#include "platform/folders.h"
#include "session/record/path_values.h"

namespace quorrin {

// The loopback address on which a simulated robot listens. Its first two fields have one length, which the
// address boxes' cut needs.
constexpr const char* kDefaultRobotIp = "127.127.0.1";
constexpr const char* kDefaultRobotPort = "10001";

void buildPaths(PathValues& paths, const Folders& folders);

// Address from the multimedia gateway's file and port from the motion gateway's; both defaults when the
// latter does not exist or either value is empty.
void readStoredAddress(PathValues& paths, Files& files);

}  // namespace quorrin

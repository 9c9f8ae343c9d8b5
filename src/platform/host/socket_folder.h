// Where the socket files of local endpoints lie.
//
// A socket's address holds some 100 bytes, so a run folder with a longer path is replaced by a short one,
// "/tmp/quorrin-USER-HASH", whose hash is made from the run folder's path. The folder is the user's alone
// (0700); one of that name that belongs to somebody else is not used.
#pragma once

#include <string>

namespace quorrin {

// Creates the folder where it is missing. Empty when there is none that is safe to use.
std::string socketFolder(const std::string& runFolder);

// Removes a socket file that nobody listens on any more. A living one, and anything else, stays.
void removeDeadSocket(const std::string& path);

}  // namespace quorrin

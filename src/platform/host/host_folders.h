// Where the station's things lie on a Linux machine, by the XDG rules.
//
//   application  $XDG_DATA_HOME/quorrin            (~/.local/share/quorrin)
//   windows      $XDG_CONFIG_HOME/quorrin          (~/.config/quorrin)
//   tempVoice    $XDG_CACHE_HOME/quorrin/tempVoice (~/.cache/quorrin/tempVoice)
//   state        $XDG_STATE_HOME/quorrin           (~/.local/state/quorrin)
//   run          application + "/run": sockets and locks of the gateways
//   share        the installation's share folder, where a first start finds its files
//
// A variable that is empty or no absolute path counts as not set, as the rules say. Pure but for
// hostFolders(), which asks the environment, the user's entry and the running program's place.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/files.h"
#include "platform/folders.h"

namespace quorrin {

struct HostFolders {
    Folders folders;
    std::string state;
    std::string run;
    std::string share;
};

// `variable` gives "" for one that is not set.
HostFolders hostFoldersFrom(const std::function<std::string(const std::string& variable)>& variable,
                            const std::string& home, const std::string& programs);
HostFolders hostFolders();

// Makes those that a program writes into. Names the first that cannot be made; empty when all are there.
std::string createHostFolders(Files& files, const HostFolders& host);

}  // namespace quorrin

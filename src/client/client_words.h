// The texts of the client's window that stand still: captions, names for screen readers, tool tips,
// shortcuts. Texts only; what changes is said by client_face.h.
#pragma once

#include <string>
#include <vector>

#include "client/drive_keys.h"
#include "client/remote_channel.h"

namespace quorrin {

enum class ClientControl {
    window,
    host,
    connect,
    look,
    mode,
    release,
    avoidance,
    headAhead,
    headUpDown,
    headLeftRight,
    mouth,
    driveField,
    headField,
    connections,
};

struct ClientWords {
    std::string caption;
    std::string name;  // for a screen reader, where the caption is not enough
    std::string tip;
    std::string shortcut;  // "" for none
};
const ClientWords& clientWords(ClientControl control);

enum class ClientTile { mode, holder, person, position, linkAge, roundTrip };
const std::string& tileCaption(ClientTile tile);
const std::string& channelCaption(RemoteChannel channel);

enum class Level { gas, brake, steering };
const std::string& levelCaption(Level level);

// The keys that are held to drive and to look about.
struct HeldKeyWords {
    bool HeldKeys::*held;
    std::string cap;      // what stands on the key
    std::string caption;  // what it does, in a word
    std::string name;
    std::string tip;
};
const std::vector<HeldKeyWords>& heldKeyWords();

}  // namespace quorrin

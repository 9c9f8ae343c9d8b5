// The connections at a glance: each channel's state, the age of the last report, the way there and back.
#pragma once

#include "base/glance.h"
#include "client/remote_link.h"

namespace quorrin {

Glance channelGlance(const RemoteLink& link, RemoteChannel channel);
Glance linkAgeGlance(const RemoteLink& link);
Glance roundTripGlance(const RemoteLink& link);

}  // namespace quorrin

#include "client/channel_frame.h"

namespace quorrin {

std::string channelFrame(std::string_view payload) {
    return std::string("^\x02").append(payload).append("^\r");
}

std::string commandUnit(std::string_view payload) {
    const std::string frame = channelFrame(payload);
    if (frame.size() >= kCommandUnit) return frame;
    return std::string(kCommandUnit - frame.size(), ' ') + frame;
}

}  // namespace quorrin

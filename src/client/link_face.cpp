#include "client/link_face.h"

#include "base/number_text.h"
#include "client/client_face.h"

namespace quorrin {

namespace {

constexpr double kSecond = 1000;
constexpr double kFineMs = 10;  // below it a tenth of a millisecond counts
constexpr double kLeastMs = 0.1;

std::string seconds(std::int64_t ms, int decimals) {
    return formatFixed(static_cast<double>(ms) / kSecond, decimals) + " s";
}

// Counted down to 1; at 0 it is there.
std::string wholeSeconds(std::int64_t ms) {
    return std::to_string((ms + 999) / 1000) + " s";
}

}  // namespace

Glance channelGlance(const RemoteLink& link, RemoteChannel channel) {
    const std::string port = "port " + std::to_string(portOf(channel));
    const std::string& problem = link.problem(channel);
    switch (link.state(channel)) {
        case ChannelState::connected:
            if (channel == RemoteChannel::command && !link.answered())
                return {"connected", port + ", no report yet", Tone::busy};
            return {"connected", port, Tone::good};
        case ChannelState::connecting:
            return {"calling", port, Tone::busy};
        case ChannelState::waiting:
            // The side connections wait for their turn without anything having gone wrong.
            if (problem.empty()) return {"next", port, Tone::busy};
            return {"in " + wholeSeconds(link.nextTryInMs(channel).value_or(0)), problem, Tone::warning};
        case ChannelState::off:
            break;
    }
    if (problem.empty()) return {"off", port, Tone::off};
    return {"lost", problem, Tone::bad};
}

Glance linkAgeGlance(const RemoteLink& link) {
    const auto age = link.reportAgeMs();
    if (!link.connected(RemoteChannel::command))
        return {"none", age ? "last report " + seconds(*age, 0) + " ago" : "not connected", Tone::off};
    if (!age || !link.answered()) return {"waiting", "for the first report", Tone::busy};
    const std::string word = seconds(*age, 1);
    if (*age >= kLostMs) return {word, "The station is silent.", Tone::bad};
    if (*age >= RemoteLink::kLateMs) return {word, "A report is overdue.", Tone::warning};
    return {word, "since the last report", Tone::good};
}

Glance roundTripGlance(const RemoteLink& link) {
    const auto ms = link.roundTripMs();
    if (!ms) return {"none", "not connected", Tone::off};
    const std::string word =
        *ms < kLeastMs ? "under 0.1 ms" : formatFixed(*ms, *ms < kFineMs ? 1 : 0) + " ms";
    if (*ms >= kSlowMs) return {word, "The robot answers late: drive slowly.", Tone::warning};
    return {word, "there and back", Tone::good};
}

}  // namespace quorrin

#include "remote/frame_codec.h"

#include <optional>

namespace quorrin {

namespace {

constexpr std::string_view kStartMark = "^\x02";
constexpr std::string_view kEndMark = "^\r";
constexpr std::size_t kShortestPayload = 4;
// Fewer characters than a start mark, an end mark and two more are not worth a look.
constexpr std::size_t kWorthALook = 6;

// `head` is what stands ahead of an end mark.
std::optional<std::string> payloadIn(std::string_view head) {
    const std::size_t start = head.find(kStartMark);
    if (start == std::string_view::npos) return std::nullopt;
    const std::string_view payload = head.substr(start + kStartMark.size());
    if (payload.size() < kShortestPayload) return std::nullopt;
    return std::string(payload);
}

}  // namespace

void FrameBuffer::take(std::string_view bytes, const std::function<void(const std::string&)>& deliver) {
    if (text_.size() > limit_) text_.clear();
    text_ += bytes;
    std::string_view rest = text_;
    for (std::size_t end = rest.find(kEndMark); end != std::string_view::npos;) {
        if (const auto payload = payloadIn(rest.substr(0, end))) deliver(*payload);
        rest.remove_prefix(end + kEndMark.size());
        if (rest.size() < kWorthALook) break;
        const std::size_t next = rest.find(kEndMark);
        if (rule_ == FrameRule::equalLength && next != end) break;
        end = next;
    }
    text_.erase(0, text_.size() - rest.size());
}

std::string frameOf(std::string_view payload) {
    return std::string(kStartMark).append(payload).append(kEndMark);
}

}  // namespace quorrin

// Bytes of remote clients on a framed channel, in whatever pieces: what is delivered and what waits is what a
// second, plain receiver makes of the same reads, and no more waits than the limit and one read.
//
// Input: a byte for the rule (odd: equal lengths only, as on the command channel; even: every frame, as on
// the video channel) and the limit (a small letter: the channel's; else a small one, so that short inputs get
// there), then the reads, each ended by 0x1E.
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "expect.h"
#include "remote/frame_codec.h"
#include "support/plain_receiver.h"

namespace {

using quorrin::FrameBuffer;
using quorrin::FrameRule;
using quorrin::PlainReceiver;
using quorrin::fuzz::expect;

constexpr std::size_t kSmallLimit = 24;

std::size_t limitOf(FrameRule rule, bool small) {
    if (small) return kSmallLimit;
    return rule == FrameRule::equalLength ? 4095 : 1024;
}

void judgePayload(const std::string& payload) {
    expect(payload.size() >= 4, "a payload has four characters at least");
    expect(payload.find("^\r") == std::string::npos, "a payload holds no end mark");
    std::vector<std::string> again;
    FrameBuffer(4095, FrameRule::equalLength).take(quorrin::frameOf(payload), [&](const std::string& one) {
        again.push_back(one);
    });
    expect(again == std::vector<std::string>{payload}, "a payload goes through a frame of its own unchanged");
}

void judgeRead(FrameBuffer& buffer, PlainReceiver& plain, std::size_t limit, std::string_view bytes) {
    std::vector<std::string> delivered;
    buffer.take(bytes, [&](const std::string& payload) { delivered.push_back(payload); });
    expect(delivered == plain.read(std::string(bytes)), "it delivers what the plain receiver does");
    expect(buffer.waiting() == plain.waiting(), "it keeps what the plain receiver does");
    expect(buffer.waiting().size() <= limit + bytes.size(), "it holds a limit and one read at most");
    for (const std::string& payload : delivered) judgePayload(payload);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0) return 0;
    const FrameRule rule = data[0] % 2 == 1 ? FrameRule::equalLength : FrameRule::everyFrame;
    const std::size_t limit = limitOf(rule, (data[0] & 0x20) == 0);
    FrameBuffer buffer(limit, rule);
    PlainReceiver plain(rule, limit);
    std::string_view rest(reinterpret_cast<const char*>(data) + 1, size - 1);
    while (!rest.empty()) {
        const std::string_view bytes = rest.substr(0, rest.find('\x1E'));
        judgeRead(buffer, plain, limit, bytes);
        rest.remove_prefix(bytes.size() < rest.size() ? bytes.size() + 1 : bytes.size());
    }
    return 0;
}

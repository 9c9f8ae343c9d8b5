// The text framing of the command and the video channel: "^", 0x02, payload, "^", carriage return.
//
// Bytes are taken one to one. There is no length: the end mark ends a frame, so a payload may hold anything
// but that. A payload of fewer than 4 bytes is no frame; its end mark is consumed all the same. What stands
// ahead of the first start mark goes with the frame.
//
// A FrameBuffer belongs to a channel, not to a client: the bytes of several clients mix in it. When it holds
// more than its limit as further bytes come, what it held is lost without a word.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

namespace quorrin {

// When the bytes behind a frame are looked at in the same read.
enum class FrameRule {
    everyFrame,   // as long as there are end marks
    equalLength,  // only where the next end mark stands at the same place; else they wait for the next read
};

class FrameBuffer {
  public:
    FrameBuffer(std::size_t limit, FrameRule rule) : limit_(limit), rule_(rule) {}

    // One read. `deliver` gets each payload in turn, and may do anything but destroy the buffer.
    void take(std::string_view bytes, const std::function<void(const std::string& payload)>& deliver);

    const std::string& waiting() const { return text_; }

  private:
    std::size_t limit_;
    FrameRule rule_;
    std::string text_;
};

// A payload as it goes over the wire.
std::string frameOf(std::string_view payload);

}  // namespace quorrin

// The receive loop of the framed channels once more, step by step with one-based places and cut texts; slow
// and plain, for FrameBuffer to be held against.
#pragma once

#include <string>
#include <vector>

#include "remote/frame_codec.h"

namespace quorrin {

class PlainReceiver {
  public:
    PlainReceiver(FrameRule rule, std::size_t limit) : rule_(rule), limit_(limit) {}

    // One read; what it delivers.
    std::vector<std::string> read(const std::string& bytes) {
        std::vector<std::string> delivered;
        if (text_.size() > limit_) text_ = "";
        text_ = text_ + bytes;
        std::size_t p = place(text_);
        while (p > 0) {
            if (p > 5) {
                for (std::size_t i = 1; i <= p - 2; ++i) {
                    if (text_[i - 1] != '^' || text_[i] != '\x02') continue;
                    if (p - i > 5) delivered.push_back(text_.substr(i + 2 - 1, p - i - 2));
                    break;
                }
            }
            text_ = text_.substr(p + 2 - 1);
            if (text_.size() < 6) break;
            const std::size_t next = place(text_);
            if (rule_ == FrameRule::equalLength && next != p) break;
            p = next;
        }
        return delivered;
    }
    const std::string& waiting() const { return text_; }

  private:
    static std::size_t place(const std::string& text) { return text.find("^\r") + 1; }

    FrameRule rule_;
    std::size_t limit_;
    std::string text_;
};

}  // namespace quorrin

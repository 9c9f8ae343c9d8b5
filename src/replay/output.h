// The replay's output: one JSON object a line, gathered in a large buffer and written in large pieces.
//
// Each line begins with the clock at that moment. begin() opens a line, the add...() functions append one
// member each, end() closes it. After stop() nothing more is taken. Output that cannot be written is noticed
// by good() and otherwise ignored.
#pragma once

#include <cstdint>
#include <cstdio>
#include <string>
#include <string_view>
#include <utility>

#include "platform/clock.h"

namespace quorrin {

class Output {
  public:
    // `file` may be null: then the lines stay in text(). Not owned.
    Output(const Clock& clock, std::FILE* file) : clock_(clock), file_(file) {}
    ~Output() { flush(); }
    Output(const Output&) = delete;
    Output& operator=(const Output&) = delete;

    void begin();
    void addText(std::string_view key, std::string_view value);
    void addWhole(std::string_view key, std::int64_t value);
    void addBoolean(std::string_view key, bool value);
    // Bytes as "hex"; more than 256 of them as their number and the 16 at each end.
    void addBytes(std::string_view bytes);
    // Appends `, "key": ` and returns the buffer, for a value of the caller's own making.
    std::string& addRaw(std::string_view key);
    // Ends such a value.
    void addRawTail(std::string_view text) { buffer_ += text; }
    void end();

    // From now on no line shows this text, a JSON text's inside: it is left out wherever it stands.
    void leaveOut(std::string text) { leftOut_ = std::move(text); }

    void stop() { stopped_ = true; }
    void flush();
    bool good() const { return good_; }
    // What has not been written yet.
    const std::string& text() const { return buffer_; }

  private:
    const Clock& clock_;
    std::FILE* file_;
    std::string buffer_;
    std::string leftOut_;
    std::size_t lineStart_ = 0;
    bool stopped_ = false;
    bool good_ = true;
};

}  // namespace quorrin

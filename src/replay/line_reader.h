// Reads a text file or standard input line by line, in large pieces, without keeping more than one line.
//
// A line ends with a line feed, which is not part of it; the last one need not have it. The returned view
// lives until the next call. Not a parser: it knows nothing of what stands in the lines.
#pragma once

#include <cstdint>
#include <cstdio>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quorrin {

class LineReader {
  public:
    // `file` may be null, which reads as a file that cannot be read. Not owned.
    explicit LineReader(std::FILE* file);
    LineReader(const LineReader&) = delete;
    LineReader& operator=(const LineReader&) = delete;

    // Begins anew with the first line; the file must be one that can go back.
    void rewind();
    // Is there a file, and has all reading succeeded so far?
    bool good() const { return good_; }
    // Empty at the end.
    std::optional<std::string_view> next();
    // Number of the line that next() returned last, counted from 1.
    std::int64_t lineNumber() const { return number_; }

  private:
    bool fill();

    std::FILE* file_;
    long start_;  // where in the file the first line begins
    bool good_;
    bool atEnd_ = false;
    std::vector<char> buffer_;
    std::size_t begin_ = 0;  // unread bytes are [begin_, end_)
    std::size_t end_ = 0;
    std::int64_t number_ = 0;
};

}  // namespace quorrin

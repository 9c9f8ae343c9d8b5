#include "replay/line_reader.h"

#include <cstring>

namespace quorrin {

namespace {
constexpr std::size_t kPieceBytes = 256 * 1024;
}

LineReader::LineReader(std::FILE* file)
    : file_(file),
      start_(file != nullptr ? std::ftell(file) : 0),
      good_(file != nullptr),
      buffer_(kPieceBytes) {}

// Makes room behind the unread bytes and reads more; false at the end.
bool LineReader::fill() {
    if (begin_ > 0) {
        std::memmove(buffer_.data(), buffer_.data() + begin_, end_ - begin_);
        end_ -= begin_;
        begin_ = 0;
    }
    if (end_ == buffer_.size()) buffer_.resize(buffer_.size() * 2);
    const std::size_t got = std::fread(buffer_.data() + end_, 1, buffer_.size() - end_, file_);
    if (got == 0) {
        atEnd_ = true;
        if (std::ferror(file_) != 0) good_ = false;
        return false;
    }
    end_ += got;
    return true;
}

void LineReader::rewind() {
    begin_ = 0;
    end_ = 0;
    number_ = 0;
    atEnd_ = false;
    good_ = file_ != nullptr && std::fseek(file_, start_, SEEK_SET) == 0;
}

std::optional<std::string_view> LineReader::next() {
    if (!good_) return std::nullopt;
    std::size_t searched = 0;
    for (;;) {
        const char* start = buffer_.data() + begin_;
        const void* feed = std::memchr(start + searched, '\n', end_ - begin_ - searched);
        if (feed != nullptr) {
            const auto length = static_cast<std::size_t>(static_cast<const char*>(feed) - start);
            begin_ += length + 1;
            ++number_;
            return std::string_view(start, length);
        }
        searched = end_ - begin_;
        if (atEnd_ || !fill()) break;
    }
    if (!good_ || begin_ == end_) return std::nullopt;
    const std::string_view last(buffer_.data() + begin_, end_ - begin_);
    begin_ = end_;
    ++number_;
    return last;
}

}  // namespace quorrin

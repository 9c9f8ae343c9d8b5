#include "replay/output.h"

#include "base/json_text.h"

namespace quorrin {

namespace {
constexpr std::size_t kPieceBytes = 1024 * 1024;

std::string hexOf(std::string_view bytes) {
    std::string hex;
    appendHex(hex, bytes);
    return hex;
}
}  // namespace

void Output::begin() {
    lineStart_ = buffer_.size();
    buffer_ += "{\"t\": ";
    appendWhole(buffer_, clock_.nowMs());
}

std::string& Output::addRaw(std::string_view key) {
    buffer_ += ", \"";
    buffer_ += key;
    buffer_ += "\": ";
    return buffer_;
}

void Output::addText(std::string_view key, std::string_view value) {
    appendText(addRaw(key), value);
}

void Output::addWhole(std::string_view key, std::int64_t value) {
    appendWhole(addRaw(key), value);
}

void Output::addBoolean(std::string_view key, bool value) {
    appendBoolean(addRaw(key), value);
}

void Output::addBytes(std::string_view bytes) {
    constexpr std::size_t kWholeBytes = 256;
    constexpr std::size_t kEndBytes = 16;
    if (bytes.size() <= kWholeBytes) {
        addText("hex", hexOf(bytes));
        return;
    }
    addWhole("bytes", static_cast<std::int64_t>(bytes.size()));
    addText("head", hexOf(bytes.substr(0, kEndBytes)));
    addText("tail", hexOf(bytes.substr(bytes.size() - kEndBytes)));
}

void Output::end() {
    if (stopped_) {
        buffer_.resize(lineStart_);
        return;
    }
    if (!leftOut_.empty()) {
        for (auto at = buffer_.find(leftOut_, lineStart_); at != std::string::npos;
             at = buffer_.find(leftOut_, at))
            buffer_.erase(at, leftOut_.size());
    }
    buffer_ += "}\n";
    if (file_ != nullptr && buffer_.size() >= kPieceBytes) flush();
}

void Output::flush() {
    if (file_ == nullptr) return;
    if (std::fwrite(buffer_.data(), 1, buffer_.size(), file_) != buffer_.size()) good_ = false;
    if (std::fflush(file_) != 0) good_ = false;
    buffer_.clear();
}

}  // namespace quorrin

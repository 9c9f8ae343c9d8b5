#include "client/printable_text.h"

namespace quorrin {

namespace {

constexpr unsigned char kFirstShown = 0x20;
constexpr unsigned char kDelete = 0x7F;

std::string shown(std::string_view text, unsigned char lastShown) {
    constexpr char kDigits[] = "0123456789ABCDEF";
    std::string line;
    for (const char character : text.substr(0, kToldBytes)) {
        const auto byte = static_cast<unsigned char>(character);
        if (byte >= kFirstShown && byte != kDelete && byte <= lastShown) {
            line += character;
        } else {
            line += {'\\', 'x', kDigits[byte / 16], kDigits[byte % 16]};
        }
    }
    return text.size() > kToldBytes ? line + "..." : line;
}

}  // namespace

std::string printableText(std::string_view text) {
    return shown(text, 0xFF);
}

std::string printableBytes(std::string_view bytes) {
    return shown(bytes, kDelete);
}

}  // namespace quorrin

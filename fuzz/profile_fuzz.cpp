// A profile file that somebody has edited: it can be read, and a value that is written can be read back,
// while a value of another key stays as it was.
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "base/profile_text.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    const auto port = quorrin::profileValue(text, "WiFi", "WiFiPort");
    const auto changed = quorrin::withProfileValue(text, "WiFi", "WiFiIP", "127.127.0.1");
    if (quorrin::profileValue(changed, "wifi", "WIFIIP") != "127.127.0.1") std::abort();
    if (quorrin::profileValue(changed, "WiFi", "WiFiPort") != port) std::abort();
    return 0;
}

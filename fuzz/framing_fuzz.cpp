// Bytes of a peer that may be anybody: whatever comes, in whatever pieces, the decoder gives packets or an
// error, the same ones whether the bytes come whole or cut in two, and what it gives can be encoded again.
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

#include "wire/framing.h"

namespace {

struct Read {
    std::vector<std::string> packets;
    bool failed = false;
    bool operator==(const Read&) const = default;
};

Read readAll(std::string_view first, std::string_view second) {
    quorrin::PacketDecoder decoder(4096);
    Read read;
    for (const std::string_view piece : {first, second}) {
        decoder.add(piece);
        while (const auto packet = decoder.next()) read.packets.push_back(quorrin::encodePacket(*packet));
    }
    read.failed = decoder.failed();
    return read;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    const std::size_t cut = size == 0 ? 0 : data[0] % size;
    const Read whole = readAll(bytes, "");
    if (!(whole == readAll(bytes.substr(0, cut), bytes.substr(cut)))) std::abort();
    for (const std::string& packet : whole.packets) {
        if (packet.empty()) std::abort();
    }
    return 0;
}

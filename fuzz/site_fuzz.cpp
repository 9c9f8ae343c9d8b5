// A site file: it is taken or refused with a SiteError, and a robot cannot leave a site that was taken.
#include <cstdint>
#include <cstdlib>
#include <string>

#include "platform/virtual/memory_files.h"
#include "robot/site.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    quorrin::MemoryFiles files;
    try {
        const quorrin::Site site = quorrin::parseSite(std::string(reinterpret_cast<const char*>(data), size),
                                                      "fuzzed site", "/sites", files);
        if (!quorrin::reachableExtent(site).closed) std::abort();
    } catch (const quorrin::SiteError&) {
    }
    return 0;
}

// A line of a replay script: it is understood or refused with a ScriptError, and nothing else happens.
#include <cstdint>
#include <string_view>

#include "replay/script_error.h"
#include "replay/script_parser.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    if (quorrin::isSkippedLine(text)) return 0;
    quorrin::ScriptLine line;
    try {
        quorrin::parseScriptLine(text, 1, line);
    } catch (const quorrin::ScriptError&) {
    }
    return 0;
}

#include "replay/script_source.h"

#include "replay/line_reader.h"
#include "replay/script_error.h"
#include "replay/script_parser.h"

namespace quorrin {

namespace {

bool isUsable(std::string_view text) {
    if (isSkippedLine(text)) return true;
    ScriptLine line;
    try {
        parseScriptLine(text, 1, line);
        return true;
    } catch (const ScriptError&) {
        return false;
    }
}

bool append(std::FILE* copy, std::string_view text) {
    return std::fwrite(text.data(), 1, text.size(), copy) == text.size() && std::fputc('\n', copy) != EOF;
}

}  // namespace

OpenFile openScript(const std::string& script, std::string& complaint) {
    OpenFile file(script == "-" ? stdin : std::fopen(script.c_str(), "rb"));
    if (!file) {
        complaint = "cannot be opened";
        return nullptr;
    }
    return readTwice(std::move(file), complaint);
}

OpenFile readTwice(OpenFile file, std::string& complaint) {
    if (std::fseek(file.get(), 0, SEEK_CUR) == 0) return file;
    OpenFile copy(std::tmpfile());
    bool written = copy != nullptr;
    LineReader lines(file.get());
    while (written) {
        const auto text = lines.next();
        if (!text) break;
        written = append(copy.get(), *text);
        if (!isUsable(*text)) break;
    }
    if (!lines.good()) {
        complaint = "cannot be read";
        return nullptr;
    }
    if (!written || std::fseek(copy.get(), 0, SEEK_SET) != 0) {
        complaint = "cannot be kept in a temporary file";
        return nullptr;
    }
    return copy;
}

}  // namespace quorrin

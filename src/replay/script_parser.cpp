#include "replay/script_parser.h"

#include <algorithm>
#include <map>
#include <nlohmann/json.hpp>
#include <set>

#include "remote/channels.h"
#include "replay/frame_scanner.h"
#include "replay/joystick_line.h"
#include "replay/line_fields.h"
#include "replay/script_error.h"
#include "replay/script_limits.h"

namespace quorrin {

namespace {

using Json = nlohmann::json;

constexpr std::int64_t kLastPort = 65535;

// Kinds of lines of rooms that the station does not have yet.
constexpr const char* kNotBuilt[] = {"choose", "waveInDone", "waveOutDone"};

Json parseObject(std::string_view text, std::int64_t number) {
    if (text.substr(0, 3) == "\xEF\xBB\xBF") throw ScriptError{number, "begins with a byte order mark"};
    std::map<int, std::set<std::string>> keys;  // of the objects that are open, by depth
    std::string twice;
    const auto watchKeys = [&](int depth, Json::parse_event_t event, Json& parsed) {
        if (event == Json::parse_event_t::object_start) keys[depth + 1].clear();
        if (event == Json::parse_event_t::key) {
            const auto& key = parsed.get_ref<const std::string&>();
            if (!keys[depth].insert(key).second) twice = key;
        }
        return true;
    };
    Json object;
    try {
        object = Json::parse(text.begin(), text.end(), watchKeys);
    } catch (const Json::exception& error) {
        // Behind "[...] parse error at line 1, column N: ", where the line would mislead.
        const std::string what = error.what();
        const auto colon = what.find(": ");
        throw ScriptError{number,
                          "no valid JSON: " + (colon == std::string::npos ? what : what.substr(colon + 2))};
    }
    if (!object.is_object()) throw ScriptError{number, "is no JSON object"};
    if (!twice.empty()) throw ScriptError{number, "has the key \"" + twice + "\" twice"};
    return object;
}

FrameLine parseProperties(LineFields& fields, int kind) {
    FrameLine frame;
    frame.kind = kind;
    const LinkName link = frameKinds()[static_cast<std::size_t>(kind)].link;
    for (int i = 0; i < kFrameProperties; ++i) {
        const FrameProperty& entry = frameProperties()[static_cast<std::size_t>(i)];
        if (!fields.has(entry.name)) continue;
        if (entry.link != link)
            fields.fail("property \"" + std::string(entry.name) + "\" does not belong to " + linkText(link));
        if (entry.value == nullptr) {
            frame.sonarCm = fields.fourIntegers(entry.name);
            frame.set(i, 0);
        } else {
            frame.set(i, fields.integer(entry.name));
        }
    }
    return frame;
}

void parseFrame(LineFields& fields, ScriptLine& line) {
    const std::string name = fields.text("frame");
    const int kind = findFrameKind(name);
    if (kind < 0) fields.fail("unknown frame \"" + name + "\"");
    const FrameLine frame = parseProperties(fields, kind);
    FrameFileLine withFile;
    withFile.frame = frame;
    if (name == "ImageFrame" && fields.has("bitmap")) {
        withFile.hasBitmap = true;
        withFile.bitmap = fields.text("bitmap");
    }
    if (name == "SoundFrame") {
        if (fields.has("hex") && fields.has("file")) fields.fail("has both \"hex\" and \"file\"");
        withFile.hasSound = fields.has("hex") || fields.has("file");
        if (fields.has("file")) withFile.soundFile = fields.text("file");
        if (fields.has("hex")) {
            const auto bytes = bytesFromHex(fields.text("hex"));
            if (!bytes) fields.fail("\"hex\" is no even number of hex digits");
            withFile.soundBytes = *bytes;
        }
    }
    if (withFile.hasBitmap || withFile.hasSound) {
        line.what = std::move(withFile);
    } else {
        line.what = frame;
    }
}

void parseKey(LineFields& fields, ScriptLine& line, bool down) {
    const char* kind = down ? "keyDown" : "keyUp";
    const bool onPanel = !fields.has("on");
    line.what = KeyLine{fields.whole(kind), down, onPanel, onPanel ? "" : fields.text("on")};
}

void parseUnload(LineFields& fields, ScriptLine& line) {
    if (fields.isText("unload")) {
        line.what = UnloadLine{fields.text("unload")};
        return;
    }
    if (!fields.boolean("unload")) fields.fail("\"unload\" must be true or the name of a form");
    line.what = UnloadLine{};
}

void parseWatch(LineFields& fields, ScriptLine& line) {
    WatchLine watch{fields.texts("watch"), fields.whole("every")};
    if (watch.everyMs < 1 || watch.everyMs > kLastTimeMs) fields.fail("\"every\" must be at least 1");
    line.what = std::move(watch);
}

void parseAnswer(LineFields& fields, ScriptLine& line) {
    const std::string answer = fields.text("answer");
    if (answer != "yes" && answer != "no" && answer != "ok") fields.fail("unknown answer \"" + answer + "\"");
    line.what = AnswerLine{answer};
}

void parseJoystick(LineFields& fields, ScriptLine& line) {
    line.what = joystickLine(fields);
}

std::string socketArray(LineFields& fields, const char* key) {
    const std::string name = fields.text(key);
    const bool known = std::any_of(kChannels.begin(), kChannels.end(),
                                   [&](const Channel& channel) { return name == channel.name; });
    if (!known) fields.fail("unknown socket array \"" + name + "\"");
    return name;
}

void parseConnect(LineFields& fields, ScriptLine& line) {
    const std::string array = socketArray(fields, "connect");
    const std::string from = fields.text("from");
    const std::int64_t port = fields.whole("port");
    if (port < 0 || port > kLastPort) fields.fail("\"port\" must be from 0 to 65535");
    line.what = ConnectLine{array, from, static_cast<int>(port)};
}

// An element that is not connected, or cannot be, is no fault of a line: nothing happens then.
SocketLine socketLine(LineFields& fields, const char* kind, SocketLine::What what) {
    const std::string array = socketArray(fields, kind);
    const std::int64_t element = fields.whole("element");
    return {what, array, static_cast<int>(std::clamp<std::int64_t>(element, -1, kLastPort)), ""};
}

void parseReceive(LineFields& fields, ScriptLine& line) {
    SocketLine receive = socketLine(fields, "receive", SocketLine::What::receive);
    if (fields.has("text") == fields.has("hex")) fields.fail("needs either \"text\" or \"hex\"");
    const auto bytes =
        fields.has("hex") ? bytesFromHex(fields.text("hex")) : oneByteEach(fields.text("text"));
    if (!bytes && fields.has("hex")) fields.fail("\"hex\" is no even number of hex digits");
    if (!bytes) fields.fail("\"text\" holds a character above U+00FF; give its bytes as \"hex\"");
    receive.bytes = *bytes;
    line.what = std::move(receive);
}

void parseLogin(LineFields& fields, ScriptLine& line) {
    if (!fields.boolean("login")) fields.fail("\"login\" must be true");
    line.what = LoginLine{};
}

struct Kind {
    const char* key;
    void (*parse)(LineFields&, ScriptLine&);
};

constexpr Kind kKinds[] = {
    {"frame", parseFrame},
    {"click", [](LineFields& f, ScriptLine& line) { line.what = ClickLine{f.text("click")}; }},
    {"press",
     [](LineFields& f, ScriptLine& line) {
         line.what = PressLine{f.text("press"), true};
     }},
    {"release",
     [](LineFields& f, ScriptLine& line) {
         line.what = PressLine{f.text("release"), false};
     }},
    {"set",
     [](LineFields& f, ScriptLine& line) {
         line.what = SetLine{f.text("set"), f.controlValue("to")};
     }},
    {"keyDown", [](LineFields& f, ScriptLine& line) { parseKey(f, line, true); }},
    {"keyUp", [](LineFields& f, ScriptLine& line) { parseKey(f, line, false); }},
    {"focus", [](LineFields& f, ScriptLine& line) { line.what = FocusLine{f.text("focus")}; }},
    {"answer", parseAnswer},
    {"joystick", parseJoystick},
    {"unload", parseUnload},
    {"activate", [](LineFields& f, ScriptLine& line) { line.what = ActivateLine{f.text("activate")}; }},
    {"watch", parseWatch},
    {"connect", parseConnect},
    {"receive", parseReceive},
    {"hangup",
     [](LineFields& f, ScriptLine& line) { line.what = socketLine(f, "hangup", SocketLine::What::hangup); }},
    {"socketError",
     [](LineFields& f, ScriptLine& line) {
         line.what = socketLine(f, "socketError", SocketLine::What::socketError);
     }},
    {"login", parseLogin},
};

}  // namespace

bool isSkippedLine(std::string_view text) {
    if (!text.empty() && text.front() == '#') return true;
    return std::all_of(text.begin(), text.end(), [](char c) { return c == ' ' || c == '\t' || c == '\r'; });
}

void parseScriptLine(std::string_view text, std::int64_t number, ScriptLine& line) {
    line.number = number;
    if (scanFrameLine(text, line)) return;

    line.timeMs = -1;
    const Json object = parseObject(text, number);
    LineFields fields(object, number);
    const std::int64_t time = fields.whole("t");
    if (time < 0) fields.fail("\"t\" is negative");
    if (time > kLastTimeMs) fields.fail("\"t\" is too large");
    line.timeMs = time;

    for (const char* kind : kNotBuilt) {
        if (fields.has(kind)) fields.fail("\"" + std::string(kind) + "\" is not built yet");
    }
    const Kind* chosen = nullptr;
    for (const Kind& kind : kKinds) {
        if (!fields.has(kind.key)) continue;
        if (chosen != nullptr)
            fields.fail("is both \"" + std::string(chosen->key) + "\" and \"" + std::string(kind.key) + "\"");
        chosen = &kind;
    }
    if (chosen == nullptr) fields.fail("no known kind of line" + fields.unusedKeys());
    chosen->parse(fields, line);
    fields.expectAllUsed();
}

std::optional<std::string> bytesFromHex(std::string_view hex) {
    const auto digit = [](char c) {
        if (c >= '0' && c <= '9') return c - '0';
        if (c >= 'a' && c <= 'f') return c - 'a' + 10;
        if (c >= 'A' && c <= 'F') return c - 'A' + 10;
        return -1;
    };
    if (hex.size() % 2 != 0) return std::nullopt;
    std::string bytes;
    bytes.reserve(hex.size() / 2);
    for (std::size_t i = 0; i < hex.size(); i += 2) {
        const int high = digit(hex[i]);
        const int low = digit(hex[i + 1]);
        if (high < 0 || low < 0) return std::nullopt;
        bytes += static_cast<char>(high * 16 + low);
    }
    return bytes;
}

std::optional<std::string> oneByteEach(std::string_view utf8) {
    std::string bytes;
    for (std::size_t i = 0; i < utf8.size(); ++i) {
        const auto byte = static_cast<unsigned char>(utf8[i]);
        if (byte < 0x80) {
            bytes += utf8[i];
        } else if ((byte == 0xC2 || byte == 0xC3) && i + 1 < utf8.size()) {
            const auto low = static_cast<unsigned char>(utf8[++i]);
            bytes += static_cast<char>((byte & 3U) << 6U | (low & 0x3FU));
        } else {
            return std::nullopt;
        }
    }
    return bytes;
}

}  // namespace quorrin

// One line of a replay script, understood but not yet tied to a station: names of controls and fields are
// still text.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "platform/joysticks.h"
#include "robotlink/frame_table.h"

namespace quorrin {

// A frame: the properties that it names, then the event.
struct FrameLine {
    int kind = 0;  // index in frameKinds()
    // Which properties are named, and their values by index in frameProperties().
    std::uint32_t named = 0;
    std::array<std::int16_t, kFrameProperties> values{};
    std::array<std::int16_t, 4> sonarCm{};

    bool has(int property) const { return (named >> static_cast<unsigned>(property) & 1U) != 0; }
    void set(int property, std::int16_t value) {
        named |= 1U << static_cast<unsigned>(property);
        values[static_cast<std::size_t>(property)] = value;
    }
};

// A frame with a file: what SaveFrameToFile writes next, or a buffer of sound.
struct FrameFileLine {
    FrameLine frame;
    bool hasBitmap = false;
    std::string bitmap;  // path as written in the script
    bool hasSound = false;
    std::string soundFile;  // path, or empty where the bytes are given
    std::string soundBytes;
};

struct ClickLine {
    std::string control;
};
struct PressLine {
    std::string control;
    bool down = true;
};
// A value that is written to a control.
using ControlValue = std::variant<std::string, std::int64_t, bool>;
struct SetLine {
    std::string control;
    ControlValue to;
};
struct KeyLine {
    std::int64_t key = 0;
    bool down = true;
    bool onPanel = false;  // a key of the control panel, otherwise a key press in a box
    std::string control;
};
struct FocusLine {
    std::string control;
};
struct AnswerLine {
    std::string answer;
};
struct JoystickLine {
    JoystickState state;
    std::optional<int> buttons;  // how many the stick has, where the line says
};
struct UnloadLine {
    std::string form;  // empty: the main form
};
struct ActivateLine {
    std::string form;
};
struct WatchLine {
    std::vector<std::string> names;
    std::int64_t everyMs = 0;
};
// A client asks to connect to a socket array.
struct ConnectLine {
    std::string array;
    std::string from;
    int port = 0;
};
// What happens on one element of a socket array.
struct SocketLine {
    enum class What { receive, hangup, socketError };
    What what = What::receive;
    std::string array;
    int element = 0;
    std::string bytes;
};
// Only as the first line, at 0.
struct LoginLine {};

struct ScriptLine {
    std::int64_t number = 0;  // in the file, from 1
    std::int64_t timeMs = 0;
    std::variant<FrameLine, FrameFileLine, ClickLine, PressLine, SetLine, KeyLine, FocusLine, AnswerLine,
                 JoystickLine, UnloadLine, ActivateLine, WatchLine, ConnectLine, SocketLine, LoginLine>
        what;
};

}  // namespace quorrin

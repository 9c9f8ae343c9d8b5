#include "replay/joystick_line.h"

#include "replay/script_error.h"
#include "replay/script_parser.h"

namespace quorrin {

namespace {

constexpr int kUsualButtons = 12;
constexpr int kMostButtons = 32767;  // a device may tell of more than a state has room for
constexpr int kAxisEnd = 10000;
constexpr int kLastDirection = 35999;

// Such a line is rare, and parsing a line is slow: which ones are worth it? JSON may write letters as \u....
bool mayBeJoystick(std::string_view text) {
    return text.find("joystick") != std::string_view::npos || text.find("\\u") != std::string_view::npos;
}

int buttonCount(LineFields& fields) {
    return static_cast<int>(fields.wholeWithin("lButtons", 0, kMostButtons));
}

}  // namespace

JoystickLine joystickLine(LineFields& fields) {
    JoystickLine line;
    LineFields state = fields.object("joystick");
    const auto axis = [&state](const char* key) {
        return static_cast<int>(state.wholeWithin(key, 0, kAxisEnd));
    };
    line.state.x = axis("x");
    line.state.y = axis("y");
    line.state.slider = axis("slider");
    line.state.pov = static_cast<int>(state.wholeWithin("pov", kHatCentred, kLastDirection));
    for (const std::int64_t button : state.wholesWithin("buttons", 0, kJoystickButtons - 1))
        line.state.buttons[static_cast<std::size_t>(button)] = true;
    if (state.has("lButtons") && fields.has("lButtons")) fields.fail("has \"lButtons\" twice");
    if (state.has("lButtons")) line.buttons = buttonCount(state);
    if (fields.has("lButtons")) line.buttons = buttonCount(fields);
    state.expectAllUsed();
    return line;
}

std::optional<int> buttonsOfStick(LineReader& script) {
    std::optional<int> buttons;
    ScriptLine line;
    while (const auto text = script.next()) {
        if (isSkippedLine(*text) || !mayBeJoystick(*text)) continue;
        try {
            parseScriptLine(*text, script.lineNumber(), line);
        } catch (const ScriptError&) {
            continue;
        }
        const auto* stick = std::get_if<JoystickLine>(&line.what);
        if (stick == nullptr) continue;
        if (stick->buttons) return stick->buttons;
        buttons = kUsualButtons;
    }
    return buttons;
}

}  // namespace quorrin

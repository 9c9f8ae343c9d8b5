// A push button's model of 100 by 30 units, whose watch is a timer of the virtual clock and whose events are
// written down as words.
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "console/command_button_model.h"
#include "platform/timer_mm.h"
#include "platform/virtual/virtual_clock.h"

namespace quorrin {

constexpr MouseStroke kLeft{MouseButton::left, 0, 10, 10};
constexpr MouseStroke kRight{MouseButton::right, 0, 10, 10};
constexpr MouseStroke kOver{MouseButton::none, 0, 10, 10};
constexpr MouseStroke kFarLeft{MouseButton::left, 0, 500, 10};

inline KeyStroke key(int number, bool autoRepeat = false) {
    return {KeyKind::character, number, 0, autoRepeat, static_cast<std::uint32_t>(number)};
}

struct CommandBench : testing::Test {
    VirtualClock clock;
    CommandButtonModel button;
    TimerMM watch{clock};
    bool cursorInside = true;
    int drawings = 0;
    std::string told;

    void SetUp() override {
        button.setSizes({100, 30}, {40, 16}, {16, 16});
        watch.setInterval(kHoverWatchMs);
        watch.setPeriodic(true);
        watch.setHandler([this] { button.watchTick(cursorInside); });
        button.onWatch = [this](bool on) { watch.setEnabled(on); };
        button.onRedraw = [this] { ++drawings; };
        button.onClick = [this] { tell("click"); };
        button.onDoubleClick = [this] { tell("double"); };
        button.onKeyDown = [this](const KeyStroke& stroke) { tell("keydown" + std::to_string(stroke.key)); };
        button.onKeyPress = [this](const KeyStroke& stroke) {
            tell("keypress" + std::to_string(stroke.key));
        };
        button.onKeyUp = [this](const KeyStroke& stroke) { tell("keyup" + std::to_string(stroke.key)); };
        button.onMouseOut = [this] { tell("out"); };
        button.onMouseDown = [this](const MouseStroke&) { tell("down"); };
        button.onMouseMove = [this](const MouseStroke&) { tell("move"); };
        button.onMouseUp = [this](const MouseStroke&) { tell("up"); };
    }

    void tell(const std::string& event) { told += (told.empty() ? "" : " ") + event; }
};

}  // namespace quorrin

// A person without sense at the windows: seeded clicks, keys, edits, drags, wheels, joystick states, window
// moves, all through Qt's own events, in virtual time.
//
// Knows windows and widgets only as Qt shows them. What the station makes of it comes out of the functions as
// the clock's exceptions. The joystick must outlive it.
#pragma once

#include <QWidget>
#include <cstdint>
#include <map>
#include <random>
#include <string>

#include "platform/virtual/scripted_joysticks.h"

namespace quorrin {

class Monkey {
  public:
    Monkey(std::uint32_t seed, ScriptedJoysticks& joysticks) : random_(seed), joysticks_(joysticks) {}

    // One deed at one of the visible windows; nothing where there is none.
    void act();
    // A menu that is open holds its caller until it is left: picks an entry or leaves it. To be called now
    // and then from Qt's own loop.
    void leaveMenu();
    // How many milliseconds it now waits, mostly few.
    int pauseMs();
    // How often it did what.
    const std::map<std::string, std::int64_t>& deeds() const { return deeds_; }

  private:
    int below(int end) { return std::uniform_int_distribution<int>(0, end - 1)(random_); }
    template <typename T>
    const T& oneOf(const T* begin, int count) {
        return begin[below(count)];
    }
    QWidget* window();
    QWidget* widgetOf(QWidget& window);
    QPoint pointIn(const QWidget& widget);
    void note(const std::string& deed) { ++deeds_[deed]; }

    void click(QWidget& widget);
    void drag(QWidget& widget);
    void wheel(QWidget& widget);
    void key(QWidget& widget);
    void type(QWidget& widget);
    void moveStick();
    void disturbWindow(QWidget& window);

    std::mt19937 random_;
    ScriptedJoysticks& joysticks_;
    std::map<std::string, std::int64_t> deeds_;
};

}  // namespace quorrin

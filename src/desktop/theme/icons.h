// The project's own pictures, drawn with lines on a square of 24 by 24 and sharp at every size.
//
// No picture stands alone for a meaning: whoever shows one has a text or an accessible name beside it.
#pragma once

#include <QColor>
#include <QIcon>
#include <QRectF>

class QPainter;

namespace quorrin {

struct Theme;

enum class IconName {
    idle,
    wandering,
    joystick,
    modeSwitch,
    talk,
    listen,
    settings,
    panel,
    zoom,
    play,
    pause,
    stop,
    forward,
    backward,
    camera,
    folder,
    exit,
    help,
    about,
    www,
    arrowUp,
    arrowDown,
    arrowLeft,
    arrowRight,
    turnLeft,
    turnRight,
    link,
    multimedia,
    battery,
    charge,
    plug,
    temperature,
    motor,
    person,
    remote,
    network,
    networkOff,
    call,
    callEnded,
    soundIn,
    soundOut,
    soundOff,
    stuck,
    holder,
    theme,
    engineering,
    menu,
    close,
    map,
    floorPlan,  // seen from above
    speech,
    tick,
    warning,
    cross,
    busy,
    mark,  // the maker's
    count  // how many there are; draws nothing
};

// Fills the square with it, in one colour.
void drawIcon(QPainter& painter, const QRectF& square, IconName name, const QColor& colour);

// In the theme's text colour, paler when disabled.
QIcon icon(IconName name, const Theme& theme);
// Follows the application's theme whenever it is drawn.
QIcon themedIcon(IconName name);
// In the colour of the painter's pen, for widgets that paint it beside writing of their own.
QIcon writingIcon(IconName name);
QIcon icon(IconName name, const QColor& colour, const QColor& disabled);

}  // namespace quorrin

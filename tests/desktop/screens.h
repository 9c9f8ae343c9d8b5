// The screens that the windows are laid out for, and what their scale leaves of them as logical pixels.
//
// Qt takes its scale from QT_SCALE_FACTOR when the application is made, so one run of the tests has one
// scale: it looks at the screens of that scale (tests/CMakeLists.txt has the runs).
#pragma once

#include <QSize>
#include <QString>
#include <QtGlobal>
#include <string>
#include <vector>

namespace quorrin {

struct Screen {
    int width;  // dots
    int height;
    int percent;  // dots of a logical pixel

    QSize logical() const { return {width * 100 / percent, height * 100 / percent}; }
    std::string name() const {
        return std::to_string(width) + "x" + std::to_string(height) + "At" + std::to_string(percent);
    }
};

inline int scalePercent() {
    const QString factor = qEnvironmentVariable("QT_SCALE_FACTOR");
    return factor.isEmpty() ? 100 : qRound(100 * factor.toDouble());
}

inline std::vector<Screen> screensOfThisScale() {
    std::vector<Screen> found;
    for (const Screen& screen :
         {Screen{1280, 800, 100}, {1920, 1080, 100}, {1920, 1080, 150}, {3840, 2160, 200}})
        if (screen.percent == scalePercent()) found.push_back(screen);
    return found;
}

constexpr int kTitleBar = 32;  // logical pixels that a window manager takes away
constexpr double kThirdLarger = 4.0 / 3;

inline std::string fontName(double factor) {
    return factor > 1 ? "LargeFont" : "";
}

}  // namespace quorrin

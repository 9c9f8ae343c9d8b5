// What the window system that this program runs on lets a client do.
#pragma once

#include <QGuiApplication>

namespace quorrin {

// Wayland leaves it to its compositor where a window is, whether it stays above others, and how opaque it
// is as a whole. X11 takes all three from the client; the last one needs a compositor to be seen.
inline bool mayPlaceWindows() {
    return !QGuiApplication::platformName().startsWith(QLatin1String("wayland"));
}

}  // namespace quorrin

// What painting costs the main thread: the meter of paint_session.
//
// A paint is one outermost event that made widgets paint, from its delivery to its end: sending to the screen
// included. Milliseconds throughout. One thread.
#pragma once

#include <QApplication>
#include <QEvent>
#include <vector>

#include "tick_meter.h"

namespace quorrin::bench {

class MeteredApplication : public QApplication {
  public:
    using QApplication::QApplication;

    bool measuring = false;
    std::vector<double> paints;      // CPU time
    std::vector<double> paintWalls;  // what passed meanwhile

    bool notify(QObject* receiver, QEvent* event) override {
        const QEvent::Type type = event->type();
        if (type == QEvent::Paint) painted_ = true;
        const bool mayPaint =
            type == QEvent::Paint || type == QEvent::UpdateRequest || type == QEvent::Expose;
        if (!mayPaint || inside_) return QApplication::notify(receiver, event);
        inside_ = true;
        painted_ = type == QEvent::Paint;
        const double began = clockMs(CLOCK_THREAD_CPUTIME_ID);
        const double beganWall = clockMs(CLOCK_MONOTONIC);
        const bool taken = QApplication::notify(receiver, event);
        if (measuring && painted_) {
            paints.push_back(clockMs(CLOCK_THREAD_CPUTIME_ID) - began);
            paintWalls.push_back(clockMs(CLOCK_MONOTONIC) - beganWall);
        }
        inside_ = false;
        return taken;
    }

  private:
    bool inside_ = false;
    bool painted_ = false;
};

}  // namespace quorrin::bench

// Lets the real machine's events happen until a condition holds, or a deadline has passed.
#pragma once

#include <QCoreApplication>
#include <QElapsedTimer>
#include <functional>

namespace quorrin {

inline bool waitForReal(const std::function<bool()>& condition, int deadlineMs = 10'000) {
    QElapsedTimer since;
    since.start();
    while (!condition()) {
        if (since.elapsed() > deadlineMs) return false;
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents | QEventLoop::AllEvents, 20);
    }
    return true;
}

}  // namespace quorrin

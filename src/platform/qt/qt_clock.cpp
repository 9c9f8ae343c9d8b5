#include "platform/qt/qt_clock.h"

#include <QCoreApplication>
#include <algorithm>
#include <cerrno>
#include <ctime>
#include <limits>

namespace quorrin {

QtClock::QtClock() {
    timer_.setSingleShot(true);
    timer_.setTimerType(Qt::PreciseTimer);
    QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { wake(); });
}

std::int64_t QtClock::nowMs() const {
    timespec now{};
    ::clock_gettime(CLOCK_MONOTONIC, &now);
    return std::int64_t{now.tv_sec} * 1000 + now.tv_nsec / 1'000'000;
}

CivilTime QtClock::wallTime() const {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    ::localtime_r(&now, &local);
    return {local.tm_year + 1900, local.tm_mon + 1, local.tm_mday, local.tm_hour, local.tm_min, local.tm_sec};
}

void QtClock::run() {
    rethrowIfEnded();
    QCoreApplication::exec();
    rethrowIfEnded();
}

void QtClock::rethrowIfEnded() {
    if (ended_) std::rethrow_exception(ended_);
}

void QtClock::wait(std::int64_t ms) {
    if (ms <= 0) return;
    timespec end{};
    ::clock_gettime(CLOCK_MONOTONIC, &end);
    const std::int64_t nanoseconds = end.tv_nsec + ms % 1000 * 1'000'000;
    end.tv_sec += static_cast<std::time_t>(ms / 1000 + nanoseconds / 1'000'000'000);
    end.tv_nsec = static_cast<long>(nanoseconds % 1'000'000'000);
    while (::clock_nanosleep(CLOCK_MONOTONIC, TIMER_ABSTIME, &end, nullptr) == EINTR) {
    }
}

void QtClock::queueChanged() {
    const auto due = queue_.nextDue(true);
    if (!due || ended_) {
        timer_.stop();
        return;
    }
    const std::int64_t delayMs = std::clamp<std::int64_t>(*due - nowMs(), 0, std::numeric_limits<int>::max());
    timer_.start(static_cast<int>(delayMs));
}

void QtClock::collectOutside() {
    collecting_ = true;
    QCoreApplication::processEvents();
    collecting_ = false;
}

void QtClock::wake() {
    if (collecting_ || ended_) return;
    try {
        // What becomes due meanwhile waits for the next wake-up, so that Qt gets its turn.
        const std::int64_t limitMs = nowMs();
        while (!ended_ && queue_.deliverNext(
                              limitMs, true, [](std::int64_t) {}, [this] { return nowMs(); })) {
        }
    } catch (...) {
        if (!ended_) ended_ = std::current_exception();
        QCoreApplication::exit();
    }
    queueChanged();
}

}  // namespace quorrin

// The real clock: one event queue, woken by one precise Qt timer armed for the next due time.
//
// Qt's own handlers (sockets, signals) only put things into the queue; everything is delivered from the
// wake-up or from a yield. block() really sleeps and delivers nothing. A yield first lets Qt hand over what
// has arrived. A nested Qt event loop (a message box) delivers too, under the queue's no-re-entry rule.
//
// Exceptions must not travel through Qt's loop. A handler's exception (ProgramEnd, ProgramError) is kept at
// the wake-up, everything stops being delivered, all Qt loops end, and run() throws it again. Who runs a
// nested loop calls rethrowIfEnded() when it returns. One thread; needs a QCoreApplication.
#pragma once

#include <QTimer>
#include <exception>

#include "platform/clock.h"

namespace quorrin {

class QtClock : public Clock {
  public:
    QtClock();
    ~QtClock() override { queue_.clear(); }

    std::int64_t nowMs() const override;
    CivilTime wallTime() const override;

    // Runs Qt's loop until a handler throws (that comes out here) or the application quits.
    void run();
    void rethrowIfEnded();
    // To be called before a nested Qt loop is run inside a handler: what is due next will wake it.
    void armNested() override { queueChanged(); }

  private:
    void wait(std::int64_t ms) override;
    void queueChanged() override;
    void collectOutside() override;
    void wake();

    QTimer timer_;
    bool collecting_ = false;
    std::exception_ptr ended_;
};

}  // namespace quorrin

// The station's one notion of time: what time it is, and when what happens, for the one thread.
//
// Two siblings implement it: the real one waits for the machine, the virtual one jumps. Both deliver through
// the same EventQueue, so order, grids and the no-re-entry rule cannot differ between them.
//
// block() moves time on and delivers nothing. yield() delivers at once, nested, everything that is due at or
// before now (watches left out). Both may be called from inside any handler.
//
// Errors: a handler's exception leaves through whoever delivers; nothing is caught here.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "platform/civil_time.h"
#include "platform/event_queue.h"

namespace quorrin {

class Clock {
  public:
    Clock() = default;
    Clock(const Clock&) = delete;
    Clock& operator=(const Clock&) = delete;
    virtual ~Clock() = default;

    // Milliseconds since an arbitrary start; never goes backwards.
    virtual std::int64_t nowMs() const = 0;
    // Local date and time of day.
    virtual CivilTime wallTime() const = 0;

    // Holds the whole program for `ms` milliseconds. The before-block hook runs first.
    void block(std::int64_t ms);
    void yield();

    // A message to oneself, delivered after everything due before it.
    void post(EventQueue::Handler handler, EventSource* source = nullptr);
    // Something the outside world did just now.
    void arrive(EventQueue::Handler handler, EventSource* source = nullptr);

    // Called before each blocking wait, so that windows can paint what is dirty. It must deliver nothing.
    void setBeforeBlock(std::function<void()> hook) { beforeBlock_ = std::move(hook); }

    // The innermost handler that the last exception came out of.
    const std::string& failedIn() const { return queue_.failedIn(); }

    // To be called before a nested loop of the host is run inside a handler (a message box): what is due next
    // will come in it.
    virtual void armNested() {}

  protected:
    friend class TimerMM;
    // The time that something which happens now is given in the queue.
    virtual std::int64_t arrivalMs() const { return nowMs(); }
    virtual void wait(std::int64_t ms) = 0;
    // The queue has a new first event; a real clock arms its wake-up anew.
    virtual void queueChanged() {}
    // Lets the machine hand over what has arrived, before a yield delivers.
    virtual void collectOutside() {}
    // A yield is about to deliver one event; a virtual clock counts them to catch endless loops.
    virtual void delivering() {}

    EventQueue queue_;

  private:
    std::function<void()> beforeBlock_;
};

}  // namespace quorrin

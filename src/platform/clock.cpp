#include "platform/clock.h"

#include <utility>

namespace quorrin {

void Clock::block(std::int64_t ms) {
    if (beforeBlock_) beforeBlock_();
    wait(ms);
}

void Clock::yield() {
    collectOutside();
    // A nested handler may block: what fell due meanwhile is due now, too.
    while (queue_.deliverNext(
        nowMs(), false, [this](std::int64_t) { delivering(); }, [this] { return nowMs(); })) {
    }
    queueChanged();
}

void Clock::post(EventQueue::Handler handler, EventSource* source) {
    queue_.addMessage(nowMs(), source, std::move(handler));
    queueChanged();
}

void Clock::arrive(EventQueue::Handler handler, EventSource* source) {
    queue_.addOutside(arrivalMs(), source, std::move(handler));
    queueChanged();
}

}  // namespace quorrin

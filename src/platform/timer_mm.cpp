#include "platform/timer_mm.h"

#include <utility>

namespace quorrin {

TimerMM::TimerMM(Clock& clock, std::function<void()> handler, EventQueue::Kind kind)
    : clock_(clock), node_(std::make_shared<EventQueue::TimerNode>()) {
    setHandler(std::move(handler));
    node_->kind = kind;
    clock_.queue_.addTimer(node_);
}

TimerMM::~TimerMM() {
    node_->enabled = false;
    clock_.queue_.removeTimer(node_);
}

void TimerMM::setHandler(std::function<void()> handler) {
    node_->handler = std::make_shared<const EventQueue::Handler>(std::move(handler));
}

void TimerMM::setEnabled(bool enabled) {
    if (enabled == node_->enabled) return;
    node_->enabled = enabled;
    if (enabled) {
        clock_.queue_.takeOrder(*node_);
        node_->dueMs = clock_.nowMs() + node_->intervalMs;
    }
    clock_.queueChanged();
}

void TimerMM::startAt(std::int64_t dueMs) {
    if (node_->enabled) return;
    node_->enabled = true;
    clock_.queue_.takeOrder(*node_);
    node_->dueMs = dueMs;
    clock_.queueChanged();
}

void TimerMM::setInterval(std::int64_t intervalMs) {
    node_->intervalMs = intervalMs;
    node_->dueMs = clock_.nowMs() + intervalMs;
    clock_.queueChanged();
}

}  // namespace quorrin

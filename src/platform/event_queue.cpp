#include "platform/event_queue.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace quorrin {

namespace {

class RunningMark {
  public:
    explicit RunningMark(bool& flag) : flag_(flag) { flag_ = true; }
    ~RunningMark() { flag_ = false; }
    RunningMark(const RunningMark&) = delete;
    RunningMark& operator=(const RunningMark&) = delete;

  private:
    bool& flag_;
};

std::int64_t nextOnGrid(std::int64_t dueMs, std::int64_t intervalMs, std::int64_t nowMs) {
    const std::int64_t next = dueMs + intervalMs;
    if (next > nowMs) return next;
    return dueMs + ((nowMs - dueMs) / intervalMs + 1) * intervalMs;
}

}  // namespace

EventQueue::Item EventQueue::itemFor(std::int64_t dueMs, std::uint64_t order, EventSource* source,
                                     Handler handler) {
    return {dueMs, order, source != nullptr ? source->state_ : nullptr, std::move(handler)};
}

void EventQueue::addOutside(std::int64_t dueMs, EventSource* source, Handler handler) {
    // An event may be announced for later: what comes before it must not stand behind it.
    const auto later = std::find_if(outside_.rbegin(), outside_.rend(),
                                    [dueMs](const Item& item) { return item.dueMs <= dueMs; });
    outside_.insert(later.base(), itemFor(dueMs, ++lastOrder_, source, std::move(handler)));
}

void EventQueue::addMessage(std::int64_t dueMs, EventSource* source, Handler handler) {
    messages_.push_back(itemFor(dueMs, ++lastOrder_, source, std::move(handler)));
}

void EventQueue::addTimer(const std::shared_ptr<TimerNode>& node) {
    timers_.push_back(node);
}

void EventQueue::removeTimer(const std::shared_ptr<TimerNode>& node) {
    timers_.erase(std::remove(timers_.begin(), timers_.end(), node), timers_.end());
}

void EventQueue::clear() {
    while (!outside_.empty() || !messages_.empty()) {
        const std::deque<Item> outside = std::exchange(outside_, {});
        const std::deque<Item> messages = std::exchange(messages_, {});
    }
}

std::optional<EventQueue::Choice> EventQueue::choose(std::int64_t limitMs, bool withWatches) const {
    std::optional<Choice> best;
    const auto offer = [&](const Key& key) { return key.dueMs <= limitMs && (!best || key < best->key); };

    // Only the first outside event can be delivered: one that waits holds back those behind it.
    if (!outside_.empty()) {
        const Item& item = outside_.front();
        const Key key{item.dueMs, Kind::outside, item.order};
        if (!item.waits() && offer(key)) best = Choice{key, nullptr, 0};
    }
    for (std::size_t i = 0; i < messages_.size(); ++i) {
        const Item& item = messages_[i];
        if (item.waits()) continue;
        const Key key{item.dueMs, Kind::message, item.order};
        if (offer(key)) best = Choice{key, nullptr, i};
        break;
    }
    const std::shared_ptr<TimerNode>* chosen = nullptr;
    for (const auto& timer : timers_) {
        if (!timer->enabled || timer->intervalMs <= 0 || timer->source.running()) continue;
        if (timer->kind == Kind::watch && !withWatches) continue;
        const Key key{timer->dueMs, timer->kind, timer->order};
        if (offer(key)) {
            best = Choice{key, nullptr, 0};
            chosen = &timer;
        }
    }
    if (chosen != nullptr) best->timer = *chosen;
    return best;
}

std::optional<std::int64_t> EventQueue::nextDue(bool withWatches) const {
    const auto choice = choose(std::numeric_limits<std::int64_t>::max(), withWatches);
    if (!choice) return std::nullopt;
    return choice->key.dueMs;
}

void EventQueue::run(const Handler& handler, const std::string& name) {
    failing_ = false;
    try {
        handler();
    } catch (...) {
        if (!failing_) failedIn_ = name;
        failing_ = true;
        throw;
    }
}

bool EventQueue::deliverNext(std::int64_t limitMs, bool withWatches,
                             const std::function<void(std::int64_t)>& advance,
                             const std::function<std::int64_t()>& now) {
    const auto choice = choose(limitMs, withWatches);
    if (!choice) return false;
    advance(choice->key.dueMs);
    lastDueMs_ = choice->key.dueMs;
    if (choice->key.kind == Kind::message || choice->key.kind == Kind::timer)
        latestInnerDueMs_ = std::max(latestInnerDueMs_, lastDueMs_);

    if (choice->timer) {
        const std::shared_ptr<TimerNode>& timer = choice->timer;
        if (timer->periodic) {
            timer->dueMs = nextOnGrid(timer->dueMs, timer->intervalMs, now());
        } else {
            timer->enabled = false;
        }
        const RunningMark mark(timer->source.state_->running);
        const std::shared_ptr<const Handler> handler = timer->handler;
        if (handler && *handler) run(*handler, timer->source.state_->name);
        return true;
    }

    std::deque<Item>& items = choice->key.kind == Kind::outside ? outside_ : messages_;
    const auto place = items.begin() + static_cast<std::ptrdiff_t>(choice->index);
    const Item item = std::move(*place);
    items.erase(place);
    if (!item.source) {
        run(item.handler, {});
    } else if (!item.source->gone) {
        const RunningMark mark(item.source->running);
        run(item.handler, item.source->name);
    }
    return true;
}

}  // namespace quorrin

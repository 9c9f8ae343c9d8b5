// The one ordered queue of everything that can happen to a single-threaded program.
//
// Order of delivery: by (due time, kind, order within the kind). Kinds, first to last: what the outside
// world did, in order of announcement; messages that the program posted to itself, in order of posting;
// timers, in the order in which each was last switched from disabled to enabled; watches.
//
// A handler belongs to an EventSource (or to none). While a source's handler runs, the source is not entered
// again by a nested delivery: its event waits and is delivered later in the same order. An outside event that
// waits holds back all outside events behind it. A source that is destroyed takes its waiting events with it.
//
// A periodic timer keeps its grid: on delivery of the event due at d with the clock at now, its next due time
// is the first d + k * interval later than now, set before its handler runs, so missed periods collapse into
// one late event. A one-shot timer is disabled before its handler runs. Interval 0 never fires.
//
// Not a clock and no thread: the owner (a Clock) says what time it is and when to deliver.
#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <limits>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace quorrin {

// The identity of one handler for the rule "a running handler is not entered again".
class EventSource {
  public:
    EventSource() : state_(std::make_shared<State>()) {}
    ~EventSource() { state_->gone = true; }
    EventSource(const EventSource&) = delete;
    EventSource& operator=(const EventSource&) = delete;

    bool running() const { return state_->running; }
    // What the handler is called, for a message that tells where something went wrong.
    void setName(std::string name) { state_->name = std::move(name); }

  private:
    friend class EventQueue;
    struct State {
        std::string name;
        bool running = false;
        bool gone = false;
    };
    std::shared_ptr<State> state_;
};

class EventQueue {
  public:
    using Handler = std::function<void()>;
    enum class Kind : std::uint8_t { outside = 1, message = 2, timer = 3, watch = 4 };

    struct Key {
        std::int64_t dueMs = 0;
        Kind kind = Kind::outside;
        std::uint64_t order = 0;
        auto operator<=>(const Key&) const = default;
    };

    // State of one timer. Owned jointly by its TimerMM and, during delivery, by the queue.
    struct TimerNode {
        EventSource source;
        // Shared, so that a handler which sets another one goes on to its end.
        std::shared_ptr<const Handler> handler;
        std::int64_t dueMs = 0;
        std::int64_t intervalMs = 0;
        std::uint64_t order = 0;  // position in the order of enabling
        Kind kind = Kind::timer;
        bool periodic = true;
        bool enabled = false;
    };

    void addOutside(std::int64_t dueMs, EventSource* source, Handler handler);
    void addMessage(std::int64_t dueMs, EventSource* source, Handler handler);
    void addTimer(const std::shared_ptr<TimerNode>& node);
    void removeTimer(const std::shared_ptr<TimerNode>& node);
    // Gives the node its place behind all timers enabled so far.
    void takeOrder(TimerNode& node) { node.order = ++lastOrder_; }

    // Drops all outside events and messages. A clock calls it in its destructor, while it still works: what
    // their handlers own may stop timers or post something as it goes.
    void clear();

    // Due time of the first event that may be delivered now, watches left out unless asked for.
    std::optional<std::int64_t> nextDue(bool withWatches) const;

    // Delivers the first deliverable event due at or before `limitMs`; `nowMs` is read after `advance(due)`
    // was called, so that a virtual clock can jump. Returns false when there is none.
    bool deliverNext(std::int64_t limitMs, bool withWatches, const std::function<void(std::int64_t)>& advance,
                     const std::function<std::int64_t()>& now);

    // The innermost handler that the exception now under way, or the last one, came out of; "" for one
    // without a name.
    const std::string& failedIn() const { return failedIn_; }

    // Due time of the event whose delivery began last.
    std::int64_t lastDueMs() const { return lastDueMs_; }
    // The latest due time of a message or timer that has been delivered.
    std::int64_t latestInnerDueMs() const { return latestInnerDueMs_; }

  private:
    struct Item {
        std::int64_t dueMs;
        std::uint64_t order;
        std::shared_ptr<EventSource::State> source;  // empty: no source
        Handler handler;

        bool waits() const { return source && source->running; }
    };
    struct Choice {
        Key key;
        std::shared_ptr<TimerNode> timer;  // empty for an item
        std::size_t index = 0;             // of the message in messages_
    };

    static Item itemFor(std::int64_t dueMs, std::uint64_t order, EventSource* source, Handler handler);
    std::optional<Choice> choose(std::int64_t limitMs, bool withWatches) const;
    void run(const Handler& handler, const std::string& name);

    // Before the items: what waits there may own timers.
    std::vector<std::shared_ptr<TimerNode>> timers_;
    std::deque<Item> outside_;   // by due time, then by arrival
    std::deque<Item> messages_;  // by posting; due times never decrease
    std::uint64_t lastOrder_ = 0;
    std::string failedIn_;
    bool failing_ = false;
    std::int64_t lastDueMs_ = 0;
    std::int64_t latestInnerDueMs_ = std::numeric_limits<std::int64_t>::min();
};

}  // namespace quorrin

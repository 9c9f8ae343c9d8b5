// The contract of socket arrays, held by those without a network.
#include <map>

#include "platform/virtual/virtual_clock.h"
#include "platform/virtual/virtual_sockets.h"
#include "support/sockets_contract.h"

namespace quorrin {
namespace {

// Callers are numbers; what they do comes through the clock's queue, as a network's events do.
struct VirtualSocketsFixture {
    struct Caller {
        int element = 0;
        bool ended = false;
        std::string heard;
    };
    VirtualSocketsFixture() {
        virtualSockets.onAccept = [this](const std::string&, int element) { accepted = element; };
        virtualSockets.onShut = [this](const std::string&, int element) {
            if (Caller* caller = on(element)) caller->ended = true;
        };
        virtualSockets.onSend = [this](const std::string&, int element, std::string_view bytes) {
            if (Caller* caller = on(element)) caller->heard += bytes;
        };
    }
    Caller* on(int element) {
        for (auto& [number, caller] : callers) {
            if (caller.element == element && !caller.ended) return &caller;
        }
        return nullptr;
    }
    void happens(std::function<void()> what) { time.arrive(std::move(what), &virtualSockets.source("wsk")); }

    Sockets& sockets() { return virtualSockets; }
    Clock& clock() { return time; }
    int call() {
        const int number = ++last;
        callers[number];
        happens([this, number] {
            accepted = 0;
            virtualSockets.connect("wsk", ip(number), port(number));
            callers[number].element = accepted;
            callers[number].ended = accepted == 0;
        });
        return number;
    }
    int elementOf(int caller) { return callers[caller].element; }
    void say(int caller, const std::string& bytes) {
        happens([this, caller, bytes] { virtualSockets.receive("wsk", elementOf(caller), bytes); });
    }
    void hangUp(int caller) {
        happens([this, caller] { virtualSockets.hangUp("wsk", elementOf(caller)); });
    }
    void reset(int caller) {
        happens([this, caller] { virtualSockets.fail("wsk", elementOf(caller)); });
    }
    void stopReading(int caller) { virtualSockets.setSlow("wsk", elementOf(caller)); }
    std::string heard(int caller) { return callers[caller].heard; }
    bool ended(int caller) {
        const Caller& one = callers[caller];
        // An element that was destroyed is gone for its caller, too.
        return one.ended || (one.element > 0 && !virtualSockets.exists("wsk", one.element));
    }
    static std::string ip(int /*caller*/) { return "10.0.0.5"; }
    static int port(int caller) { return 40000 + caller; }
    void holdPort(bool hold) { virtualSockets.setPortTaken(kSocketsPort, hold); }
    static std::size_t slack() { return 0; }
    template <typename Condition>
    bool waitFor(Condition condition) {
        for (int ms = 0; ms < 10'000; ++ms) {
            time.runFor(ms == 0 ? 0 : 1);
            if (condition()) return true;
        }
        return false;
    }
    void settle() { time.runFor(100); }

    VirtualClock time;
    VirtualSockets virtualSockets{time};
    std::map<int, Caller> callers;
    int last = 0;
    int accepted = 0;
};

INSTANTIATE_TYPED_TEST_SUITE_P(Virtual, SocketsContract, VirtualSocketsFixture);

}  // namespace
}  // namespace quorrin

// The contract of socket arrays, held by those on the machine's TCP.
#include <map>

#include "platform/qt/qt_clock.h"
#include "platform/qt/qt_sockets.h"
#include "support/plain_client.h"
#include "support/real_wait.h"
#include "support/sockets_contract.h"

namespace quorrin {
namespace {

struct QtSocketsFixture {
    struct Caller {
        PlainClient client;
        bool connected = false;
        bool reads = true;
        std::string heard;
    };

    Sockets& sockets() { return qtSockets; }
    Clock& clock() { return time; }
    int call() {
        Caller& caller = callers[++last];
        caller.connected = caller.client.connect(kSocketsPort);
        return last;
    }
    void say(int caller, const std::string& bytes) {
        // More than the machine takes at once goes out while the station reads.
        std::size_t said = 0;
        waitFor([&] {
            said += callers[caller].client.sendSome(bytes.substr(said));
            return said == bytes.size();
        });
    }
    void hangUp(int caller) { callers[caller].client.hangUp(); }
    void reset(int caller) { callers[caller].client.reset(); }
    void stopReading(int caller) { callers[caller].reads = false; }
    std::string heard(int caller) {
        Caller& one = callers[caller];
        if (one.reads) one.heard += one.client.received();
        return one.heard;
    }
    bool ended(int caller) { return !callers[caller].connected || callers[caller].client.ended(); }
    static std::string ip(int /*caller*/) { return "127.0.0.1"; }
    int port(int caller) { return callers[caller].client.port(); }
    void holdPort(bool hold) {
        holder.reset();
        if (!hold) return;
        holder = sockets().create("somebody else", 0);
        holder->setLocalPort(kSocketsPort);
        holder->listen();
    }
    // The machine's own buffers at both ends.
    static std::size_t slack() { return std::size_t{8} * 1024 * 1024; }
    template <typename Condition>
    bool waitFor(Condition condition) {
        return waitForReal(condition);
    }
    void settle() {
        const std::int64_t end = time.nowMs() + 100;
        waitForReal([&] { return time.nowMs() >= end; });
    }

    QtClock time;
    QtSockets qtSockets{time};
    std::map<int, Caller> callers;
    int last = 0;
    std::unique_ptr<Socket> holder;
};

INSTANTIATE_TYPED_TEST_SUITE_P(Qt, SocketsContract, QtSocketsFixture);

}  // namespace
}  // namespace quorrin

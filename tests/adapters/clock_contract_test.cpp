// The real clock keeps the contract of all clocks.
#include "support/clock_contract.h"

#include "platform/qt/qt_clock.h"
#include "support/real_wait.h"

namespace quorrin {
namespace {

struct QtClockFixture {
    Clock& clock() { return time; }
    bool runUntil(const std::function<bool()>& condition) {
        return waitForReal([&] {
            time.rethrowIfEnded();
            return condition();
        });
    }
    QtClock time;
};

INSTANTIATE_TYPED_TEST_SUITE_P(Qt, ClockContract, QtClockFixture);

}  // namespace
}  // namespace quorrin

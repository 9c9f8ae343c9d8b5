#include "platform/qt/qt_calls.h"

#include <algorithm>

#include "platform/qt/lingering_call.h"
#include "platform/qt/qt_call.h"

namespace quorrin {

QtCalls::QtCalls(Clock& clock) : clock_(clock) {}

QtCalls::~QtCalls() = default;

std::unique_ptr<Call> QtCalls::call(const std::string& host, int port) {
    return std::make_unique<QtCall>(*this, host, port);
}

bool QtCalls::lingering() {
    forgetTheGone();
    return !lingering_.empty();
}

void QtCalls::forgetTheGone() {
    lingering_.erase(
        std::remove_if(lingering_.begin(), lingering_.end(), [](const auto& call) { return call->over(); }),
        lingering_.end());
}

}  // namespace quorrin

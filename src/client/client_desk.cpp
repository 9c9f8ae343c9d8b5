#include "client/client_desk.h"

#include <utility>

namespace quorrin {

namespace {

constexpr std::int64_t kLookMs = 20;

}  // namespace

std::string hostIn(const std::string& typed) {
    const char* const blanks = " \t\r\n";
    const std::size_t first = typed.find_first_not_of(blanks);
    if (first == std::string::npos) return "";
    return typed.substr(first, typed.find_last_not_of(blanks) - first + 1);
}

ClientDesk::ClientDesk(Clock& clock, Calls& calls, Joysticks& joysticks, const std::string& host)
    : clock_(clock),
      calls_(calls),
      stick_(clock, joysticks),
      leave_(clock, [this] { goOnLeaving(); }),
      end_(clock, [this] { lookForTheEnd(); }) {
    leave_.setInterval(kLookMs);
    end_.setInterval(kLookMs);
    open(host);
    stick_.onState = [this](const JoystickState& state) {
        drive([&state](RemoteDriver& driver) { driver.setStick(state); });
        changed();
    };
    stick_.onLost = [this] {
        drive([](RemoteDriver& driver) { driver.stickLost(); });
        forgetKeys();
        changed();
    };
    stick_.start();
}

void ClientDesk::open(const std::string& host) {
    session_ = std::make_unique<Session>(clock_, calls_, host);
    session_->driver.onChange.add([this] { changed(); });
}

void ClientDesk::drive(const std::function<void(RemoteDriver&)>& deed) {
    if (!leaving_ && !ended_) deed(session_->driver);
}

void ClientDesk::connect(const std::string& host) {
    const std::string name = hostIn(host);
    if (name.empty() || ended_) return;
    if (name == link().host() && !leaving_) {
        session_->link.start();
        changed();
        return;
    }
    leave([this, name] {
        open(name);
        session_->link.start();
    });
}

void ClientDesk::disconnect() {
    leave({});
}

void ClientDesk::leave(std::function<void()> then) {
    afterwards_ = std::move(then);
    if (!leaving_) {
        leaving_ = true;
        session_->driver.quit();
        leave_.setEnabled(true);
    }
    goOnLeaving();
    changed();
}

void ClientDesk::goOnLeaving() {
    if (!leaving_ || driver().releasing()) return;
    leave_.setEnabled(false);
    session_->link.stop();
    leaving_ = false;
    // What went on with keys and stick meanwhile was not heard.
    session_->driver.stickLost();
    forgetKeys();
    if (const auto then = std::exchange(afterwards_, {})) then();
    changed();
}

void ClientDesk::end(std::function<void()> ended) {
    if (ended_) return;
    ended_ = std::move(ended);
    leave([this] {
        endAtMs_ = clock_.nowMs() + kEndMs;
        end_.setEnabled(true);
    });
}

void ClientDesk::lookForTheEnd() {
    if (calls_.lingering() && clock_.nowMs() < endAtMs_) return;
    end_.setEnabled(false);
    ended_();
}

void ClientDesk::changed() const {
    if (onChange) onChange();
}

void ClientDesk::forgetKeys() const {
    if (onKeysForgotten) onKeysForgotten();
}

}  // namespace quorrin

#include "desktop/binding/listening.h"

#include <algorithm>
#include <utility>

namespace quorrin {

// What stands in a hook that has listeners.
struct Listening::Call {
    std::shared_ptr<Listeners> all;
    Heard before;

    void operator()() const {
        if (before) before();
        const Listeners now = *all;
        for (const auto& one : now)
            if (std::find(all->begin(), all->end(), one) != all->end()) (*one)();
    }
};

Listening::Listening(Heard& hook, Heard heard) : own_(std::make_shared<Heard>(std::move(heard))) {
    if (const Call* call = hook.target<Call>()) {
        all_ = call->all;
    } else {
        all_ = std::make_shared<Listeners>();
        hook = Call{all_, std::move(hook)};
    }
    all_->push_back(own_);
}

Listening::~Listening() {
    leave();
}

Listening& Listening::operator=(Listening&& other) noexcept {
    leave();
    all_ = std::move(other.all_);
    own_ = std::move(other.own_);
    return *this;
}

void Listening::leave() {
    if (all_) all_->erase(std::remove(all_->begin(), all_->end(), own_), all_->end());
    all_.reset();
    own_.reset();
}

}  // namespace quorrin

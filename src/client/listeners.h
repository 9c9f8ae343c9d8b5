// Who wants to know of one kind of event: called in the order in which they were added, all of them.
//
// Nobody is taken off again: what listens lives as long as what it listens to. A listener may add others,
// which hear of later events only.
#pragma once

#include <cstddef>
#include <functional>
#include <utility>
#include <vector>

namespace quorrin {

template <typename... Args>
class Listeners {
  public:
    void add(std::function<void(Args...)> listener) { all_.push_back(std::move(listener)); }
    void tell(Args... args) const {
        for (std::size_t i = 0, count = all_.size(); i < count; ++i) {
            const auto listener = all_[i];
            listener(args...);
        }
    }

  private:
    std::vector<std::function<void(Args...)>> all_;
};

}  // namespace quorrin

// One of several listeners of a single hook (Control::onLook, Form::onShownChanged and so on), for its own
// lifetime.
//
// A hook is one std::function; widgets in two windows may show the same control. A handler that stood in the
// hook before is called first. The hook's owner may go before or after the listener; a listener may go, and
// others may come, while the hook is being called.
#pragma once

#include <functional>
#include <memory>
#include <vector>

namespace quorrin {

class Listening {
  public:
    using Heard = std::function<void()>;

    Listening() = default;
    Listening(Heard& hook, Heard heard);
    ~Listening();
    Listening(Listening&& other) noexcept = default;
    Listening& operator=(Listening&& other) noexcept;

  private:
    using Listeners = std::vector<std::shared_ptr<Heard>>;
    struct Call;

    void leave();

    std::shared_ptr<Listeners> all_;
    std::shared_ptr<Heard> own_;
};

}  // namespace quorrin

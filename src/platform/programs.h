// Other programs as the station sees them: started without waiting, found and closed by window title.
#pragma once

#include <cstdint>
#include <string>

namespace quorrin {

class Programs {
  public:
    // A found window; 0 is none. It may go away at any time.
    using Window = std::int64_t;

    virtual ~Programs() = default;

    // Starts the program minimised and returns at once. A program that cannot be started is not reported.
    virtual void start(const std::string& path) = 0;
    // The top-level window with exactly that title, or 0.
    virtual Window findWindow(const std::string& title) = 0;
    virtual bool isWindow(Window window) = 0;
    // Asks the window to close; does not wait.
    virtual void postClose(Window window) = 0;
};

}  // namespace quorrin

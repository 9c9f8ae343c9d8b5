// A program's one window, as far as others can find it by its title and ask it to close.
//
// Of one title, one window lives at a time (per user and data folder). A program claims its title when it
// starts: it gets it, or another program has it, which is alive or already closing. The claim ends with the
// program, however it ends.
#pragma once

namespace quorrin {

enum class WindowClaim { taken, otherAlive, otherClosing };

class Window {
  public:
    virtual ~Window() = default;
    // May be tried again after otherClosing.
    virtual WindowClaim claim() = 0;
    // No longer to be found; the title stays claimed until the program ends.
    virtual void hide() = 0;
};

}  // namespace quorrin

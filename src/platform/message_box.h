// A box that tells the operator something, or asks.
#pragma once

#include <string>

namespace quorrin {

enum class BoxButtons { ok, yesNo };
enum class BoxAnswer { ok, yes, no };

class MessageBoxes {
  public:
    virtual ~MessageBoxes() = default;
    // Returns when the operator has answered. Timers and frames go on meanwhile.
    virtual BoxAnswer show(const std::string& text, const std::string& title, BoxButtons buttons) = 0;
};

}  // namespace quorrin

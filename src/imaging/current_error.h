// The thread's record of its last failure. Written where a failed step is passed over; nothing reads it.
#pragma once

#include <string>

#include "base/checked_int.h"

namespace quorrin {

struct CurrentError {
    Long number = 0;
    std::string source;
    std::string text;
};

}  // namespace quorrin

// The two ways in which navigation moves the wheels.
#pragma once

#include "robotlink/quorrin_sdk.h"

namespace quorrin {

// A value for both drives and none for the other four channels.
inline SixValues bothDrives(Integer left, Integer right) {
    return {left, right, kNotCommanded, kNotCommanded, kNotCommanded, kNotCommanded};
}

}  // namespace quorrin

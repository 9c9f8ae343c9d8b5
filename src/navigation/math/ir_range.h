// The infrared range sensors' curve: raw 12-bit reading to metres.
//
// The sensor sees from 0.09 m to 0.81 m; both ends are what nearer and farther things read as. Readings so
// low that the voltage falls under the curve's floor give a negative range, which the users of a range
// discard. Out-of-range readings (above 4095, below 1) count as 1. No state, no errors.
#pragma once

#include "base/checked_int.h"

namespace quorrin {

double irRangeFromAdc(Integer reading);

}  // namespace quorrin

#include "navigation/math/ir_range.h"

namespace quorrin {

double irRangeFromAdc(Integer reading) {
    const int raw = reading > 4095 || reading < 1 ? 1 : reading.value();
    const double volts = raw * 3.0 / 4028.0;
    const double distance_cm = 21.6 / (volts - 0.17);  // no whole reading gives exactly 0.17 V
    if (distance_cm > 80.0) return 0.81;
    if (distance_cm > 0.0 && distance_cm < 10.0) return 0.09;
    return distance_cm / 100.0;
}

}  // namespace quorrin

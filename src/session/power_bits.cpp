#include "session/power_bits.h"

#include <string>

#include "base/number_text.h"

namespace quorrin {

void flushPowerByte(const PowerValues& power, Label& lblTest, QuorrinSDK& robotTI) {
    const int wanted = power.powerByte.value();
    if (toDouble(lblTest.caption()) == wanted) return;
    robotTI.WritePowerByte(wanted);
    lblTest.setCaption(std::to_string(wanted));
}

}  // namespace quorrin

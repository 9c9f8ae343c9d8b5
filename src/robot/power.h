// Batteries, charger and dock of the simulated robot, as its converters show them.
//
// Readings are raw: voltages behind a divider by 8 against the converter's own supply, which a 1.5 V
// reference tells; temperatures as a thermistor gives them, 1000 at room warmth and falling with heat (800
// and above is cool). The charger's status byte is 0 without charging, bit 3 while the supply settles, bits 0
// and 1 while battery 1 and 2 charge; its flags byte has bit 7 and bit 6 for the same. Charging needs power
// at the dock and bits 6 and 7 of the power byte. An empty battery stays at its lowest voltage: this robot
// never dies of it.
#pragma once

#include <array>

#include "robot/noise.h"

namespace quorrin {

struct PowerReadings {
    int refAdc = 0;
    std::array<int, 2> batteryAdc{};
    std::array<int, 2> temperatureAdc{};
    int dcInAdc = 0;
    int chargerStatus = 0;
    int chargerFlags = 0;
};

class Power {
  public:
    // `drives_A` is what the wheels take; `dock_V` 0 means no dock.
    void step(double dt_s, double drives_A, double dock_V, int powerByte);
    void setHot(std::size_t battery, bool hot) { hot_.at(battery) = hot; }

    PowerReadings read(Noise* noise) const;

    double charge(std::size_t battery) const { return charge_.at(battery); }  // 0 to 1
    void setCharge(std::size_t battery, double charge) { charge_.at(battery) = charge; }
    bool charging(std::size_t battery) const { return charging_.at(battery); }

  private:
    double volts(std::size_t battery) const;

    std::array<double, 2> charge_{0.92, 0.88};
    std::array<double, 2> warmth_{};  // converter units below the cool reading
    std::array<bool, 2> charging_{};
    std::array<bool, 2> hot_{};
    double load_A_ = 0;
    double dock_V_ = 0;
    double docked_s_ = 0;
};

}  // namespace quorrin

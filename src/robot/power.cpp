#include "robot/power.h"

#include <algorithm>
#include <cmath>

namespace quorrin {

namespace {

constexpr double kFullScale = 4095.0;
constexpr double kSupply_V = 3.3;
constexpr double kReference_V = 1.5;
constexpr double kDivider = 8.0;

constexpr double kCapacity_As = 4.5 * 3600.0;  // each
constexpr double kEmpty_V = 9.4;
constexpr double kFull_V = 12.5;
constexpr double kResistance_V_per_A = 0.08;
constexpr double kElectronics_A = 0.7;
constexpr double kMotionSide_A = 0.3;
constexpr double kCharge_A = 1.8;
constexpr double kChargeRise_V = 0.15;
constexpr double kSettle_s = 1.0;

constexpr double kCoolReading = 1000.0;
constexpr double kHotReading = 700.0;
constexpr double kWarmest = 120.0;  // while charging: warm, but cool enough
constexpr double kWarmthTime_s = 600.0;

constexpr int kMotionBit = 0x04;
constexpr int kChargeBits = 0xC0;
constexpr int kSettling = 0x08;

int adcOfVolts(double volts, Noise* noise) {
    const double adc =
        volts / kDivider / kSupply_V * kFullScale + (noise != nullptr ? 1.5 * noise->gauss() : 0);
    return static_cast<int>(std::clamp(std::nearbyint(adc), 0.0, kFullScale));
}

}  // namespace

void Power::step(double dt_s, double drives_A, double dock_V, int powerByte) {
    docked_s_ = dock_V > 0 ? docked_s_ + dt_s : 0;
    dock_V_ = dock_V;
    const double taken = kElectronics_A + drives_A + ((powerByte & kMotionBit) != 0 ? kMotionSide_A : 0);
    load_A_ = dock_V > 0 ? 0 : taken / 2;  // the dock feeds the robot; else both batteries share it
    const bool charger = docked_s_ >= kSettle_s && (powerByte & kChargeBits) == kChargeBits;
    for (std::size_t i = 0; i < 2; ++i) {
        charging_[i] = charger && charge_[i] < 1.0;
        const double flow_A = (charging_[i] ? kCharge_A : 0) - load_A_;
        charge_[i] = std::clamp(charge_[i] + flow_A * dt_s / kCapacity_As, 0.0, 1.0);
        const double goal = charging_[i] ? kWarmest : 0;
        warmth_[i] += (goal - warmth_[i]) * dt_s / kWarmthTime_s;
    }
}

double Power::volts(std::size_t battery) const {
    const double resting = kEmpty_V + (kFull_V - kEmpty_V) * std::sqrt(charge_[battery]);
    return resting - load_A_ * kResistance_V_per_A + (charging_[battery] ? kChargeRise_V : 0);
}

PowerReadings Power::read(Noise* noise) const {
    PowerReadings readings;
    readings.refAdc = static_cast<int>(std::nearbyint(kReference_V / kSupply_V * kFullScale));
    for (std::size_t i = 0; i < 2; ++i) {
        readings.batteryAdc[i] = adcOfVolts(volts(i), noise);
        const double warm = hot_[i] ? kHotReading : kCoolReading - warmth_[i];
        readings.temperatureAdc[i] =
            static_cast<int>(std::nearbyint(warm + (noise != nullptr ? 2.0 * noise->gauss() : 0)));
        if (!charging_[i]) continue;
        readings.chargerStatus |= i == 0 ? 0x01 : 0x02;
        readings.chargerFlags |= i == 0 ? 0x80 : 0x40;
    }
    readings.dcInAdc = dock_V_ > 0 ? adcOfVolts(dock_V_, noise) : 0;
    if (dock_V_ > 0 && docked_s_ < kSettle_s) readings.chargerStatus = kSettling;
    return readings;
}

}  // namespace quorrin

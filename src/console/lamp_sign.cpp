#include "console/lamp_sign.h"

#include "base/number_text.h"
#include "base/program_error.h"
#include "session/record/general_constants.h"

namespace quorrin {

namespace {

// Charger status: with any of these the charger does not tell its state.
constexpr int kStatusUnclear = 0x68;
constexpr double kHeatLimit = 90;

const LampSign kNoReading = {"NO DATA", LampShape::question, Tone::off};

LampSign battery(const PublicValues& values, const frmGUI& gui, int element) {
    if (!powerMeasured(values)) return kNoReading;
    const bool first = element == 0;
    if (first ? values.battery1Flash : values.battery2Flash) {
        const double threshold = parseNumber(gui.txtVolTh.text()).value_or(0.0);
        const bool enough = threshold < (first ? values.battery1Volts : values.battery2Volts);
        return {enough ? "CHECK" : "LOW", LampShape::exclamation, Tone::bad};
    }
    if (lampWarns(gui.shpBatteryStatus(element))) return {"WAS LOW", LampShape::question, Tone::warning};
    return {"OK", LampShape::tick, Tone::good};
}

LampSign dcIn(const PublicValues& values, const frmGUI& gui) {
    if (!powerMeasured(values)) return kNoReading;
    if (lampWarns(gui.shpBatteryStatus(2))) return {"NO DOCK", LampShape::bar, Tone::off};
    return {"DOCKED", LampShape::plug, Tone::good};
}

LampSign charge(const PublicValues& values, const frmGUI& gui) {
    if (!powerMeasured(values)) return kNoReading;
    if (values.chargeFlash) return {"CHARGING", LampShape::bolt, Tone::busy};
    if ((values.chargerStatus & kStatusUnclear) != 0) return {"UNCLEAR", LampShape::question, Tone::warning};
    if (lampWarns(gui.shpBatteryStatus(3))) return {"OFF", LampShape::bar, Tone::off};
    return {"UNCLEAR", LampShape::question, Tone::warning};
}

LampSign temperature(const PublicValues& values, const frmGUI& gui) {
    if (!powerMeasured(values)) return kNoReading;
    if (lampWarns(gui.shpBatteryStatus(4))) return {"HOT", LampShape::exclamation, Tone::bad};
    return {"OK", LampShape::tick, Tone::good};
}

LampSign drive(const PublicValues& values, const frmGUI& gui, int element) {
    const double heat = element == 5 ? values.motorHeatLeft : values.motorHeatRight;
    if (heat > kHeatLimit) return {"OVERLOAD", LampShape::cross, Tone::bad};
    if (lampWarns(gui.shpBatteryStatus(element))) return {"COOLING", LampShape::exclamation, Tone::warning};
    if (values.motionInhibit) return {"HELD", LampShape::bar, Tone::warning};
    if (!values.encoderDataValid) return kNoReading;
    return {"OK", LampShape::tick, Tone::good};
}

}  // namespace

bool lampWarns(const Shape& lamp) {
    return lamp.fill() == GeneralConstants::kRed || lamp.fill() == GeneralConstants::kLightGreen;
}

bool powerMeasured(const LinkValues& link) {
    return link.tiLinkUp || link.tiWarmupCount > 0;
}

LampSign lampSign(const PublicValues& values, const frmGUI& gui, int element) {
    switch (element) {
        case 0:
        case 1:
            return battery(values, gui, element);
        case 2:
            return dcIn(values, gui);
        case 3:
            return charge(values, gui);
        case 4:
            return temperature(values, gui);
        case 5:
        case 6:
            return drive(values, gui, element);
        default:
            throw ProgramError("no lamp " + std::to_string(element));
    }
}

}  // namespace quorrin

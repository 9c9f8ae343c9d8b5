// The words of batteries, dock, charger and drives.
#include "console/control_words_rows.h"

namespace quorrin {

WordsRows powerWords() {
    return {
        {"shpBatteryStatus(0)", "Battery1 Status:", "Battery 1",
         "Green: enough voltage. Blinking: low, or reported by the charger."},
        {"shpBatteryStatus(1)", "Battery2 Status:", "Battery 2",
         "Green: enough voltage. Blinking: low, or reported by the charger."},
        {"shpBatteryStatus(2)", "DCIN Status:", "DC input",
         "Green: the robot stands on a powered dock. Red: no dock."},
        {"shpBatteryStatus(3)", "CHARGE :", "Charging",
         "Blinking: the batteries are being charged. Red: they are not."},
        {"shpBatteryStatus(4)", "Temperature:", "Battery temperature",
         "Green: both batteries are cool. Red: one is hot and is not charged."},
        {"shpBatteryStatus(5)", "Left Motor:", "Left drive",
         "Red: the left drive is overloaded and both drives are held until they have cooled."},
        {"shpBatteryStatus(6)", "Right Motor:", "Right drive",
         "Red: the right drive is overloaded and both drives are held until they have cooled."},
        {"lblBat1vol", "Battery1:", "Voltage of battery 1", "Voltage of battery 1 in volts."},
        {"lblBat2Vol", "Battery2:", "Voltage of battery 2", "Voltage of battery 2 in volts."},
        {"lblDCIN", "DCIN:", "Voltage of the DC input", "Voltage of the DC input in volts."},
        {"cmdStopChg", "", "Stop charging",
         "Takes the charge command away. On a dock the next power frame gives it again.", "Ctrl+F3"},
        {"txtVolTh", "Low Battery (V)", "Low battery voltage",
         "At or below it a battery is low; above it the DC input is a powered dock."},
        {"txtNopowerth", "No Power (V)", "No-power voltage",
         "Shown only. Every session start sets it to 9.9."},
        {"lblVolRef", "Reference (V)", "Reference voltage",
         "Reference voltage of the power measurement in volts."},
        {"lblBat1Temp", "Battery 1 Temp. (raw)", "Temperature of battery 1",
         "Raw temperature reading; 800 and above is cool."},
        {"lblBat2Temp", "Battery 2 Temp. (raw)", "Temperature of battery 2",
         "Raw temperature reading; 800 and above is cool."},
        {"lblLTC1960", "Charger Status", "Charger status", "Status byte of the charger."},
        {"cmdCharge", "", "Charge", "Has no function: charging starts by itself on a powered dock."},
    };
}

}  // namespace quorrin

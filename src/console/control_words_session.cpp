// The words of the session's keys and texts, the fold-outs and the toolbar.
#include "console/control_words_rows.h"

namespace quorrin {

WordsRows sessionWords() {
    return {
        {"cmdChEn", "", "Mode", "Changes the mode: from IDLE to wondering, from any other mode to IDLE.",
         "F2"},
        {"cmdStart", "", "Start the session anew",
         "Starts the session anew: the pose goes to zero and the robot begins to wander.", "Ctrl+Shift+R"},
        {"cmdStop", "", "Stop the drives once",
         "Stops both drives once. While a mode drives, they start again a tenth of a second later.",
         "Ctrl+F2"},
        {"Stoprobot", "", "Stop the drives and zero the pose",
         "Stops both drives once and sets the pose to zero. A mode that drives starts them again.",
         "Shift+F2"},
        {"cmdTOB", "", "Heading search on", "Switches the heading search on until the driver decides anew."},
        {"cmdEnCA", "Collision Avoidance", "Collision avoidance switch",
         "Shows whether collision avoidance is asked for. The avoidance itself does not change."},
        {"cmdExit", "", "Exit", "Stops the robot, closes the gateways and ends the program.", "Ctrl+Q"},
        {"cmdShowControlPanel", "", "Show or hide the control panel",
         "Takes hold of the robot with the control panel, or lets it go.", "F4"},
        {"txtRobotStatus", "Robot Status", "Robot status", "The mode that the robot is in."},
        {"txtRobotCurrX", "Robot X", "Robot X", "Position told to remote clients, typed by the operator."},
        {"txtRobotCurrY", "Robot Y", "Robot Y", "Position told to remote clients, typed by the operator."},
        {"txtRobotCurrZ", "Robot Angle", "Robot angle",
         "Angle told to remote clients, typed by the operator."},
        {"txtChangeCount", "Changes", "Count of changes",
         "Counts the changes of what is told to remote clients."},
        {"fraSetting", "", "Settings", "The settings panel."},
        {"fraSensor", "", "Engineering view", "Ranges, thresholds, counters and raw values."},
        {"cmdExpandSetting", "", "Open or close the settings", "Opens or closes the settings panel.", "F3"},
        {"cmdCloseSetting", "", "Close the settings", "Closes the settings panel.", "Shift+F3"},
        {"cmdCloseSensor", "", "Close the engineering view", "Closes the engineering view.", "Shift+F9"},
        {"Toolbar1.Help", "", "Help", "Has no function.", "F1"},
        {"Toolbar1.About", "", "About", "Tells version and makers of the station.", "Shift+F1"},
        {"Toolbar1.WWW", "", "Web site", "Opens the maker's web site in the browser.", "Ctrl+F1"},
        {"imgLogo", "", "Maker's mark", "The maker's mark."},
        {"lblLink", "", "Maker", "The maker of the station."},
        {"imgHumanLeft", "Left", "Person seen on the left", "Shows while a person is near the robot."},
        {"imgHumanRight", "Right", "Person seen on the right", "Shows while a person is near the robot."},
        {"txtHumanLocation", "Location", "Place of the person",
         "Where a person is: 1 right, 2 left, 3 both sides, 4 nobody."},
    };
}

}  // namespace quorrin

// The words of the login form, the zoomed camera and the about form.
#include "console/control_words_rows.h"

namespace quorrin {

WordsRows loginWords() {
    return {
        {"txt_ip(0)", "Robot Address", "Robot address, first field",
         "First number of the robot's address, 0 to 255.", "Alt+A"},
        {"txt_ip(1)", "", "Robot address, second field", "Second number of the robot's address, 0 to 255."},
        {"txt_ip(2)", "", "Robot address, third field", "Third number of the robot's address, 0 to 255."},
        {"txt_ip(3)", "", "Robot address, fourth field", "Fourth number of the robot's address, 0 to 255."},
        {"txt_ipdot(0)", "", "First dot of the address", "The dot between the first two numbers."},
        {"txt_ipdot(1)", "", "Second dot of the address", "The dot between the middle two numbers."},
        {"txt_ipdot(2)", "", "Third dot of the address", "The dot between the last two numbers."},
        {"txtRobotPort", "Port", "Robot port",
         "Port of the robot's motion link. The multimedia link uses the next one.", "Alt+P"},
        {"cmdOK", "", "Connect to the robot",
         "Stores the address and opens the station. Ready when all four numbers and the port are valid.",
         "Alt+O"},
        {"cmdCancel", "", "Cancel", "Ends the program without connecting.", "Esc"},
    };
}

WordsRows aboutWords() {
    return {
        {"lblVersion", "", "Version", "Version of this program."},
        {"picExtend", "", "More about the station", "The page that tells who built the station."},
        {"picDesignTeam", "", "Design team", "Those who built the station."},
        {"lblWWW", "", "Web site", "Opens the maker's web site in the browser.", "Alt+W"},
        {"cmdOK", "", "Close", "Closes this window.", "Esc"},
    };
}

WordsRows zoomCameraWords() {
    return {
        {"Image1", "", "Camera picture", "What the robot's camera saw last. Drag it to move the window."},
        {"cmdClose", "", "Close the zoomed camera", "Closes this window.", "Esc"},
    };
}

}  // namespace quorrin

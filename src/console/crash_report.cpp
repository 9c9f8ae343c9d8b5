#include "console/crash_report.h"

namespace quorrin {

std::string programErrorText(const std::string& place, const std::string& what) {
    return "Program error" + (place.empty() ? "" : " in " + place) + ":\n" + what +
           "\n\nThe drives have been suspended. The station ends.";
}

std::string programErrorLine(const std::string& place, const std::string& what) {
    return "program error" + (place.empty() ? "" : " in " + place) + ": " + what;
}

void reportCrash(QuorrinSDK& myRobot, const std::function<void()>& writeRecording, MessageBoxes& boxes,
                 const std::string& place, const std::string& what) {
    stopDrives(myRobot);
    writeRecording();
    boxes.show(programErrorText(place, what), stationTitle(), BoxButtons::ok);
}

const std::string& stationTitle() {
    static const std::string title = "Quorrin Station";
    return title;
}

std::string cannotMakeFolder(const std::string& folder) {
    return "cannot make the folder " + folder;
}

std::string anotherStationRuns(const std::string& applicationFolder) {
    return "another station runs on " + applicationFolder;
}

std::string cannotWrite(const std::string& path) {
    return "cannot write " + path;
}

const std::string& closingText() {
    static const std::string text = "Closing the station ...";
    return text;
}

const std::string& complaintsTitle() {
    static const std::string title = "Quorrin Station: Notices";
    return title;
}

const std::string& closeComplaints() {
    static const std::string text = "Close";
    return text;
}

}  // namespace quorrin

// What a station does when a handler has ended it with a program error, and what it says then.
//
// First the drives are suspended, then the recording is written, and only then the operator is told: the
// box may stand for hours. Also the other texts of a program that cannot go on or has something to complain
// about.
#pragma once

#include <functional>
#include <string>

#include "platform/message_box.h"
#include "robotlink/quorrin_sdk.h"

namespace quorrin {

// `place` is the handler that the error came out of, or "".
std::string programErrorText(const std::string& place, const std::string& what);
// The same on one line, for a terminal.
std::string programErrorLine(const std::string& place, const std::string& what);
void reportCrash(QuorrinSDK& myRobot, const std::function<void()>& writeRecording, MessageBoxes& boxes,
                 const std::string& place, const std::string& what);

// The title of boxes that have none of their own, and the program's name where a desktop shows it.
const std::string& stationTitle();

std::string cannotMakeFolder(const std::string& folder);
std::string anotherStationRuns(const std::string& applicationFolder);
std::string cannotWrite(const std::string& path);
// Stands over the main form while the station closes.
const std::string& closingText();
// Title and key of the window that collects complaints.
const std::string& complaintsTitle();
const std::string& closeComplaints();

}  // namespace quorrin

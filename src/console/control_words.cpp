#include "console/control_words.h"

#include <map>
#include <utility>

#include "console/control_words_rows.h"

namespace quorrin {

namespace {

struct Entry {
    ControlWords words;
    std::string label;
    std::string suffix;
};

using Key = std::pair<std::string, std::string>;
using Entries = std::map<Key, Entry>;

void take(Entries& entries, const std::string& form, const WordsRows& rows) {
    for (const WordsRow& row : rows)
        entries[{form, row.control}] = {{row.name, row.tip, row.shortcut}, row.label, row.suffix};
}

const Entry& entryOf(const std::string& form, const std::string& control) {
    static const Entries entries = [] {
        Entries made;
        take(made, "frmLogin", loginWords());
        take(made, "frmAbout", aboutWords());
        take(made, "frmZoomCamera", zoomCameraWords());
        take(made, "frmControlPanel", controlPanelWords());
        for (const auto& rows : {sessionWords(), powerWords(), remoteWords(), cameraWords(), archiveWords(),
                                 soundWords(), mapWords(), engineeringWords(), rangeWords(), remainsWords()})
            take(made, "frmGUI", rows);
        return made;
    }();
    static const Entry none;
    const auto found = entries.find({form, control});
    return found == entries.end() ? none : found->second;
}

template <typename Table, typename Name>
const std::string& textIn(const Table& table, const Name& name) {
    static const std::string none;
    const auto found = table.find(name);
    return found == table.end() ? none : found->second;
}

}  // namespace

const ControlWords& controlWords(const std::string& form, const std::string& control) {
    return entryOf(form, control).words;
}

const std::string& fieldLabel(const std::string& form, const std::string& control) {
    return entryOf(form, control).label;
}

const std::string& fieldSuffix(const std::string& form, const std::string& control) {
    return entryOf(form, control).suffix;
}

const std::string& frameTitle(const std::string& group) {
    static const std::map<std::string, std::string> titles = {
        {"fra(0)", "Received Data:"},
        {"fra(1)", "Control Panel"},
        {"fra(2)", ""},
        {"fra(3)", "Sending Data:"},
        {"fra(4)", "Image Quality:"},
        {"fra(5)", ""},
        {"fra(7)", "Broadcast Sound to Robot"},
        {"fra(8)", "Human Presence"},
        {"fra(9)", ""},
        {"fra(10)", "Map Overview"},
        {"fra(11)", "Photo Capture Setting:"},
        {"fra(12)", "Review Captured Photoes:"},
        {"fra(13)", "Power Status"},
        {"frmMotor", "Motor Protection"},
        {"fraNetwork", "Network Status"},
        {"fraMapDisplay", "Whole Layout Picture"},
        {"fraBat", "Battery Status:"},
        {"fraSetting", "Settings"},
        {"fraSensor", "Engineering View"},
        // Inside the engineering view.
        {"ranges", "Ranges"},
        {"thresholds", "Navigator"},
        {"powerLimits", "Power"},
        {"tasks", "Tasks"},
        {"targets", "Targets"},
        {"counters", "Counters"},
        {"rawValues", "Raw Values"},
        {"channels", "Remote Channels"},
        {"landmarks", "Landmarks"},
        // On the control panel.
        {"neckAndEye", "Neck & Eye:"},
        {"wheel", "Wheel:"},
        {"mouth", "Mouth:"},
    };
    return textIn(titles, group);
}

const std::string& frameName(const std::string& group) {
    static const std::map<std::string, std::string> untitled = {
        {"fra(2)", "Drives, power, network and overview"},
        {"fra(5)", "Robot"},
        {"fra(9)", "Camera view"},
        {"engineeringPages", "Pages of the engineering view"},
        {"settingPages", "Pages of the settings"},
    };
    const std::string& title = frameTitle(group);
    return title.empty() ? textIn(untitled, group) : title;
}

const std::string& pictureWord(const std::string& control, int number) {
    static const std::map<std::pair<std::string, int>, std::string> words = {
        {{"cmdChEn", 1}, "wondering"},
        {{"cmdChEn", 2}, "IDLE"},
        {{"cmdChEn", 3}, "JOY"},
        {{"imgNetwork", 4}, "Calls answered"},
        {{"imgNetwork", 5}, "Calls asked"},
        {{"imgStatus", 1}, "In call"},
        {{"imgStatus", 3}, "No call"},
        {{"inLight", 9}, "No voice in"},
        {{"inLight", 11}, "Voice in"},
        {{"outLight", 6}, "No sound out"},
        {{"outLight", 8}, "Sound out"},
    };
    return textIn(words, std::pair(control, number));
}

std::string pictureCaption(const std::string& control, int number) {
    const std::string& word = pictureWord(control, number);
    return controlWords("frmGUI", control).name + (word.empty() ? "" : ": " + word);
}

}  // namespace quorrin

#include "desktop/forms/sensor_groups.h"

#include "desktop/widgets/command.h"

namespace quorrin {

namespace {

constexpr int kDigits = 6;

QGridLayout* readOuts(Placing& place, const std::vector<std::string>& names, int columns) {
    QGridLayout* const made = grid();
    int at = 0;
    for (const std::string& name : names) {
        place.captioned(*made, at / columns, 2 * (at % columns), name, place.readOut(name, kDigits));
        ++at;
    }
    return made;
}

std::vector<std::string> elements(const std::string& name, int first, int last) {
    std::vector<std::string> names;
    for (int i = first; i <= last; ++i) names.push_back(name + "(" + std::to_string(i) + ")");
    return names;
}

QWidget* stopKey(Placing& place, const std::string& name, IconName picture) {
    QWidget* const made = place.key(name, picture);
    if (auto* command = dynamic_cast<Command*>(made)) command->setLookKind(LookKind::danger);
    return made;
}

}  // namespace

Group* rangeGroup(Placing& place) {
    QVBoxLayout* const contents = column({});
    std::vector<std::string> names = elements("IRT", 1, 7);
    for (const std::string& sonar : elements("SonarT", 0, 3)) names.push_back(sonar);
    names.emplace_back("txtFrontIRL");
    names.emplace_back("txtFrontIRR");
    contents->addLayout(readOuts(place, names, 2));
    contents->addStretch(1);
    return group("ranges", contents);
}

Group* landmarkGroup(Placing& place) {
    QVBoxLayout* const contents = column({});
    contents->addLayout(place.table(
        {"lblGPS1", "lblsenid1", "lblGPS2", "lblsenid2", "lblGPS3", "lblsenid3", "lblGPS4", "lblsenid4"}, 2,
        kDigits));
    contents->addLayout(row({place.choice("chkGPS"), place.choice("chkStunk")}));
    return group("landmarks", contents);
}

Group* thresholdGroup(Placing& place) {
    return group("thresholds",
                 place.table({"txtTh1", "txtTh2", "txtTh3", "txtTh4", "txtWonderSpeed", "IN_SPEED",
                              "IN_TURN_Speed", "lblth1", "lblth2", "lblCa", "lblJoy"},
                             2, kDigits));
}

Group* powerLimitGroup(Placing& place) {
    return group("powerLimits", place.table({"txtVolTh", "txtNopowerth", "lblBatVol", "lblVolRef",
                                             "lblBat1Temp", "lblBat2Temp", "lblLTC1960", "lblTest"},
                                            1, kDigits));
}

Group* taskGroup(Placing& place) {
    QVBoxLayout* const contents = column({});
    QGridLayout* const keys = grid();
    keys->addWidget(place.key("cmdStart", IconName::play), 0, 0);
    keys->addWidget(stopKey(place, "cmdStop", IconName::pause), 0, 1);
    keys->addWidget(stopKey(place, "Stoprobot", IconName::stop), 1, 0);
    keys->addWidget(place.key("cmdTOB", IconName::tick), 1, 1);
    keys->addWidget(place.key("cmdTakePhoto", IconName::camera), 2, 0);
    keys->addWidget(place.key("cmdCharge", IconName::charge), 2, 1);
    contents->addLayout(keys);
    QGridLayout* const captioned = grid();
    int at = 0;
    for (const auto& [name, picture] : {std::pair("cmdEnCA", IconName::stuck),
                                        {"p2pVFH", IconName::arrowUp},
                                        {"cmdPar", IconName::turnRight},
                                        {"cmdAlarm", IconName::warning},
                                        {"cmdGPSScan", IconName::zoom},
                                        {"cmdDisSSGPS", IconName::close}}) {
        place.captioned(*captioned, at / 2, 2 * (at % 2), name, place.key(name, picture));
        ++at;
    }
    contents->addLayout(captioned);
    contents->addStretch(1);
    return group("tasks", contents);
}

Group* targetGroup(Placing& place) {
    QVBoxLayout* const contents = column({});
    contents->addLayout(
        place.table({"In_Target_X1", "IN_Target_Y1", "IN_Target_angel1", "In_Target_X2", "In_Target_Y2",
                     "IN_target_angel2", "In_Target_X3", "In_Target_Y3", "IN_target_angel3", "In_Target_X4",
                     "In_Target_Y4", "IN_target_angel4", "OUT_EX", "OUT_EY", "OUT_EAngel"},
                    3, kDigits));
    contents->addLayout(place.table({"txtParStep", "txtAlarmCnt", "txtCnt", "txtRobotP2PTask"}, 2, kDigits));
    contents->addStretch(1);
    return group("targets", contents);
}

Group* counterGroup(Placing& place) {
    return group("counters",
                 place.table({"lblSensorCnt", "lblVideoCnt", "lblChgCnt", "lblPingCnt", "lblCom", "lblVoice"},
                             1, kDigits));
}

Group* rawValueGroup(Placing& place) {
    return group("rawValues",
                 place.table({"lblHuman", "lblIO", "lblVoiceCommand", "Label8", "Label9"}, 1, kDigits));
}

Group* channelGroup(Placing& place) {
    return group("channels", place.table({"lblWskCmd", "lblWskSensor", "lblWskVideo", "lblWskAudio",
                                          "lblWskSendVoice", "lblWskTTS"},
                                         1, 2));
}

}  // namespace quorrin

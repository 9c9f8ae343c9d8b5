#include "desktop/forms/setting_groups.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "desktop/theme/theme.h"

namespace quorrin {

namespace {

constexpr int kSmallestReview = 48;  // logical pixels; takes what room there is

QVBoxLayout* stack() {
    auto* made = new QVBoxLayout;
    made->setContentsMargins(0, 0, 0, 0);
    made->setSpacing(currentTheme().gap + 1);
    return made;
}

// A person beside the robot, over its caption.
QWidget* person(Placing& place, const std::string& name) {
    QWidget* const picture = place.icon(name, IconName::person, 2 * currentTheme().iconSize);
    QVBoxLayout* const both = column({});
    both->addWidget(picture, 0, Qt::AlignHCenter);
    both->addWidget(place.caption(name), 0, Qt::AlignHCenter);
    auto* const holder = new QWidget;
    holder->setLayout(both);
    return holder;
}

}  // namespace

Group* batteryGroup(Placing& place, LampRows& lamps) {
    QVBoxLayout* const contents = stack();
    contents->addLayout(place.table({"lblBat1vol", "lblBat2Vol", "lblDCIN"}, 1, 8));
    contents->addLayout(lamps.make(place, {4}));
    contents->addWidget(place.key("cmdStopChg", IconName::charge));
    return group("fraBat", contents);
}

Group* imageQualityGroup(Placing& place) {
    QVBoxLayout* const contents = stack();
    contents->addWidget(place.factory().slider("sldImageQuality", Qt::Horizontal));
    QGridLayout* const now = grid();
    place.captioned(*now, 0, 0, "lblImageQuality", 4);
    contents->addLayout(now);
    return group("fra(4)", contents);
}

Group* soundGroup(Placing& place) {
    QVBoxLayout* const contents = stack();
    contents->addWidget(place.caption("txtMusicName"));
    auto* file = row({place.control("txtMusicName", 12), place.key("btnOpenMusic", IconName::folder)});
    file->setStretch(0, 1);
    contents->addLayout(file);
    contents->addLayout(
        row({place.key("tbaMusic.Play", IconName::play), place.key("tbaMusic.Stop", IconName::stop)}));
    contents->addWidget(place.key("cmdPlayWav", IconName::soundOut));
    return group("fra(7)", contents);
}

Group* reviewGroup(Placing& place) {
    QVBoxLayout* const contents = stack();
    auto* const date = row({place.caption("cobAvailDate"), place.control("cobAvailDate", 10)});
    date->setStretch(1, 1);
    contents->addLayout(date);
    QWidget* const list = place.control("lstPlayVideo", 12);
    QWidget* const picture = place.picture("picPlayVideo", kSmallestReview, IconName::play);
    list->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Ignored);
    list->setMaximumWidth(list->minimumWidth());
    auto* pictures = row({list, picture});
    pictures->setStretch(1, 1);
    contents->addLayout(pictures, 1);
    contents->addLayout(place.table({"lblDateValue", "lblTimeValue", "lblPlayingNumber"}, 1, 12));
    contents->addLayout(row({place.key("cmdPlay", IconName::play), place.key("cmdPause", IconName::pause),
                             place.key("cmdStopReview", IconName::stop)}));
    contents->addLayout(
        row({place.key("cmdBackward", IconName::backward), place.key("cmdForward", IconName::forward)}));
    contents->addWidget(place.note("lblReviewNote"));
    return group("fra(12)", contents);
}

Group* captureGroup(Placing& place) {
    QVBoxLayout* const contents = stack();
    contents->addLayout(row({place.choice("optFramesPerSec(0)"), place.choice("optFramesPerSec(1)")}));
    auto* days =
        row({place.caption("cobStoreDay"), place.control("cobStoreDay", 4), place.suffix("cobStoreDay")});
    days->addWidget(place.key("cmdCatch", IconName::camera), 1);
    contents->addLayout(days);
    contents->addWidget(place.note("lblCaptureNote"));
    return group("fra(11)", contents);
}

Group* sendingGroup(Placing& place) {
    QHBoxLayout* const people = row({});
    people->addWidget(person(place, "imgHumanLeft"));
    people->addWidget(person(place, "imgHumanRight"));
    people->addStretch(1);
    QVBoxLayout* const presence = stack();
    presence->addLayout(people);
    QGridLayout* const where = grid();
    place.captioned(*where, 0, 0, "txtHumanLocation", place.readOut("txtHumanLocation", 3));
    presence->addLayout(where);

    QGridLayout* const robot = grid();
    int line = 0;
    for (const char* name : {"txtRobotCurrX", "txtRobotCurrY", "txtRobotCurrZ"})
        place.captioned(*robot, line++, 0, name, 8);
    place.captioned(*robot, line, 0, "txtRobotStatus", place.readOut("txtRobotStatus", 8));

    QVBoxLayout* const contents = stack();
    QGridLayout* const count = grid();
    place.captioned(*count, 0, 0, "txtChangeCount", place.readOut("txtChangeCount", 6));
    contents->addLayout(count);
    auto* const groups = row({group("fra(8)", presence), group("fra(5)", robot)});
    groups->setStretch(1, 1);
    contents->addLayout(groups);
    contents->addStretch(1);
    return group("fra(3)", contents);
}

Group* receivedGroup(Placing& place) {
    QVBoxLayout* const contents = stack();
    contents->addLayout(place.table({"txtCommandCount", "txtSteeringlevel", "txtGaslevel", "txtBrakelevel",
                                     "txtHeadLR", "txtHeadUD", "txtMouthUD"},
                                    1, 6));
    auto* const speech = row({place.caption("txtIncomeTTS"), place.control("txtIncomeTTS", 8),
                              place.key("cmdTTS", IconName::speech)});
    speech->setStretch(1, 1);
    contents->addLayout(speech);
    return group("fra(0)", contents);
}

}  // namespace quorrin

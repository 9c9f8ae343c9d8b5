#include "desktop/forms/status_strip.h"

#include <QGridLayout>

#include "console/glance_words.h"
#include "desktop/theme/theme.h"

namespace quorrin {

namespace {

GlanceTile* tile(GlanceTile::Kind kind, IconName picture, GlanceName name) {
    auto* made = new GlanceTile(kind, picture, QString::fromStdString(glanceCaption(name)));
    made->setObjectName(QStringLiteral("glance.%1").arg(static_cast<int>(name)));
    return made;
}

}  // namespace

IconName modePicture(int number) {
    switch (number) {
        case 1:
            return IconName::wandering;
        case 3:
            return IconName::joystick;
        default:
            return IconName::idle;
    }
}

StatusStrip::StatusStrip(QWidget* parent)
    : QWidget(parent),
      mode_(tile(GlanceTile::Kind::large, IconName::idle, GlanceName::mode)),
      holder_(tile(GlanceTile::Kind::small, IconName::holder, GlanceName::holder)),
      remote_(tile(GlanceTile::Kind::small, IconName::remote, GlanceName::remote)),
      motionLink_(tile(GlanceTile::Kind::small, IconName::link, GlanceName::motionLink)),
      multimediaLink_(tile(GlanceTile::Kind::small, IconName::multimedia, GlanceName::multimediaLink)),
      battery1_(tile(GlanceTile::Kind::small, IconName::battery, GlanceName::battery1)),
      battery2_(tile(GlanceTile::Kind::small, IconName::battery, GlanceName::battery2)),
      leftDrive_(tile(GlanceTile::Kind::small, IconName::motor, GlanceName::leftDrive)),
      rightDrive_(tile(GlanceTile::Kind::small, IconName::motor, GlanceName::rightDrive)) {
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(currentTheme().gap);
    grid->addWidget(mode_, 0, 0, 2, 1);
    GlanceTile* const pairs[][2] = {{motionLink_, multimediaLink_},
                                    {battery1_, battery2_},
                                    {leftDrive_, rightDrive_},
                                    {holder_, remote_}};
    int place = 1;
    for (const auto& pair : pairs) {
        grid->addWidget(pair[0], 0, place);
        grid->addWidget(pair[1], 1, place);
        grid->setColumnStretch(place, 1);
        ++place;
    }
    grid->setColumnStretch(0, 1);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

void StatusStrip::show(const DashboardGlances& glances, int modeNumber) {
    mode_->setPicture(modePicture(modeNumber));
    mode_->show(glances.mode);
    holder_->show(glances.holder);
    remote_->show(glances.remote);
    motionLink_->show(glances.motionLink);
    multimediaLink_->show(glances.multimediaLink);
    battery1_->show(glances.battery1);
    battery2_->show(glances.battery2);
    leftDrive_->show(glances.leftDrive);
    rightDrive_->show(glances.rightDrive);
}

}  // namespace quorrin

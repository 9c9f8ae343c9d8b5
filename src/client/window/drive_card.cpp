#include "client/window/drive_card.h"

#include <QGridLayout>
#include <QSignalBlocker>

#include "desktop/theme/theme.h"

namespace quorrin {

DriveCard::DriveCard(HeldCaps& caps)
    : Card(ClientControl::driveField),
      levels_(new LevelsView),
      driving_(line()),
      stick_(line()),
      avoidance_(new QCheckBox) {
    setFocusPolicy(Qt::StrongFocus);
    auto* const grid = new QGridLayout;
    grid->setSpacing(currentTheme().gap);
    grid->addWidget(caps.make(&HeldKeys::forward), 0, 1);
    grid->addWidget(caps.make(&HeldKeys::left), 1, 0);
    grid->addWidget(caps.make(&HeldKeys::brake), 1, 1);
    grid->addWidget(caps.make(&HeldKeys::right), 1, 2);
    auto* const middle = new QHBoxLayout;
    middle->addStretch(1);
    middle->addLayout(grid);
    middle->addStretch(1);
    QFont bold = driving_->font();
    bold.setWeight(QFont::DemiBold);
    driving_->setFont(bold);
    column().addWidget(driving_);
    column().addStretch(1);
    column().addLayout(middle);
    column().addSpacing(2 * currentTheme().space);
    column().addWidget(levels_);
    column().addStretch(1);
    column().addWidget(stick_);
    dress(*avoidance_, ClientControl::avoidance);
    column().addWidget(avoidance_);
    levels_->setObjectName(QStringLiteral("levels"));
    driving_->setObjectName(QStringLiteral("driving"));
    stick_->setObjectName(QStringLiteral("stick"));
    QObject::connect(avoidance_, &QCheckBox::toggled, this, [this](bool on) {
        if (onAvoidance) onAvoidance(on);
    });
}

QLabel* DriveCard::line() {
    auto* const label = new QLabel;
    label->setWordWrap(true);
    // Room for two lines, so that nothing moves when the text does.
    label->setMinimumHeight(2 * label->fontMetrics().lineSpacing());
    label->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    return label;
}

void DriveCard::show(const ClientFace& face) {
    levels_->show(face);
    driving_->setText(inQt(face.drivingText));
    stick_->setText(inQt(face.stickText));
    avoidance_->setEnabled(face.canDrive);
    const QSignalBlocker quiet(avoidance_);
    avoidance_->setChecked(face.levels.avoidance == 1);
}

}  // namespace quorrin

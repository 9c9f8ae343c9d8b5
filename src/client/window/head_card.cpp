#include "client/window/head_card.h"

#include <QGridLayout>
#include <QLabel>
#include <QSignalBlocker>

#include "desktop/theme/icons.h"
#include "desktop/theme/theme.h"

namespace quorrin {

namespace {

constexpr int kPage = 250;

void put(QSlider& slider, int value, bool enabled) {
    slider.setEnabled(enabled);
    // What the hand is at is the hand's.
    if (slider.isSliderDown()) return;
    const QSignalBlocker quiet(&slider);
    slider.setValue(value);
}

}  // namespace

QSlider* HeadCard::slider(ClientControl control, Qt::Orientation orientation, const Scale& scale,
                          std::function<void(int)> HeadCard::*hook) {
    auto* const made = new QSlider(orientation);
    dress(*made, control);
    made->setRange(scale.lowest, scale.highest);
    made->setSingleStep(kTrimStep);
    made->setPageStep(kPage);
    made->setFocusPolicy(Qt::TabFocus);
    QObject::connect(made, &QSlider::valueChanged, this, [this, hook](int value) {
        if (this->*hook) (this->*hook)(value);
    });
    return made;
}

HeadCard::HeadCard(HeldCaps& caps)
    : Card(ClientControl::headField),
      upDown_(slider(ClientControl::headUpDown, Qt::Vertical, kHeadUpDownScale, &HeadCard::onUpDown)),
      leftRight_(
          slider(ClientControl::headLeftRight, Qt::Horizontal, kHeadLeftRightScale, &HeadCard::onLeftRight)),
      mouth_(slider(ClientControl::mouth, Qt::Horizontal, kMouthScale, &HeadCard::onMouth)),
      ahead_(new QPushButton) {
    const Theme& theme = currentTheme();
    auto* const keys = new QGridLayout;
    keys->setSpacing(theme.gap);
    keys->addWidget(caps.make(&HeldKeys::headUp), 0, 1);
    keys->addWidget(caps.make(&HeldKeys::headLeft), 1, 0);
    keys->addWidget(caps.make(&HeldKeys::headDown), 1, 1);
    keys->addWidget(caps.make(&HeldKeys::headRight), 1, 2);
    dress(*ahead_, ClientControl::headAhead);
    QObject::connect(ahead_, &QPushButton::clicked, this, [this] {
        if (onAhead) onAhead();
    });
    // The sliders along the keys that move the same.
    auto* const look = new QGridLayout;
    look->setSpacing(2 * theme.space);
    look->addWidget(upDown_, 0, 0, Qt::AlignHCenter);
    look->addLayout(keys, 0, 1);
    look->addWidget(leftRight_, 1, 1);
    look->addWidget(ahead_, 2, 1, Qt::AlignHCenter);
    auto* const middle = new QHBoxLayout;
    middle->addStretch(1);
    middle->addLayout(look);
    // As wide as the slider on the left, so that the keys are in the middle.
    middle->addSpacing(upDown_->sizeHint().width() + 2 * theme.space);
    middle->addStretch(1);
    column().addStretch(1);
    column().addLayout(middle);
    column().addStretch(1);
    auto* const mouthRow = new QHBoxLayout;
    mouthRow->setSpacing(theme.space);
    auto* const caption = new QLabel(inQt(clientWords(ClientControl::mouth).caption));
    mouthRow->addWidget(caption);
    mouthRow->addWidget(caps.make(&HeldKeys::mouthClose));
    mouthRow->addWidget(mouth_, 1);
    mouthRow->addWidget(caps.make(&HeldKeys::mouthOpen));
    column().addLayout(mouthRow);
}

void HeadCard::show(const ClientFace& face) {
    put(*upDown_, face.levels.headUpDown, face.canDrive);
    put(*leftRight_, face.levels.headLeftRight, face.canDrive);
    put(*mouth_, face.levels.mouth, face.canDrive);
    ahead_->setEnabled(face.canDrive);
}

}  // namespace quorrin

#include "desktop/forms/key_bar.h"

#include <QHBoxLayout>

#include "console/control_words.h"
#include "desktop/binding/bind.h"
#include "desktop/forms/status_strip.h"
#include "desktop/theme/theme.h"

namespace quorrin {

namespace {

// Keys that are used all the time are higher than others, in text lines.
constexpr double kKeyLines = 2.2;
constexpr int kKeyIcon = 24;  // logical pixels

}  // namespace

KeyBar::KeyBar(Placing& place, CommandButton& modeKey, QWidget* parent)
    : QWidget(parent), modeKey_(modeKey), modeWidget_(new Command) {
    bind(*modeWidget_, modeKey, place.acts(),
         [&modeKey](int picture) { return pictureCaption(modeKey.name(), picture); });
    place.factory().dress(*modeWidget_, modeKey);
    QHBoxLayout* const keys =
        row({modeWidget_, place.key("cmdExpandSetting", IconName::settings),
             place.key("cmdShowControlPanel", IconName::panel), place.key("cmdListen", IconName::listen),
             place.key("cmdTalk", IconName::talk)});
    keys->setSpacing(currentTheme().space);
    for (int i = 0; i < keys->count(); ++i) {
        QWidget* const key = keys->itemAt(i)->widget();
        if (auto* command = dynamic_cast<Command*>(key)) command->setIconSize({kKeyIcon, kKeyIcon});
        key->setMinimumHeight(static_cast<int>(kKeyLines * key->fontMetrics().height()));
        key->setSizePolicy(QSizePolicy::MinimumExpanding, QSizePolicy::Fixed);
        keys->setStretch(i, 1);
    }
    auto* all = new QHBoxLayout(this);
    all->setContentsMargins(0, 0, 0, 0);
    Group* const bar = group("fra(1)", keys);
    all->addWidget(bar);
    listening_ = Listening(modeKey_.onLook, [this] { showMode(); });
    showMode();
}

void KeyBar::showMode() {
    setKeyPicture(*modeWidget_, modePicture(modeKey_.picture()));
    modeWidget_->setAccessibleName(
        QString::fromStdString(pictureCaption(modeKey_.name(), modeKey_.picture())));
}

}  // namespace quorrin

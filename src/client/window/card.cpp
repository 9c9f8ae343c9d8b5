#include "client/window/card.h"

#include <QAbstractButton>
#include <QLabel>
#include <QPainter>
#include <QShortcut>

#include "desktop/theme/theme.h"

namespace quorrin {

namespace {

const char* objectName(ClientControl control) {
    switch (control) {
        case ClientControl::window:
            return "remote";
        case ClientControl::host:
            return "host";
        case ClientControl::connect:
            return "connect";
        case ClientControl::look:
            return "look";
        case ClientControl::mode:
            return "mode";
        case ClientControl::release:
            return "release";
        case ClientControl::avoidance:
            return "avoidance";
        case ClientControl::headAhead:
            return "headAhead";
        case ClientControl::headUpDown:
            return "headUpDown";
        case ClientControl::headLeftRight:
            return "headLeftRight";
        case ClientControl::mouth:
            return "mouth";
        case ClientControl::driveField:
            return "drive";
        case ClientControl::headField:
            return "head";
        case ClientControl::connections:
            break;
    }
    return "connections";
}

}  // namespace

QString inQt(const std::string& text) {
    return QString::fromStdString(text);
}

void dress(QWidget& widget, ClientControl control) {
    const ClientWords& words = clientWords(control);
    widget.setObjectName(QLatin1String(objectName(control)));
    widget.setAccessibleName(inQt(words.name.empty() ? words.caption : words.name));
    widget.setToolTip(inQt(words.tip));
    auto* const button = qobject_cast<QAbstractButton*>(&widget);
    if (button == nullptr) return;
    button->setText(inQt(words.caption));
    if (words.shortcut.empty()) return;
    // At once; the toolkit's own shortcut of a button clicks a tenth of a second later.
    auto* const shortcut = new QShortcut(QKeySequence(inQt(words.shortcut)), button);
    shortcut->setAutoRepeat(false);
    QObject::connect(shortcut, &QShortcut::activated, button, [button] { button->click(); });
}

Card::Card(ClientControl control, QWidget* parent) : QWidget(parent), column_(new QVBoxLayout(this)) {
    const Theme& theme = currentTheme();
    dress(*this, control);
    setToolTip(QString());
    column_->setContentsMargins(theme.space + 2, theme.space, theme.space + 2, theme.space);
    column_->setSpacing(theme.space);
    auto* const title = new QLabel(inQt(clientWords(control).caption));
    QFont bold = title->font();
    bold.setWeight(QFont::DemiBold);
    title->setFont(bold);
    column_->addWidget(title);
}

void Card::paintEvent(QPaintEvent*) {
    const Theme& theme = currentTheme();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(hasFocus() ? QPen(theme.focus, 2) : QPen(theme.line, 1));
    painter.setBrush(theme.surface);
    painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), theme.radius, theme.radius);
}

}  // namespace quorrin

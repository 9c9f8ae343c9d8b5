#include "desktop/forms/panel_body.h"

#include <QPainter>

#include "desktop/binding/key_codes.h"
#include "desktop/theme/theme.h"

namespace quorrin {

namespace {

bool movesFocus(const QKeyEvent& event) {
    return event.key() == Qt::Key_Tab || event.key() == Qt::Key_Backtab;
}

bool isShortcut(const QKeyEvent& event) {
    const bool itself = event.key() == Qt::Key_Control || event.key() == Qt::Key_Alt ||
                        event.key() == Qt::Key_Meta || event.key() == Qt::Key_AltGr;
    return !itself && (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier));
}

// May be a shortcut of the panel's owner; a key like any other where it is none.
bool isFunctionKey(const QKeyEvent& event) {
    return event.key() >= Qt::Key_F1 && event.key() <= Qt::Key_F35;
}

bool pressesButton(const QKeyEvent& event) {
    return event.key() == Qt::Key_Space || event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

}  // namespace

PanelBody::PanelBody(Picture& picture, const OperatorActs& acts) : picture_(picture), acts_(acts) {
    setFocusPolicy(Qt::StrongFocus);
}

void PanelBody::setAlpha(int alpha) {
    alpha_ = alpha;
    update();
}

bool PanelBody::event(QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride) {
        const auto& key = static_cast<const QKeyEvent&>(*event);
        if (!movesFocus(key) && !isShortcut(key) && !isFunctionKey(key)) {
            event->accept();
            return true;
        }
    }
    return QWidget::event(event);
}

bool PanelBody::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress || event->type() == QEvent::KeyRelease) {
        auto& key = static_cast<QKeyEvent&>(*event);
        if (!movesFocus(key) && !isShortcut(key) && !pressesButton(key)) {
            take(key);
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

void PanelBody::take(QKeyEvent& event) {
    if (isShortcut(event)) return event.ignore();
    event.accept();
    const int code = keyCode(event);
    if (event.type() == QEvent::KeyPress) {
        acts_.act([&picture = picture_, code] { picture.operatorKeyDown(code); });
    } else if (!event.isAutoRepeat()) {
        acts_.act([&picture = picture_, code] { picture.operatorKeyUp(code); });
    }
}

void PanelBody::paintEvent(QPaintEvent*) {
    const Theme& theme = currentTheme();
    QPainter painter(this);
    QColor ground = theme.window;
    ground.setAlpha(alpha_);
    // Replaces what is there, so that a see-through ground lets the screen shine through.
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.fillRect(rect(), ground);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    const bool ring = hasFocus();
    painter.setPen(QPen(ring ? theme.focus : theme.outline, ring ? 2 : 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(QRectF(rect()).adjusted(1, 1, -1, -1));
}

}  // namespace quorrin

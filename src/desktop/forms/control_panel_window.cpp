#include "desktop/forms/control_panel_window.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QVBoxLayout>

#include "console/menu_words.h"
#include "desktop/binding/window_system.h"

namespace quorrin {

ControlPanelWindow::ControlPanelWindow(frmControlPanel& form, WindowDrag& drag, const OperatorActs& acts,
                                       QWidget* owner)
    : QWidget(owner, Qt::Tool | Qt::FramelessWindowHint),
      form_(form),
      controls_(acts, form),
      body_(new PanelBody(form.Picture1, acts)) {
    setWindowTitle(QString::fromStdString(quorrin::windowTitle(form.name())));
    if (!mayPlaceWindows()) setAttribute(Qt::WA_TranslucentBackground);
    body_->setParent(this);
    controls_.dress(*body_, form.Picture1);
    layOut();
    body_->setFocus();

    // The form and its background are dragged alike; what the background does not take comes to the form.
    bodyDrag_ = new BodyDrag(*body_, drag, acts);
    for (QWidget* widget : findChildren<QWidget*>()) widget->installEventFilter(this);
    styling_ = Listening(form.onShownChanged, [this] { applyStyle(); });
    if (form.shown()) applyStyle();
    link_ = new FormLink(*this, form, acts);
}

void ControlPanelWindow::applyStyle() {
    if (!form_.shown() || isVisible()) return;
    setWindowFlag(Qt::WindowStaysOnTopHint, form_.style.topmost);
    const int alpha = form_.style.layered ? form_.style.alpha : 255;
    if (mayPlaceWindows()) {
        setWindowOpacity(alpha / 255.0);
    } else {
        body_->setAlpha(alpha);
    }
}

// A press on a panel that is not the active window makes it that first, as the operator sees it; the window
// system may tell so only after the press, and a turn key would be let go at once.
bool ControlPanelWindow::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::MouseButtonPress && link_ != nullptr) link_->pressed();
    return QWidget::eventFilter(watched, event);
}

}  // namespace quorrin

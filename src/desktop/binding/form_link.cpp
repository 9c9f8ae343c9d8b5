#include "desktop/binding/form_link.h"

#include <QEvent>
#include <utility>

#include "desktop/binding/twips.h"

namespace quorrin {

FormLink::FormLink(QWidget& window, Form& form, const OperatorActs& acts)
    : QObject(&window),
      window_(window),
      form_(form),
      acts_(acts),
      shown_(form.onShownChanged, [this] { follow(); }),
      activated_(form.onActivate, [this] { toFront(); }),
      moved_(form.onMoved, [this] { moveWindow(); }) {
    window.setObjectName(QString::fromStdString(form.name()));
    window.installEventFilter(this);
    follow();
}

void FormLink::follow() {
    if (form_.shown()) window_.setWindowModality(form_.modal() ? Qt::ApplicationModal : Qt::NonModal);
    window_.setVisible(form_.shown());
    if (form_.shown()) tellArea();
}

void FormLink::toFront() {
    if (window_.isActiveWindow()) return;
    window_.raise();
    window_.activateWindow();
}

void FormLink::moveWindow() {
    window_.move(form_.area().left / kTwipsPerPixel, form_.area().top / kTwipsPerPixel);
}

void FormLink::tellArea() {
    form_.setArea(twips(window_.frameGeometry()));
}

void FormLink::pressed() {
    if (std::exchange(announced_, !window_.isActiveWindow()) || !announced_) return;
    acts_.act([&form = form_] { form.operatorActivate(); });
    window_.activateWindow();
}

bool FormLink::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
        case QEvent::Close:
            acts_.act([&form = form_] { form.operatorClose(); });
            event->ignore();
            return true;
        case QEvent::WindowActivate:
            if (!std::exchange(announced_, false)) acts_.act([&form = form_] { form.operatorActivate(); });
            break;
        case QEvent::Move:
        case QEvent::Resize:
            tellArea();
            break;
        default:
            break;
    }
    return QObject::eventFilter(watched, event);
}

}  // namespace quorrin

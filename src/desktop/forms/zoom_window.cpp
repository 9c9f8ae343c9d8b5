#include "desktop/forms/zoom_window.h"

#include "console/menu_words.h"
#include "desktop/binding/form_link.h"
#include "desktop/theme/theme.h"

namespace quorrin {

ZoomWindow::ZoomWindow(frmZoomCamera& form, WindowDrag& drag, const OperatorActs& acts)
    : QWidget(nullptr, Qt::Window | Qt::FramelessWindowHint), controls_(acts, form) {
    setWindowTitle(QString::fromStdString(quorrin::windowTitle(form.name())));
    picture_ = controls_("Image1");
    static_cast<PictureView*>(picture_)->setFit(PictureView::Fit::stretch);
    picture_->setParent(this);
    close_ = controls_("cmdClose");
    close_->setParent(this);
    close_->setFocus();
    grip_ = new QSizeGrip(this);
    constexpr QSize kFourTimesThePicture(640, 480);
    resize(kFourTimesThePicture);
    // The picture lets the mouse through to the window.
    bodyDrag_ = new BodyDrag(*this, drag, acts);
    new FormLink(*this, form, acts);
}

void ZoomWindow::resizeEvent(QResizeEvent*) {
    picture_->setGeometry(rect());
    close_->resize(close_->sizeHint());
    const int space = currentTheme().space;
    close_->move(width() - close_->width() - space, space);
    grip_->resize(grip_->sizeHint());
    grip_->move(width() - grip_->width(), height() - grip_->height());
}

}  // namespace quorrin

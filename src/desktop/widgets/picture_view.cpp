#include "desktop/widgets/picture_view.h"

#include <algorithm>
#include <utility>

namespace quorrin {

PictureView::PictureView(ImageList images, QWidget* parent) : QWidget(parent), images_(std::move(images)) {}

void PictureView::setFit(Fit fit) {
    fit_ = fit;
    update();
}

void PictureView::setNumber(int number) {
    if (number_ == number) return;
    number_ = number;
    update();
}

void PictureView::setFile(const QString& file) {
    file_ = file;
    content_.reset();
    readSoon();
}

void PictureView::setContent(std::shared_ptr<const std::string> content) {
    if (content_ == content) return;
    content_ = std::move(content);
    readSoon();
}

void PictureView::clear() {
    file_.clear();
    content_.reset();
    unread_ = false;
    if (image_.isNull()) return;
    image_ = {};
    update();
}

void PictureView::readSoon() {
    unread_ = true;
    if (isVisible()) read();
}

void PictureView::showEvent(QShowEvent* event) {
    if (unread_) read();
    QWidget::showEvent(event);
}

void PictureView::read() {
    unread_ = false;
    QImage image = content_ ? QImage::fromData(reinterpret_cast<const uchar*>(content_->data()),
                                               static_cast<int>(content_->size()))
                            : QImage(file_);
    if (image.isNull() || image == image_) return;
    image_ = std::move(image);
    updateGeometry();
    update();
}

QSize PictureView::sizeHint() const {
    constexpr int kSmall = 24;
    return image_.isNull() ? QSize(kSmall, kSmall) : image_.size();
}

void PictureView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    if (!image_.isNull()) {
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        QRect place = rect();
        if (fit_ == Fit::keepShape) {
            place.setSize(image_.size().scaled(size(), Qt::KeepAspectRatio));
            place.moveCenter(rect().center());
        }
        painter.drawImage(place, image_);
    } else if (number_ != 0 && images_) {
        const int side = std::min(width(), height());
        QRect square(0, 0, side, side);
        square.moveCenter(rect().center());
        images_(painter, square, number_);
    } else if (drawEmpty) {
        drawEmpty(painter, rect());
    }
}

}  // namespace quorrin

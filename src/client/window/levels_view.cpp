#include "client/window/levels_view.h"

#include <QPainter>

#include "client/client_words.h"
#include "desktop/theme/theme.h"

namespace quorrin {

namespace {

constexpr int kBar = 12;     // logical pixels
constexpr int kMarker = 16;  // wide
constexpr int kWidth = 13;   // of the font's heights

}  // namespace

LevelsView::LevelsView(QWidget* parent) : QWidget(parent) {
    setSizePolicy(QSizePolicy::MinimumExpanding, QSizePolicy::Fixed);
}

void LevelsView::show(const ClientFace& face) {
    const QString gas = QString::fromStdString(face.gasText);
    const QString steering = QString::fromStdString(face.steeringText);
    if (gas == gasText_ && steering == steeringText_ && face.gas == gas_ && face.steering == steering_ &&
        face.brake == brake_)
        return;
    gasText_ = gas;
    steeringText_ = steering;
    gas_ = face.gas;
    steering_ = face.steering;
    brake_ = face.brake;
    setAccessibleDescription(gasText_ + QStringLiteral(", ") + steeringText_);
    update();
}

QSize LevelsView::sizeHint() const {
    return {kWidth * line(), 2 * (line() + kBar) + 5 * currentTheme().gap};
}

void LevelsView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const double half = height() / 2.0;
    drawGas(painter, QRectF(0, 0, width(), half));
    drawSteering(painter, QRectF(0, half, width(), half));
}

void LevelsView::drawText(QPainter& painter, const QRectF& room, const QString& caption,
                          const QString& value) const {
    const QRectF text(room.left(), room.top(), room.width(), line());
    painter.setPen(currentTheme().muted);
    painter.drawText(text, Qt::AlignLeft | Qt::AlignVCenter, caption);
    painter.setPen(currentTheme().text);
    painter.drawText(text, Qt::AlignRight | Qt::AlignVCenter, value);
}

void LevelsView::drawGas(QPainter& painter, const QRectF& room) const {
    const Theme& theme = currentTheme();
    drawText(painter, room, QString::fromStdString(levelCaption(brake_ ? Level::brake : Level::gas)),
             gasText_);
    QRectF bar(room.left() + 1, room.top() + line() + theme.gap, room.width() - 2, kBar);
    painter.setPen(QPen(theme.outline, 1));
    painter.setBrush(brake_ ? theme.warning.block : theme.field);
    painter.drawRoundedRect(bar, kBar / 2.0, kBar / 2.0);
    if (gas_ <= 0) return;
    bar.setWidth(std::max<double>(kBar, bar.width() * gas_));
    painter.setPen(Qt::NoPen);
    painter.setBrush(theme.accent);
    painter.drawRoundedRect(bar, kBar / 2.0, kBar / 2.0);
}

void LevelsView::drawSteering(QPainter& painter, const QRectF& room) const {
    const Theme& theme = currentTheme();
    drawText(painter, room, QString::fromStdString(levelCaption(Level::steering)), steeringText_);
    const QRectF bar(room.left() + 1, room.top() + line() + theme.gap, room.width() - 2, kBar);
    painter.setPen(QPen(theme.outline, 1));
    painter.setBrush(theme.field);
    painter.drawRoundedRect(bar, kBar / 2.0, kBar / 2.0);
    painter.setPen(QPen(theme.muted, 1));
    painter.drawLine(QPointF(bar.center().x(), bar.top()), QPointF(bar.center().x(), bar.bottom()));
    QRectF marker(0, 0, kMarker, kBar);
    marker.moveCenter({bar.center().x() + steering_ * (bar.width() - kMarker) / 2, bar.center().y()});
    painter.setPen(Qt::NoPen);
    painter.setBrush(theme.accent);
    painter.drawRoundedRect(marker, kBar / 2.0, kBar / 2.0);
}

}  // namespace quorrin

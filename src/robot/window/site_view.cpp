#include "robot/window/site_view.h"

#include <QCloseEvent>
#include <QPainter>
#include <QPainterPath>

namespace quorrin {

namespace {

constexpr std::size_t kTrailPoints = 600;  // a minute
constexpr int kWordsHeight = 26;

QPointF pointOf(Vec2 pixel) {
    return {pixel.x, pixel.y};
}

}  // namespace

SiteView::SiteView(const SimulatedRobot& robot) : robot_(robot) {
    setWindowTitle(QString("quorrin-robot: %1").arg(QString::fromStdString(robot.site().title)));
    setMinimumSize(320, 320);
    resize(760, 740);
}

void SiteView::refresh() {
    trail_.push_back(robot_.body().pose().at);
    if (trail_.size() > kTrailPoints) trail_.pop_front();
    update();
}

void SiteView::closeEvent(QCloseEvent* event) {
    event->accept();
    if (onClosed) onClosed();
}

void SiteView::paintEvent(QPaintEvent*) {
    const int tall = height() - kWordsHeight;
    if (plan_.width() != width() || plan_.height() != tall) {
        const CameraPicture drawn = drawPlan(robot_.site(), width(), tall, false);
        const auto* bytes = reinterpret_cast<const uchar*>(drawn.pixels.data());
        plan_ = QImage(bytes, drawn.width, drawn.height, 3 * drawn.width, QImage::Format_RGB888).copy();
    }
    QPainter painter(this);
    painter.fillRect(rect(), QColor(236, 233, 225));
    painter.drawImage(0, 0, plan_);
    painter.setRenderHint(QPainter::Antialiasing);
    const PlanFrame frame = planFrame(robot_.site(), width(), tall);
    drawTrail(painter, frame);
    drawThings(painter, frame);
    drawRays(painter, frame);
    drawRobot(painter, frame);
    drawWords(painter);
}

void SiteView::drawTrail(QPainter& painter, const PlanFrame& frame) const {
    QPolygonF line;
    for (const Vec2 point : trail_) line << pointOf(frame.pixel(point));
    painter.setPen(QPen(QColor(70, 130, 200, 110), 2));
    painter.drawPolyline(line);
}

void SiteView::drawThings(QPainter& painter, const PlanFrame& frame) const {
    painter.setPen(QPen(QColor(104, 100, 92), 1.2));
    painter.setBrush(QColor(214, 178, 128));
    for (const auto& corners : robot_.body().boxes()) {
        QPolygonF box;
        for (const Vec2 corner : corners) box << pointOf(frame.pixel(corner));
        painter.drawPolygon(box);
    }
    painter.setBrush(QColor(226, 140, 90));
    const double radius = Body::kPersonRadius_m * frame.pixelsPerMetre;
    for (const Vec2 person : robot_.people().positions()) {
        painter.drawEllipse(pointOf(frame.pixel(person)), radius, radius * 0.7);
        painter.drawEllipse(pointOf(frame.pixel(person)), radius * 0.45, radius * 0.45);
    }
}

void SiteView::drawRays(QPainter& painter, const PlanFrame& frame) const {
    if (!robot_.motionSideOn()) return;
    const Pose pose = robot_.body().pose();
    const auto ray = [&](const Pose& mount, double range) {
        const Vec2 from = pose.at + rotated(mount.at, pose.heading);
        const Vec2 to = from + unitVector(pose.heading + mount.heading) * range;
        painter.drawLine(pointOf(frame.pixel(from)), pointOf(frame.pixel(to)));
        painter.drawEllipse(pointOf(frame.pixel(to)), 2, 2);
    };
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(QColor(40, 150, 90, 120), 1));
    for (std::size_t i = 0; i < kSonars; ++i)
        ray(RangeSensors::sonarMount(i), robot_.ranges().sonarRange_m(i));
    painter.setPen(QPen(QColor(200, 50, 50, 170), 1.2));
    for (std::size_t i = 0; i < kIrDisplay; ++i) ray(RangeSensors::irMount(i), robot_.ranges().irRange_m(i));
}

void SiteView::drawRobot(QPainter& painter, const PlanFrame& frame) const {
    const Pose pose = robot_.body().pose();
    const QPointF middle = pointOf(frame.pixel(pose.at));
    const double radius = kRobotRadius_m * frame.pixelsPerMetre;
    painter.setPen(QPen(QColor(30, 60, 110), 1.5));
    painter.setBrush(QColor(94, 146, 214));
    painter.drawEllipse(middle, radius, radius);
    painter.setBrush(Qt::white);
    const Vec2 nose = pose.at + unitVector(pose.heading) * kRobotRadius_m;
    const Vec2 left = pose.at + unitVector(pose.heading + 2.5) * (0.6 * kRobotRadius_m);
    const Vec2 right = pose.at + unitVector(pose.heading - 2.5) * (0.6 * kRobotRadius_m);
    painter.drawPolygon(
        QPolygonF{pointOf(frame.pixel(nose)), pointOf(frame.pixel(left)), pointOf(frame.pixel(right))});
}

void SiteView::drawWords(QPainter& painter) const {
    const Body& body = robot_.body();
    const double seconds = static_cast<double>(robot_.nowMs()) / 1000.0;
    const QString words =
        QString("%1 s   %2 m/s   %3 m   contacts %4   motion side %5%6")
            .arg(seconds, 0, 'f', 1)
            .arg(body.forward_mps(), 0, 'f', 2)
            .arg(body.distance_m(), 0, 'f', 1)
            .arg(body.contacts())
            .arg(QString(robot_.motionSideOn() ? "on" : "off"), QString(robot_.docked() ? "   docked" : ""));
    painter.setPen(QColor(52, 56, 64));
    painter.drawText(QRect(10, height() - kWordsHeight, width() - 20, kWordsHeight), Qt::AlignVCenter, words);
}

}  // namespace quorrin

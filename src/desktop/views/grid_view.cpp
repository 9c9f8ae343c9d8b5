#include "desktop/views/grid_view.h"

#include <QAccessible>
#include <QAction>
#include <QEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>
#include <cmath>

#include "desktop/views/grid_marks.h"

namespace quorrin {

namespace {

constexpr double kWheelStep = 120;    // eighths of a degree
constexpr double kLeastShade = 0.25;  // of a cell that is barely certain
constexpr int kMargin = 8;

}  // namespace

GridView::GridView(const LiveSource& source, QWidget* parent)
    : QWidget(parent), source_(source), cells_(GridRaster::kSide, GridRaster::kSide, QImage::Format_RGB32) {
    const LiveViewWords& words = liveViewWords();
    setObjectName("gridView");
    setAccessibleName(words.gridName);
    setToolTip(words.gridTip);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setContextMenuPolicy(Qt::ActionsContextMenu);
    for (const DeedWords& deed : gridDeeds()) {
        auto* action = new QAction(deed.caption, this);
        action->setShortcut(QKeySequence(deed.key));
        action->setShortcutContext(Qt::WidgetShortcut);
        QObject::connect(action, &QAction::triggered, this, [this, deed] { act(deed.deed); });
        addAction(action);
    }
    takeColours();
}

void GridView::takeColours() {
    colours_ = viewColours(palette());
    for (std::size_t certainty = 0; certainty < shades_.size(); ++certainty) {
        const double share = static_cast<double>(certainty) / GridRaster::kHighestCertainty;
        shades_[certainty] =
            mixed(colours_.paper, colours_.ink, certainty == 0 ? 0 : kLeastShade + (1 - kLeastShade) * share)
                .rgb();
    }
    raster_.all([this](int row, int column, int certainty) { drawCell(row, column, certainty); });
}

void GridView::drawCell(int row, int column, int certainty) {
    reinterpret_cast<QRgb*>(cells_.scanLine(row))[column] = shades_[static_cast<std::size_t>(certainty)];
}

void GridView::refresh() {
    cellsDrawn_ += raster_.update(
        source_.values, [this](int row, int column, int certainty) { drawCell(row, column, certainty); });
    const speedP2PVFH* navigator = source_.navigator();
    picture_ = gridPicture(source_.values, source_.controls, navigator, window_);
    guidance_ = guidanceWords(source_.values, navigator);
    if (picture_.robotKnown) window_.robotAt(picture_.robot);
    if (QAccessible::isActive())
        setAccessibleDescription(QString::fromStdString(gridSpoken(picture_, guidance_)));
    update();
}

void GridView::act(GridDeed deed) {
    const ViewSize size = viewSize();
    const ViewPoint middle{size.width / 2, size.height / 2};
    switch (deed) {
        case GridDeed::follow:
            window_.follow(picture_.robot);
            break;
        case GridDeed::showAll:
            window_.showAll();
            break;
        case GridDeed::nearer:
            window_.zoom(1, middle, size);
            break;
        case GridDeed::farther:
            window_.zoom(-1, middle, size);
            break;
    }
    refresh();
}

void GridView::wheelEvent(QWheelEvent* event) {
    const QPointF place = event->position();
    window_.zoom(event->angleDelta().y() / kWheelStep, {place.x(), place.y()}, viewSize());
    refresh();
    event->accept();
}

void GridView::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) grabbed_ = event->pos();
}

void GridView::mouseMoveEvent(QMouseEvent* event) {
    if ((event->buttons() & Qt::LeftButton) == 0) return;
    const QPoint moved = event->pos() - grabbed_;
    grabbed_ = event->pos();
    window_.drag(moved.x(), moved.y(), viewSize());
    refresh();
}

void GridView::changeEvent(QEvent* event) {
    if (event->type() == QEvent::PaletteChange) takeColours();
    QWidget::changeEvent(event);
}

ViewSize GridView::viewSize() const {
    return {static_cast<double>(width()), static_cast<double>(height())};
}

QPointF GridView::at(GridPoint place) const {
    const ViewPoint point = window_.toView(place, viewSize());
    return {point.x, point.y};
}

QPointF GridView::around(double bearing_rad, double distance_m) const {
    return at(placeFrom(picture_.robot, bearing_rad, distance_m));
}

void GridView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), colours_.outside);
    const double side = GridWindow::kGridSpan_m * window_.scale(viewSize());
    painter.drawImage(QRectF(at({GridWindow::kGridEdge_m, GridWindow::kGridEdge_m}), QSizeF(side, side)),
                      cells_);
    drawLattice(painter);
    painter.setRenderHint(QPainter::Antialiasing);
    if (picture_.robotKnown) {
        drawRing(painter);
        for (const RangeRay& ray : picture_.rays)
            if (ray.shown) drawRay(painter, colours_, ray.kind, at(ray.from), at(ray.to), ray.obstacle);
        drawGuidance(painter);
        drawRobot(painter, colours_, at(picture_.robot),
                  around(picture_.heading_rad, GridPicture::kRobotRadius_m));
    }
    drawWords(painter);
    if (!hasFocus()) return;
    constexpr int kRing = 2;
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setPen(QPen(colours_.focus, kRing));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(rect().adjusted(kRing / 2, kRing / 2, -kRing / 2, -kRing / 2));
}

void GridView::drawLattice(QPainter& painter) const {
    painter.setPen(QPen(colours_.lattice, 0));
    constexpr int kReach_m = 8;
    for (int metre = -kReach_m; metre <= kReach_m; ++metre) {
        const double m = metre;
        painter.drawLine(at({m, -kReach_m}), at({m, kReach_m}));
        painter.drawLine(at({-kReach_m, m}), at({kReach_m, m}));
    }
    // The place and heading where the session began.
    painter.setPen(QPen(colours_.quiet, 1));
    painter.drawLine(at({-0.1, 0}), at({0.2, 0}));
    painter.drawLine(at({0, -0.1}), at({0, 0.1}));
}

void GridView::drawRing(QPainter& painter) {
    constexpr int kArcSteps = 3;
    const auto band = [&](QPolygonF& points, const RingSector& sector, double outer_m) {
        points.clear();
        const double step = (sector.to_rad - sector.from_rad) / kArcSteps;
        for (int i = 0; i <= kArcSteps; ++i) points << around(sector.from_rad + i * step, outer_m);
        for (int i = kArcSteps; i >= 0; --i)
            points << around(sector.from_rad + i * step, picture_.ringInner_m);
    };
    const double depth = picture_.ringOuter_m - picture_.ringInner_m;
    for (const RingSector& sector : picture_.ring) {
        band(whole_, sector, picture_.ringOuter_m);
        density_.clear();
        if (sector.density > 0) band(density_, sector, picture_.ringInner_m + sector.density * depth);
        drawSector(painter, colours_, whole_, density_, sector.blocked);
    }
    if (!picture_.limit) return;
    whole_.clear();
    for (const RingSector& sector : picture_.ring)
        whole_ << around(sector.from_rad, picture_.ringInner_m + *picture_.limit * depth);
    whole_ << whole_.first();
    drawLimit(painter, colours_, whole_);
}

void GridView::drawGuidance(QPainter& painter) const {
    if (!picture_.guidance) return;
    const GuidancePicture& guidance = *picture_.guidance;
    const RingSector& goal = picture_.ring[static_cast<std::size_t>(guidance.goalSector - 1)];
    const double middle = (goal.from_rad + goal.to_rad) / 2;
    const QPointF tip = around(middle, picture_.ringOuter_m);
    drawGoal(painter, colours_, tip, tip - at(picture_.robot));
    drawTarget(painter, colours_, at(guidance.target));
    drawHeading(painter, colours_, around(guidance.heading_rad, GridPicture::kRobotRadius_m),
                around(guidance.heading_rad, picture_.ringInner_m));
}

void GridView::drawWords(QPainter& painter) const {
    const QFontMetrics metrics(font());
    const int line = metrics.height();
    QColor veil = colours_.paper;
    veil.setAlphaF(0.8F);
    painter.fillRect(0, 0, width(), line + kMargin, veil);
    painter.setPen(colours_.ink);
    painter.drawText(QRect(kMargin, kMargin / 2, width() - 2 * kMargin, line), Qt::AlignLeft,
                     metrics.elidedText(guidance_, Qt::ElideRight, width() - 2 * kMargin));
    // The length of a metre.
    const double metre = window_.scale(viewSize());
    const QPointF left(kMargin, height() - kMargin);
    painter.fillRect(QRectF(0, height() - line - 2 * kMargin, metre + 2 * kMargin, line + 2 * kMargin), veil);
    painter.setPen(QPen(colours_.ink, 2));
    painter.drawLine(left, left + QPointF(metre, 0));
    painter.drawText(left + QPointF(0, -kMargin / 2 - 1), liveViewWords().oneMetre);
}

}  // namespace quorrin

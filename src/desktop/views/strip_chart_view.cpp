#include "desktop/views/strip_chart_view.h"

#include <QAccessible>
#include <QEvent>
#include <QPainter>
#include <algorithm>

#include "base/number_text.h"
#include "console/live_view_words.h"

namespace quorrin {

namespace {

constexpr int kGap = 4;
constexpr int kSwatch = 22;  // the piece of line before a reading

Qt::PenStyle penStyle(TraceLine line) {
    switch (line) {
        case TraceLine::solid:
            return Qt::SolidLine;
        case TraceLine::dashed:
            return Qt::DashLine;
        case TraceLine::dotted:
            return Qt::DotLine;
        case TraceLine::dashDotted:
            return Qt::DashDotLine;
    }
    return Qt::SolidLine;
}

QFont smaller(QFont font) {
    if (font.pointSizeF() > 0) font.setPointSizeF(font.pointSizeF() * 0.85);
    return font;
}

bool same(const ChartAxis& a, const ChartAxis& b) {
    return a.low == b.low && a.high == b.high && a.step == b.step;
}

int stepDecimals(double step) {
    return step >= 1 ? 0 : step * 2 >= 1 ? 1 : 2;
}

}  // namespace

StripChartView::StripChartView(const StripChart& chart, QWidget* parent)
    : QWidget(parent), chart_(chart), colours_(viewColours(palette())) {
    setObjectName("stripChart");
    setAccessibleName(chart.plan().title);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    points_.reserve(StripChart::kSamples);
    line_.reserve(static_cast<qsizetype>(StripChart::kSamples));
}

QSize StripChartView::minimumSizeHint() const {
    const int line = QFontMetrics(smaller(font())).height();
    const int readings = static_cast<int>(chart_.plan().traces.size());
    return {axisWidth() + readingWidth() + 90,
            QFontMetrics(font()).height() + std::max(4, readings + 1) * line};
}

void StripChartView::refresh() {
    if (QAccessible::isActive()) setAccessibleDescription(QString::fromStdString(chart_.spoken()));
    update();
}

void StripChartView::changeEvent(QEvent* event) {
    colours_ = viewColours(palette());
    paper_ = QPixmap();
    QWidget::changeEvent(event);
}

int StripChartView::axisWidth() const {
    return QFontMetrics(smaller(font())).horizontalAdvance("-0000") + 2 * kGap;
}

int StripChartView::readingWidth() const {
    const QFontMetrics metrics(smaller(font()));
    int widest = 0;
    for (const TraceWords& trace : chart_.plan().traces)
        widest = std::max(widest, metrics.horizontalAdvance(trace.name));
    return kSwatch + kGap + widest + metrics.horizontalAdvance(" -000.00") + 2 * kGap;
}

QRectF StripChartView::plot() const {
    const double top = QFontMetrics(font()).height() + 2 * kGap;
    const double below = QFontMetrics(smaller(font())).height() + kGap;
    return {static_cast<double>(axisWidth()), top,
            std::max(10.0, width() - axisWidth() - readingWidth() - 14.0),
            std::max(10.0, height() - top - below)};
}

void StripChartView::drawPaper(const ChartAxis& axis) {
    ++papersDrawn_;
    paperAxis_ = axis;
    const double ratio = devicePixelRatioF();
    paper_ = QPixmap(size() * ratio);
    paper_.setDevicePixelRatio(ratio);
    paper_.fill(colours_.paper);
    QPainter painter(&paper_);
    const QRectF area = plot();
    const ChartPlan& plan = chart_.plan();
    QFont bold = font();
    bold.setBold(true);
    painter.setFont(bold);
    painter.setPen(colours_.ink);
    painter.drawText(QPointF(kGap, kGap + QFontMetrics(bold).ascent()),
                     QString("%1 [%2]").arg(plan.title, plan.unit));
    painter.setFont(smaller(font()));
    const QFontMetrics metrics(painter.font());
    for (double value = axis.low; value <= axis.high + axis.step / 2; value += axis.step) {
        const double y = area.bottom() - (value - axis.low) / (axis.high - axis.low) * area.height();
        painter.setPen(QPen(colours_.lattice, 0));
        painter.drawLine(QPointF(area.left(), y), QPointF(area.right(), y));
        painter.setPen(colours_.quiet);
        painter.drawText(QRectF(0, y - metrics.height() / 2.0, area.left() - kGap, metrics.height()),
                         Qt::AlignRight | Qt::AlignVCenter,
                         QString::fromStdString(formatFixed(value, stepDecimals(axis.step))));
    }
    const QRectF times(area.left(), area.bottom() + 2, area.width(), metrics.height());
    painter.drawText(times, Qt::AlignLeft, liveViewWords().aMinuteAgo);
    painter.drawText(times, Qt::AlignRight, liveViewWords().now);
    if (!plan.guide) return;
    const double y = area.bottom() - (plan.guide->value - axis.low) / (axis.high - axis.low) * area.height();
    painter.setPen(QPen(colours_.ink, 0, Qt::DashDotDotLine));
    painter.drawLine(QPointF(area.left(), y), QPointF(area.right(), y));
    painter.setPen(colours_.quiet);
    painter.drawText(QPointF(area.left() + kGap, y - 2), plan.guide->words);
}

void StripChartView::paintEvent(QPaintEvent*) {
    const ChartAxis axis = chart_.axis();
    if (paper_.size() != size() * devicePixelRatioF() || !same(axis, paperAxis_)) drawPaper(axis);
    QPainter painter(this);
    painter.drawPixmap(0, 0, paper_);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setFont(smaller(font()));
    for (std::size_t n = 0; n < chart_.plan().traces.size(); ++n) drawTrace(painter, n, axis);
    drawReadings(painter);
}

void StripChartView::drawTrace(QPainter& painter, std::size_t trace, const ChartAxis& axis) {
    chart_.trace(trace, axis, points_);
    if (points_.empty()) return;
    const QRectF area = plot();
    const TraceWords& words = chart_.plan().traces[trace];
    painter.setPen(QPen(colours_.traces[trace], thinLine(devicePixelRatioF()), penStyle(words.line)));
    const auto draw = [&] {
        if (line_.size() == 1) painter.drawPoint(line_.first());
        if (line_.size() > 1) painter.drawPolyline(line_);
        line_.clear();
    };
    for (const ChartPoint& point : points_) {
        if (point.begins) draw();
        line_ << QPointF(area.left() + point.x * area.width(), area.bottom() - point.y * area.height());
    }
    const QPointF end = line_.last();
    draw();
    if (points_.back().x < 1) return;
    painter.setPen(colours_.traces[trace]);
    painter.drawText(end + QPointF(3, QFontMetrics(painter.font()).ascent() / 2.0 - 1), words.mark);
}

void StripChartView::drawReadings(QPainter& painter) const {
    const QFontMetrics metrics(painter.font());
    const int left = width() - readingWidth() + kGap;
    double top = plot().top();
    for (std::size_t n = 0; n < chart_.plan().traces.size(); ++n) {
        const TraceWords& words = chart_.plan().traces[n];
        const double middle = top + metrics.height() / 2.0;
        painter.setPen(QPen(colours_.traces[n], 2, penStyle(words.line)));
        painter.drawLine(QPointF(left, middle), QPointF(left + kSwatch, middle));
        painter.setPen(colours_.ink);
        const QRectF place(left + kSwatch + kGap, top, readingWidth() - kSwatch - 3 * kGap, metrics.height());
        painter.drawText(place, Qt::AlignLeft, words.name);
        painter.drawText(place, Qt::AlignRight, QString::fromStdString(chart_.latestText(n)));
        top += metrics.height();
    }
}

}  // namespace quorrin

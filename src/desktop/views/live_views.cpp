#include "desktop/views/live_views.h"

#include <QCloseEvent>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

#include "console/live_view_words.h"
#include "desktop/views/grid_legend.h"
#include "desktop/views/grid_view.h"
#include "desktop/views/strip_chart_view.h"

namespace quorrin {

namespace {

using Cell = LivePanel::Cell;

// By kind. Beside the grid, those with many readings share a line, so that the other can be low; alone, they
// are as high as both lines.
constexpr std::array<Cell, kChartKinds> kChartsBesideGrid{
    {{1, 1, 1}, {0, 1, 1}, {0, 2, 1}, {0, 3, 1}, {1, 3, 1}, {1, 2, 1}}};
constexpr std::array<Cell, kChartKinds> kChartsAlone{
    {{1, 1, 1}, {0, 0, 2}, {0, 1, 1}, {0, 3, 2}, {1, 2, 1}, {0, 2, 1}}};

}  // namespace

LivePanel::LivePanel(const LiveSource& source)
    : source_(source),
      charts_{StripChart(ChartKind::nearestRanges), StripChart(ChartKind::infraredRanges),
              StripChart(ChartKind::sonarRanges),   StripChart(ChartKind::wheelSpeeds),
              StripChart(ChartKind::motorCurrents), StripChart(ChartKind::voltages)},
      grid_(new GridView(source_)) {
    setObjectName("livePanel");
    setAccessibleName(liveViewWords().title);
    rows_ = new QGridLayout(this);
    rows_->setContentsMargins(0, 0, 0, 0);
    legend_ = new GridLegend;
    for (std::size_t i = 0; i < kChartKinds; ++i) views_[i] = new StripChartView(charts_[i]);
    rows_->addWidget(grid_);
    rows_->addWidget(legend_);
    for (StripChartView* view : views_) rows_->addWidget(view);
    place();
    timer_.setInterval(kPeriodMs);
    QObject::connect(&timer_, &QTimer::timeout, this, [this] { refresh(); });
}

QSize LivePanel::chartsSize(const std::array<Cell, kChartKinds>& cells) const {
    std::array<int, 4> widths{};
    std::array<int, 2> heights{};
    int tall = 0;
    for (std::size_t i = 0; i < kChartKinds; ++i) {
        const QSize needed = views_[i]->minimumSizeHint();
        int& width = widths[static_cast<std::size_t>(cells[i].column)];
        int& height = cells[i].rows > 1 ? tall : heights[static_cast<std::size_t>(cells[i].row)];
        width = std::max(width, needed.width());
        height = std::max(height, needed.height());
    }
    const int gap = rows_->spacing();
    int width = -gap;
    for (const int one : widths) width += one > 0 ? one + gap : 0;
    return {width, std::max(tall, heights[0] + gap + heights[1])};
}

QSize LivePanel::minimumSizeHint() const {
    if (part_ == LivePart::charts) return chartsSize(kChartsAlone);
    const QSize legend = legend_->minimumSizeHint();
    const QSize picture = grid_->minimumSizeHint();
    return {picture.width() + rows_->spacing() + legend.width(),
            std::max(picture.height(), legend_->heightForWidth(legend.width()))};
}

bool LivePanel::holdsAll() const {
    const QSize charts = chartsSize(kChartsBesideGrid);
    const QSize picture = grid_->minimumSizeHint();
    const int gap = rows_->spacing();
    return width() >= picture.width() + gap + charts.width() &&
           height() >= std::max(picture.height(), charts.height()) + gap + legend_->heightForWidth(width());
}

void LivePanel::place() {
    const bool alone = part_ == LivePart::charts;
    const bool all = !alone && holdsAll();
    const auto& cells = alone ? kChartsAlone : kChartsBesideGrid;
    for (int n = 0; n < 5; ++n) rows_->setColumnStretch(n, 0);
    const auto put = [this](QWidget* widget, bool seen, int row, int column, int rows, int columns) {
        rows_->removeWidget(widget);
        if (seen) rows_->addWidget(widget, row, column, rows, columns);
        widget->setVisible(seen);
    };
    put(grid_, !alone, 0, 0, 2, 1);
    put(legend_, !alone, all ? 2 : 0, all ? 0 : 1, all ? 1 : 2, all ? 4 : 1);
    if (!alone) rows_->setColumnStretch(0, 3);
    if (!alone && !all) rows_->setColumnStretch(1, 2);
    for (std::size_t i = 0; i < kChartKinds; ++i) {
        const Cell& cell = cells[i];
        put(views_[i], alone || all, cell.row, cell.column, cell.rows, 1);
        if (alone || all) rows_->setColumnStretch(cell.column, 2);
    }
    for (const int row : {0, 1}) rows_->setRowStretch(row, 1);
    all_ = all;
}

void LivePanel::show(LivePart part) {
    if (std::exchange(part_, part) == part) return;
    place();
    updateGeometry();
}

void LivePanel::resizeEvent(QResizeEvent*) {
    if (part_ == LivePart::all && holdsAll() != all_) place();
}

void LivePanel::refresh() {
    const double now_s = static_cast<double>(source_.clock.nowMs()) / 1000;
    for (StripChart& chart : charts_) chart.sample(now_s, source_.values);
    grid_->refresh();
    for (std::size_t n = 0; n < kChartsEachTime; ++n) {
        views_[nextChart_]->refresh();
        nextChart_ = (nextChart_ + 1) % views_.size();
    }
}

void LivePanel::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    refresh();
    timer_.start();
}

void LivePanel::hideEvent(QHideEvent* event) {
    timer_.stop();
    QWidget::hideEvent(event);
}

// Hands the views back when it is closed; never keeps the program alive.
class LiveViews::OwnWindow : public QWidget {
  public:
    explicit OwnWindow(LiveViews& home) : home_(home) {
        setObjectName("liveViewsWindow");
        setWindowTitle(liveViewWords().title);
        setAttribute(Qt::WA_QuitOnClose, false);
        new QVBoxLayout(this);
    }

  protected:
    void closeEvent(QCloseEvent* event) override {
        event->accept();
        // Not from inside its own event.
        QMetaObject::invokeMethod(
            &home_, [&home = home_] { home.attach(); }, Qt::QueuedConnection);
    }

  private:
    LiveViews& home_;
};

LiveViews::LiveViews(const LiveSource& source, QWidget* parent)
    : QWidget(parent),
      layout_(new QVBoxLayout(this)),
      elsewhere_(new QLabel(liveViewWords().elsewhere)),
      move_(new QPushButton(liveViewWords().ownWindow)),
      panel_(new LivePanel(source)) {
    setObjectName("liveViews");
    setAccessibleName(liveViewWords().title);
    move_->setObjectName("liveViewsMove");
    move_->setToolTip(liveViewWords().ownWindowTip);
    layout_->setContentsMargins(0, 0, 0, 0);
    layout_->addWidget(move_, 0, Qt::AlignRight);
    layout_->addWidget(elsewhere_);
    layout_->addWidget(panel_, 1);
    elsewhere_->hide();
    QObject::connect(move_, &QPushButton::clicked, this, [this] { detached() ? attach() : detach(); });
    // A shortcut of the key itself would go with its caption.
    auto* const keys = new QShortcut(QKeySequence(liveViewWords().moveKeys), move_);
    keys->setAutoRepeat(false);
    QObject::connect(keys, &QShortcut::activated, move_, &QPushButton::click);
}

LiveViews::~LiveViews() = default;

QPushButton* LiveViews::takeMoveKey() {
    layout_->removeWidget(move_);
    return move_;
}

void LiveViews::show(LivePart part) {
    part_ = part;
    if (!detached()) panel_->show(part);
}

void LiveViews::detach() {
    if (detached()) return;
    const QSize size = panel_->size();
    window_ = std::make_unique<OwnWindow>(*this);
    layout_->removeWidget(panel_);
    panel_->show(LivePart::all);
    window_->layout()->addWidget(panel_);
    elsewhere_->show();
    move_->setText(liveViewWords().back);
    window_->resize(size.expandedTo(window_->sizeHint()));
    window_->show();
    panel_->setVisible(true);
}

void LiveViews::attach() {
    if (!detached()) return;
    window_->layout()->removeWidget(panel_);
    layout_->addWidget(panel_, 1);
    panel_->show(part_);
    panel_->setVisible(true);
    elsewhere_->hide();
    move_->setText(liveViewWords().ownWindow);
    window_.reset();
}

}  // namespace quorrin

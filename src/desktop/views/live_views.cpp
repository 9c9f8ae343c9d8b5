#include "desktop/views/live_views.h"

#include <QCloseEvent>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>

#include "console/live_view_words.h"
#include "desktop/views/grid_legend.h"
#include "desktop/views/grid_view.h"
#include "desktop/views/strip_chart_view.h"

namespace quorrin {

LivePanel::LivePanel(const LiveSource& source)
    : source_(source),
      charts_{StripChart(ChartKind::nearestRanges), StripChart(ChartKind::infraredRanges),
              StripChart(ChartKind::sonarRanges),   StripChart(ChartKind::wheelSpeeds),
              StripChart(ChartKind::motorCurrents), StripChart(ChartKind::voltages)},
      grid_(new GridView(source_)) {
    setObjectName("livePanel");
    setAccessibleName(liveViewWords().title);
    auto* rows = new QGridLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    constexpr int kChartColumns = 2;
    constexpr int kChartRows = static_cast<int>(kChartKinds) / kChartColumns;
    rows->addWidget(grid_, 0, 0, kChartRows, 1);
    rows->addWidget(new GridLegend, kChartRows, 0, 1, 1 + kChartColumns);
    rows->setColumnStretch(0, 3);
    for (int n = 0; n < static_cast<int>(kChartKinds); ++n) {
        const auto i = static_cast<std::size_t>(n);
        views_[i] = new StripChartView(charts_[i]);
        rows->addWidget(views_[i], n / kChartColumns, 1 + n % kChartColumns);
        rows->setRowStretch(n / kChartColumns, 1);
        rows->setColumnStretch(1 + n % kChartColumns, 2);
    }
    timer_.setInterval(kPeriodMs);
    QObject::connect(&timer_, &QTimer::timeout, this, [this] { refresh(); });
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

void LiveViews::detach() {
    if (detached()) return;
    const QSize size = panel_->size();
    window_ = std::make_unique<OwnWindow>(*this);
    layout_->removeWidget(panel_);
    window_->layout()->addWidget(panel_);
    elsewhere_->show();
    move_->setText(liveViewWords().back);
    window_->resize(size.expandedTo(window_->sizeHint()));
    window_->show();
    panel_->show();
}

void LiveViews::attach() {
    if (!detached()) return;
    window_->layout()->removeWidget(panel_);
    layout_->addWidget(panel_, 1);
    panel_->show();
    elsewhere_->hide();
    move_->setText(liveViewWords().ownWindow);
    window_.reset();
}

}  // namespace quorrin

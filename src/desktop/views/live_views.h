// The live views together: picture of the grid with its legend, and the strip charts. A panel embeds this
// widget; the views in it can move to a window of their own and back.
//
// Costs nothing while it is not seen: its drawing timer runs, and samples are taken, only while the views are
// visible; what happened meanwhile is a gap in the charts. Only reads the station. Closing the own window
// brings the views back. One thread; what the source names must outlive this.
#pragma once

#include <QTimer>
#include <QWidget>
#include <array>
#include <memory>

#include "console/strip_chart.h"
#include "desktop/views/live_source.h"

class QGridLayout;
class QLabel;
class QPushButton;
class QVBoxLayout;

namespace quorrin {

class GridLegend;
class GridView;
class StripChartView;

// What of the views is to be seen: all of them, the charts only where there is room for them beside the grid;
// or the charts alone.
enum class LivePart { all, charts };

// The views themselves, wherever they are.
class LivePanel : public QWidget {
  public:
    // Where a chart lies among the charts.
    struct Cell {
        int row, column, rows;
    };
    static constexpr int kPeriodMs = 100;
    // A chart moves by a dot in about 0.3 s, so a few of them each time are enough.
    static constexpr std::size_t kChartsEachTime = 2;

    explicit LivePanel(const LiveSource& source);

    // Takes one sample; asks for drawing of the grid and, in turn, of some charts: what the timer does.
    void refresh();
    using QWidget::show;
    void show(LivePart part);
    // Every part has room at this size; the legend takes what height it needs of its width.
    QSize minimumSizeHint() const override;
    bool hasHeightForWidth() const override { return false; }
    bool running() const { return timer_.isActive(); }
    GridView& grid() { return *grid_; }
    const StripChart& chart(ChartKind kind) const { return charts_[static_cast<std::size_t>(kind)]; }

  protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void resizeEvent(QResizeEvent*) override;

  private:
    QSize chartsSize(const std::array<Cell, kChartKinds>& cells) const;
    bool holdsAll() const;
    void place();

    LiveSource source_;
    std::array<StripChart, kChartKinds> charts_;
    GridView* grid_;
    GridLegend* legend_ = nullptr;
    QGridLayout* rows_ = nullptr;
    LivePart part_ = LivePart::all;
    bool all_ = false;  // grid and charts are both seen
    std::array<StripChartView*, kChartKinds> views_{};
    std::size_t nextChart_ = 0;
    QTimer timer_;
};

class LiveViews : public QWidget {
  public:
    explicit LiveViews(const LiveSource& source, QWidget* parent = nullptr);
    ~LiveViews() override;

    using QWidget::show;
    // While they are embedded; their own window shows all of them.
    void show(LivePart part);
    void detach();
    void attach();
    // For whoever has a better place for the key that moves the views: it leaves this widget.
    QPushButton* takeMoveKey();
    bool detached() const { return window_ != nullptr; }
    LivePanel& panel() { return *panel_; }
    // The views' own window; null while they are embedded.
    QWidget* ownWindow() const { return window_.get(); }

  private:
    class OwnWindow;

    QVBoxLayout* layout_;
    QLabel* elsewhere_;
    QPushButton* move_;
    LivePanel* panel_;
    LivePart part_ = LivePart::all;
    std::unique_ptr<QWidget> window_;
};

}  // namespace quorrin

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

class QLabel;
class QPushButton;
class QVBoxLayout;

namespace quorrin {

class GridView;
class StripChartView;

// The views themselves, wherever they are.
class LivePanel : public QWidget {
  public:
    static constexpr int kPeriodMs = 100;
    // A chart moves by a dot in about 0.3 s, so a few of them each time are enough.
    static constexpr std::size_t kChartsEachTime = 2;

    explicit LivePanel(const LiveSource& source);

    // Takes one sample; asks for drawing of the grid and, in turn, of some charts: what the timer does.
    void refresh();
    bool running() const { return timer_.isActive(); }
    GridView& grid() { return *grid_; }
    const StripChart& chart(ChartKind kind) const { return charts_[static_cast<std::size_t>(kind)]; }

  protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

  private:
    LiveSource source_;
    std::array<StripChart, kChartKinds> charts_;
    GridView* grid_;
    std::array<StripChartView*, kChartKinds> views_{};
    std::size_t nextChart_ = 0;
    QTimer timer_;
};

class LiveViews : public QWidget {
  public:
    explicit LiveViews(const LiveSource& source, QWidget* parent = nullptr);
    ~LiveViews() override;

    void detach();
    void attach();
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
    std::unique_ptr<QWidget> window_;
};

}  // namespace quorrin

// A strip chart on the screen: paper with axes, the traces of the last minute, and what each says now.
//
// Only draws a StripChart of its owner, which must outlive it; takes no samples and has no timer. The paper
// is kept as a picture and drawn anew only when the axis, the size or the look changes.
#pragma once

#include <QPixmap>
#include <QPolygonF>
#include <QWidget>
#include <vector>

#include "console/strip_chart.h"
#include "desktop/views/view_colours.h"

namespace quorrin {

class StripChartView : public QWidget {
  public:
    explicit StripChartView(const StripChart& chart, QWidget* parent = nullptr);

    void refresh();
    // How often the paper was drawn.
    long papersDrawn() const { return papersDrawn_; }
    QSize sizeHint() const override { return {300, 150}; }
    QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    QRectF plot() const;
    int axisWidth() const;
    int readingWidth() const;
    void drawPaper(const ChartAxis& axis);
    void drawTrace(QPainter& painter, std::size_t trace, const ChartAxis& axis);
    void drawReadings(QPainter& painter) const;

    const StripChart& chart_;
    ViewColours colours_;
    QPixmap paper_;
    ChartAxis paperAxis_;
    std::vector<ChartPoint> points_;  // kept for its memory
    QPolygonF line_;
    long papersDrawn_ = 0;
};

}  // namespace quorrin

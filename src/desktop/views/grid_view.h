// The live picture of the certainty grid with robot, rays, histogram ring and guidance.
//
// Only looks: refresh() is called by whoever has a drawing timer; the view has none. The grid is kept as an
// image of which only changed cells are drawn anew. Wheel zooms, dragging moves, keys and a context menu do
// what console/live_view_words.h names. Follows the robot until it is moved.
#pragma once

#include <QImage>
#include <QPoint>
#include <QWidget>
#include <array>

#include "console/grid_raster.h"
#include "console/grid_window.h"
#include "console/live_view_words.h"
#include "desktop/views/live_source.h"
#include "desktop/views/view_colours.h"

namespace quorrin {

class GridView : public QWidget {
  public:
    explicit GridView(const LiveSource& source, QWidget* parent = nullptr);

    void refresh();
    void act(GridDeed deed);
    const GridWindow& window() const { return window_; }
    const GridPicture& picture() const { return picture_; }
    // Cells that were drawn anew since the view was made.
    long cellsDrawn() const { return cellsDrawn_; }
    QSize sizeHint() const override { return {420, 420}; }
    QSize minimumSizeHint() const override { return {260, 260}; }

  protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

  private:
    void takeColours();
    void drawCell(int row, int column, int certainty);
    ViewSize viewSize() const;
    QPointF at(GridPoint place) const;
    QPointF around(double bearing_rad, double distance_m) const;
    void drawLattice(QPainter& painter) const;
    void drawRing(QPainter& painter);
    void drawGuidance(QPainter& painter) const;
    void drawWords(QPainter& painter) const;

    const LiveSource& source_;
    GridRaster raster_;
    GridWindow window_;
    GridPicture picture_;
    const char* guidance_ = "";
    QImage cells_;
    ViewColours colours_;
    std::array<QRgb, GridRaster::kHighestCertainty + 1> shades_{};
    QPolygonF whole_, density_;  // kept for their memory
    QPoint grabbed_;
    long cellsDrawn_ = 0;
};

}  // namespace quorrin

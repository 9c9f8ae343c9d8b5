// The floor plan's viewport between its two scroll bars. The operator moves the plan by the bars, by dragging
// it, by the wheel (sideways with Shift), and by the arrow and page keys.
//
// The viewport grows with the space that it gets, as far as the plan leaves something to be scrolled, and
// stands in the middle of what is more. Where it is and how large reaches the form in twips.
#pragma once

#include <QPoint>
#include <QScrollBar>
#include <QWidget>

#include "desktop/binding/control_factory.h"
#include "desktop/binding/listening.h"
#include "session/record/map_controls.h"

namespace quorrin {

// Clips the plan and takes mouse and keys.
class MapViewport : public QWidget {
  public:
    MapViewport(ControlFactory& make, MapControls& controls, const OperatorActs& acts, QWidget* parent);

  protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    // The focus ring is drawn by the scroller, around viewport and bars.
    void focusInEvent(QFocusEvent*) override;
    void focusOutEvent(QFocusEvent*) override;

  private:
    // Turns a bar as the wheel would, once the deed has its turn.
    void turn(Slider& bar, int eighths);
    void drag(Slider& bar, std::int32_t from, int pixels);

    MapControls& controls_;
    OperatorActs acts_;
    bool dragging_ = false;
    QPoint grabbed_;
    std::int32_t fromX_ = 0;
    std::int32_t fromY_ = 0;
};

class MapScroller : public QWidget {
  public:
    MapScroller(ControlFactory& make, MapControls& controls, const OperatorActs& acts,
                QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent*) override;
    void resizeEvent(QResizeEvent*) override;
    void showEvent(QShowEvent*) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void arrange();
    void tellViewport();

    MapControls& controls_;
    MapViewport* viewport_;
    QScrollBar* across_;
    QScrollBar* down_;
    Listening loaded_;
};

}  // namespace quorrin

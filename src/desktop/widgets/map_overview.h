// The small overview of the whole floor plan, with a frame around the part that the viewport shows. It is
// looked at only; where it stands reaches the form in twips.
#pragma once

#include <QImage>
#include <QWidget>

#include "desktop/binding/control_factory.h"
#include "desktop/binding/listening.h"
#include "session/record/map_controls.h"

namespace quorrin {

class MapOverview : public QWidget {
  public:
    MapOverview(ControlFactory& make, MapControls& controls, QWidget* parent = nullptr);

    QSize sizeHint() const override;
    // Where the picture is drawn, and the frame around the seen part in it.
    QRect picturePlace() const;
    QRect seenFrame() const;

  protected:
    void paintEvent(QPaintEvent*) override;
    void resizeEvent(QResizeEvent*) override;
    void moveEvent(QMoveEvent*) override;

  private:
    void follow();
    void tellArea();

    MapControls& controls_;
    QString file_;
    QImage image_;
    Listening picture_;
    Listening plan_;
    Listening across_;
    Listening down_;
};

}  // namespace quorrin

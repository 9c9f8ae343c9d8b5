// The big floor plan itself: a picture as large as the plan, which the viewport around it clips. Follows its
// control's place, file and drawing layer; reads the file when it is told another one.
#pragma once

#include <QImage>
#include <QWidget>

#include "base/controls.h"
#include "desktop/binding/listening.h"

namespace quorrin {

class PlanPicture : public QWidget {
  public:
    PlanPicture(Picture& control, QWidget* parent);

  protected:
    void paintEvent(QPaintEvent*) override;

  private:
    void follow();

    Picture& control_;
    QString file_;
    QImage image_;
    Listening looking_;
};

}  // namespace quorrin

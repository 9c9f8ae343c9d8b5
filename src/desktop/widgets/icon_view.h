// A picture of the main form that is always the same icon, and only comes and goes: the maker's mark, a
// person beside the robot. It keeps its place while it is hidden.
#pragma once

#include "desktop/theme/icons.h"
#include "desktop/widgets/picture_view.h"

namespace quorrin {

class IconView : public PictureView {
  public:
    IconView(IconName name, int side);

    QSize sizeHint() const override { return {side_, side_}; }
    QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    void paintEvent(QPaintEvent*) override;

  private:
    IconName name_;
    int side_;
};

// The pictures of the main form's image list, by number.
ImageList stationImages();

}  // namespace quorrin

#include "console/map_marks.h"

#include "base/rounding.h"

namespace quorrin {

namespace {

constexpr double kOffset = 255;
constexpr double kOverviewRatio = 4.195;
constexpr double kBigRadius = 150;
constexpr double kOverviewRadius = 50;
constexpr Colour kRed = 0x0000FF;
constexpr Colour kBlue = 0xFF0000;

// Between 0 and 1 it goes to the far end, and exactly 0 moves nothing: that is the rule as it stands.
void centreOn(Slider& bar, double wanted) {
    if (wanted < bar.maximum() && wanted >= 1) {
        bar.setValue(static_cast<std::int32_t>(roundHalfEven(wanted)));
    } else if (wanted > 0) {
        bar.setValue(bar.maximum());
    } else if (wanted < 0) {
        bar.setValue(bar.minimum());
    }
}

}  // namespace

void printBigPicture(MapControls& controls, double x, double y) {
    controls.picRobotMap.clearDrawing();
    controls.picRobotMap.drawCircle({x - kOffset, y - kOffset, kBigRadius, kRed});
}

void printthumbnailPicture(MapControls& controls, double x, double y) {
    controls.picRobotMap.clearDrawing();
    const Area& overview = controls.imgThumb.area();
    controls.picRobotMap.drawCircle({overview.left + (x - kOffset) / kOverviewRatio,
                                     overview.top + (y - kOffset) / kOverviewRatio, kOverviewRadius, kBlue});
}

void setPictureCenter(MapControls& controls, double x, double y) {
    const Area& viewport = controls.Frame1.area();
    centreOn(controls.HScroll1, x - kOffset - viewport.width / 2.0);
    centreOn(controls.VScroll1, y - kOffset - viewport.height / 2.0);
}

}  // namespace quorrin

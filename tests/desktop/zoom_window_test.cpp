// The zoom window: dragged by its picture, showing what its form has read.
#include <gtest/gtest.h>

#include <QTest>

#include "desktop/forms/zoom_window.h"
#include "desktop/widgets/picture_view.h"
#include "robotlink/bmp_24.h"
#include "session/console_rooms.h"
#include "support/station_bench.h"

namespace quorrin {
namespace {

class ZoomWindowOfAStation : public testing::Test, protected StationBench {
  protected:
    void SetUp() override {
        station.startAtMainForm();
        window.bodyDrag().cursorPosition = [this] { return cursor; };
        gui.cmdZoomCamera.operatorClick();
        settle();
    }
    void settle() {
        QCoreApplication::processEvents();
        clock.runFor(0);
    }
    void mouse(QEvent::Type type, Qt::MouseButton button, Qt::MouseButtons held) {
        QWidget& picture = *window.findChild<QWidget*>(QStringLiteral("Image1"));
        QMouseEvent event(type, picture.mapFromGlobal(cursor), cursor, button, held, Qt::NoModifier);
        QCoreApplication::sendEvent(&picture, &event);
        settle();
    }

    OperatorActs acts{clock};
    ZoomWindow window{station.zoomCamera, station.console().zoomCamera().drag(), acts};
    QPoint cursor;
};

TEST_F(ZoomWindowOfAStation, IsDraggedByItsPicture) {
    station.zoomCamera.moveTo(1500, 1500);
    cursor = {200, 200};
    mouse(QEvent::MouseButtonPress, Qt::LeftButton, Qt::LeftButton);
    cursor = {230, 190};
    mouse(QEvent::MouseMove, Qt::NoButton, Qt::LeftButton);
    EXPECT_EQ(window.pos(), QPoint(130, 90));
    mouse(QEvent::MouseButtonRelease, Qt::LeftButton, Qt::NoButton);
    EXPECT_FALSE(station.console().zoomCamera().drag().windowDragging());
}

TEST_F(ZoomWindowOfAStation, ShowsTheLastPictureThatWasThereAsAWhole) {
    const auto& picture = *window.findChild<PictureView*>(QStringLiteral("Image1"));
    EXPECT_TRUE(picture.image().isNull());
    const std::string red = encodeBmp24(2, 1, std::string("\xFF\0\0\xFF\0\0", 6));
    files.put("/app/tempImage.bmp", red);
    clock.runFor(100);
    EXPECT_EQ(picture.image().pixelColor(0, 0), QColor(Qt::red));
    files.put("/app/tempImage.bmp", red.substr(0, red.size() - 1));
    clock.runFor(100);
    EXPECT_EQ(picture.image().pixelColor(1, 0), QColor(Qt::red));
}

TEST_F(ZoomWindowOfAStation, ClosesByItsKey) {
    QTest::mouseClick(window.findChild<QWidget*>(QStringLiteral("cmdClose")), Qt::LeftButton);
    settle();
    EXPECT_FALSE(window.isVisible());
    EXPECT_FALSE(values.zoomCameraOpen);
}

}  // namespace
}  // namespace quorrin

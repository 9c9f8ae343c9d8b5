// The windows of the small forms, and those that belong to no form.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QBuffer>
#include <QImage>

#include "desktop/forms/notice_window.h"
#include "desktop/station_window_bench.h"
#include "desktop/widgets/command.h"
#include "desktop/widgets/picture_view.h"
#include "desktop/widgets/shadow_label.h"

namespace quorrin {
namespace {

struct SmallWindows : testing::Test {
    SmallWindows() {
        bench.startSession();
        bench.settle();
    }
    QWidget* about() const { return bench.window("frmAbout"); }
    QWidget* zoom() const { return bench.window("frmZoomCamera"); }

    StationWindowBench bench;
};

TEST_F(SmallWindows, AboutIsModalWhileItIsOpen) {
    bench.gui.toolbarAbout.operatorClick();
    EXPECT_TRUE(about()->isVisible());
    EXPECT_EQ(about()->windowModality(), Qt::ApplicationModal);
}

TEST_F(SmallWindows, AboutShowsTheVersionAndTheMakersSite) {
    bench.gui.toolbarAbout.operatorClick();
    EXPECT_EQ(bench.widget<ShadowLabel>("frmAbout", "lblVersion")->caption(), "Version " QUORRIN_VERSION);
    EXPECT_EQ(bench.widget<QAbstractButton>("frmAbout", "lblWWW")->text().toStdString(),
              bench.station.about.lblWWW.caption());
}

TEST_F(SmallWindows, AboutsPageSlidesAsTheFormSays) {
    bench.gui.toolbarAbout.operatorClick();
    QWidget* const page = bench.widget("frmAbout", "picExtend");
    const int before = page->y();
    bench.clock.runFor(50);
    EXPECT_EQ(page->y(), before - 3) << "45 twips are three pixels";
    bench.clock.runFor(5000);
    EXPECT_EQ(page->y(), 3);
}

TEST_F(SmallWindows, AboutIsClosedByEscapeAndTellsTheForm) {
    bench.gui.toolbarAbout.operatorClick();
    about()->activateWindow();
    bench.settle();
    QTest::keyClick(about(), Qt::Key_Escape);
    bench.settle();
    EXPECT_FALSE(about()->isVisible());
    EXPECT_FALSE(bench.values.aboutOpen);
}

TEST_F(SmallWindows, AboutsLinkIsAClickOfItsLabel) {
    bench.gui.toolbarAbout.operatorClick();
    int clicks = 0;
    bench.station.about.lblWWW.onClick = [&] { ++clicks; };
    QTest::mouseClick(bench.widget("frmAbout", "lblWWW"), Qt::LeftButton);
    bench.settle();
    EXPECT_EQ(clicks, 1);
}

TEST_F(SmallWindows, ZoomShowsThePictureOfTheCameraStretched) {
    QImage frame(4, 3, QImage::Format_RGB888);
    frame.fill(Qt::red);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    ASSERT_TRUE(frame.save(&buffer, "BMP"));
    bench.files.put("/app/tempImage.bmp", bytes.toStdString());

    bench.gui.cmdZoomCamera.operatorClick();
    bench.settle();
    bench.clock.runFor(100);
    const auto* view = bench.widget<PictureView>("frmZoomCamera", "Image1");
    EXPECT_EQ(view->image().size(), QSize(4, 3));
    EXPECT_EQ(view->size(), zoom()->size());
    EXPECT_EQ(zoom()->grab().toImage().pixelColor(5, zoom()->height() / 2), QColor(Qt::red));
}

TEST_F(SmallWindows, ZoomStaysBlankWithoutAPicture) {
    bench.gui.cmdZoomCamera.operatorClick();
    bench.settle();
    bench.take();
    bench.clock.runFor(1000);
    EXPECT_TRUE(bench.widget<PictureView>("frmZoomCamera", "Image1")->image().isNull());
    for (const std::string& line : bench.take()) EXPECT_NE(line.substr(0, 3), "box") << line;
}

TEST_F(SmallWindows, ZoomIsClosedByItsKey) {
    bench.gui.cmdZoomCamera.operatorClick();
    bench.settle();
    bench.widget<Command>("frmZoomCamera", "cmdClose")->press();
    bench.settle();
    EXPECT_FALSE(zoom()->isVisible());
    EXPECT_FALSE(bench.values.zoomCameraOpen);
}

TEST(Notices, ComeUpInAWindowThatHoldsNothingUp) {
    NoticeWindow notices;
    EXPECT_FALSE(notices.isVisible());
    notices.say("cannot write /app/a");
    EXPECT_TRUE(notices.isVisible());
    EXPECT_FALSE(notices.isModal());
}

TEST(Notices, ComeUpOnceForEachComplaint) {
    NoticeWindow notices;
    notices.say("cannot write /app/a");
    notices.close();
    notices.say("cannot write /app/a");
    EXPECT_FALSE(notices.isVisible());
    notices.say("cannot write /app/b");
    EXPECT_TRUE(notices.isVisible());
    EXPECT_EQ(notices.lineCount(), 2);
}

}  // namespace
}  // namespace quorrin

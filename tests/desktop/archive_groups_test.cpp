// The capture and the review groups of the dashboard, used as an operator uses them.
#include <QComboBox>
#include <QLabel>
#include <QListView>
#include <QRadioButton>

#include "desktop/dashboard_bench.h"
#include "desktop/widgets/picture_view.h"
#include "support/picture_files.h"

namespace quorrin {
namespace {

class ArchiveGroups : public DashboardBench {
  protected:
    ArchiveGroups() {
        bench.files.createFolder("/app/catchdata");
        bench.files.put("/app/Tempvb_P.jpg", picture);
        for (int i = 1; i <= 9; ++i)
            bench.files.put("/app/catchdata/2026-11-19/46345_0." + std::to_string(i) + "_1.jpg", picture);
    }
    void openSettings() {
        open();
        click("cmdExpandSetting");
    }
    void chooseDay() {
        auto& days = find<QComboBox>("cobAvailDate");
        days.setFocus();
        QTest::keyClick(&days, Qt::Key_Home);
        settle();
        // The only day is the current one then; choosing it once more counts, too.
        if (bench.gui.CurrRuningFolderName.empty()) {
            Q_EMIT days.activated(0);
            settle();
        }
    }
    void runFor(std::int64_t ms) {
        bench.clock.runFor(ms);
        settle();
    }
    const QImage& shown() { return find<PictureView>("picPlayVideo").image(); }

    std::string picture = jpegFile(*cornersPicture(16, 8), 75);
};

TEST_F(ArchiveGroups, ACaptureIsStartedAndStoppedByItsKey) {
    openSettings();
    click("optFramesPerSec(0)");
    EXPECT_FALSE(find<QRadioButton>("optFramesPerSec(1)").isChecked());
    click("cmdCatch");
    EXPECT_EQ(find<Command>("cmdCatch").caption(), "Stop Capture");
    runFor(1000);
    click("cmdCatch");
    EXPECT_EQ(find<Command>("cmdCatch").caption(), "Start Capture");
    EXPECT_EQ(bench.files.filesIn("/app/catchdata/2026-11-20").size(), 3U);
    EXPECT_EQ(find<QComboBox>("cobAvailDate").count(), 2);
}

TEST_F(ArchiveGroups, AFailedCaptureSaysWhyBesideItsKey) {
    openSettings();
    bench.files.remove("/app/Tempvb_P.jpg");
    click("cmdCatch");
    runFor(1000);
    EXPECT_EQ(find<QLabel>("lblCaptureNote").text(), "Capture stopped: the camera has given no picture.");
}

TEST_F(ArchiveGroups, AChosenDayPlaysInThePicture) {
    openSettings();
    chooseDay();
    runFor(600);
    EXPECT_EQ(shown().size(), QSize(16, 8));
    auto& list = find<QListView>("lstPlayVideo");
    EXPECT_EQ(list.model()->rowCount(), 9);
    EXPECT_TRUE(list.selectionModel()->isSelected(list.model()->index(1, 0)));
    EXPECT_FALSE(find<Command>("cmdPlay").isEnabled());
}

TEST_F(ArchiveGroups, AFastKeySpoolsWhileTheMouseHoldsIt) {
    openSettings();
    chooseDay();
    auto& key = find<Command>("cmdForward");
    QTest::mousePress(&key, Qt::LeftButton);
    settle();
    runFor(500);
    EXPECT_EQ(bench.gui.lblPlayingNumber.caption(), "5/9");
    QTest::mouseRelease(&key, Qt::LeftButton);
    settle();
    runFor(3000);
    EXPECT_EQ(bench.gui.lblPlayingNumber.caption(), "5/9");
}

TEST_F(ArchiveGroups, APictureThatIsNoneLeavesTheLastOneNotStanding) {
    bench.files.put("/app/catchdata/2026-11-19/46345_0.2_1.jpg", "no picture");
    openSettings();
    chooseDay();
    runFor(300);
    EXPECT_FALSE(shown().isNull());
    runFor(300);
    EXPECT_TRUE(shown().isNull());
    EXPECT_EQ(find<QLabel>("lblReviewNote").text(),
              "46345_0.2_1.jpg: the file is neither a bitmap nor a JPEG.");
}

}  // namespace
}  // namespace quorrin

#include "desktop/views/live_views.h"

#include <gmock/gmock.h>

#include <QAccessible>
#include <QApplication>
#include <QImage>
#include <QPushButton>
#include <QTest>
#include <map>

#include "console/live_view_words.h"
#include "desktop/views/grid_view.h"
#include "replay/station_fields.h"
#include "support/closed_loop.h"

namespace quorrin {
namespace {

// A robot that has wandered for a while, and the views of it.
class LiveViewsTest : public testing::Test {
  protected:
    LiveViewsTest() : loop_(shippedSite("clutter")) {
        loop_.runUntilMode("wondering", 20);
        loop_.run(5);
    }

    // Every field and control of the station as text.
    std::map<std::string, std::string> everything() {
        const StationFields fields(*loop_.station);
        std::map<std::string, std::string> found;
        for (const std::string& name : fields.table().names()) (*fields.table().find(name))(found[name]);
        for (Form* form : loop_.station->forms())
            for (const Control* control : form->controls())
                found[form->name() + "." + control->name()] = control->valueText();
        return found;
    }
    static void deliverQueued() { QCoreApplication::sendPostedEvents(); }

    ClosedLoop loop_;
    LiveSource source_ = liveSource(*loop_.station, loop_.clock);
};

TEST_F(LiveViewsTest, RunNoTimerBeforeTheyAreShown) {
    LiveViews views(source_);
    EXPECT_FALSE(views.panel().running());
    EXPECT_EQ(views.panel().chart(ChartKind::voltages).count(), 0U);
}

TEST_F(LiveViewsTest, RunTheirTimerTenTimesASecondWhileShownAndNoneWhenHidden) {
    LiveViews views(source_);
    views.show();
    EXPECT_TRUE(views.panel().running());
    EXPECT_EQ(LivePanel::kPeriodMs, 100);
    views.hide();
    EXPECT_FALSE(views.panel().running());
}

TEST_F(LiveViewsTest, RunNoTimerInAPanelThatIsFoldedIn) {
    QWidget fraSensor;
    LiveViews views(source_, &fraSensor);
    fraSensor.show();
    EXPECT_TRUE(views.panel().running());
    fraSensor.hide();
    EXPECT_FALSE(views.panel().running());
}

TEST_F(LiveViewsTest, SampleTheRobotsRealWander) {
    LiveViews views(source_);
    views.show();
    for (int i = 0; i < 20; ++i) {
        loop_.run(0.1);
        views.panel().refresh();
    }
    const StripChart& speeds = views.panel().chart(ChartKind::wheelSpeeds);
    EXPECT_GE(speeds.count(), 20U);
    // It drives ahead most of the time: measured and ordered agree in sign and about in size.
    EXPECT_GT(speeds.latest(0) + speeds.latest(1), 50);
    EXPECT_NEAR(speeds.latest(0), speeds.latest(2), 150);
    EXPECT_NEAR(speeds.latest(1), speeds.latest(3), 150);
    EXPECT_GT(views.panel().chart(ChartKind::voltages).latest(0), 5);
    EXPECT_TRUE(views.panel().grid().picture().guidance);
}

TEST_F(LiveViewsTest, LookingChangesNothingOfTheStation) {
    LiveViews views(source_);
    const auto before = everything();
    ASSERT_GT(before.size(), 200U);
    const MapValues map = loop_.station->values;
    views.resize(1000, 700);
    views.show();
    views.panel().refresh();
    EXPECT_FALSE(views.grab().isNull());
    views.panel().grid().act(GridDeed::showAll);
    views.detach();
    EXPECT_FALSE(views.ownWindow()->grab().isNull());
    views.attach();
    EXPECT_EQ(everything(), before);
    EXPECT_TRUE(map.certaintyGrid == loop_.station->values.certaintyGrid);
    EXPECT_TRUE(map.sectorCells == loop_.station->values.sectorCells);
}

TEST_F(LiveViewsTest, TheSessionGoesOnJustTheSameWithTheViewsOpen) {
    ClosedLoop unwatched(shippedSite("clutter"));
    unwatched.runUntilMode("wondering", 20);
    unwatched.run(8);
    LiveViews views(source_);
    views.show();
    for (int i = 0; i < 30; ++i) {
        views.panel().refresh();
        views.grab();
        loop_.run(0.1);
    }
    EXPECT_EQ(loop_.values().robotX, unwatched.values().robotX);
    EXPECT_EQ(loop_.values().robotTheta, unwatched.values().robotTheta);
    EXPECT_TRUE(loop_.values().certaintyGrid == unwatched.values().certaintyGrid);
}

TEST_F(LiveViewsTest, DetachMovesTheViewsToAWindowOfTheirOwnAndBack) {
    LiveViews views(source_);
    views.show();
    views.detach();
    ASSERT_NE(views.ownWindow(), nullptr);
    EXPECT_TRUE(views.ownWindow()->isVisible());
    EXPECT_EQ(views.panel().window(), views.ownWindow());
    EXPECT_TRUE(views.panel().running());
    EXPECT_EQ(views.ownWindow()->windowTitle(), liveViewWords().title);
    views.attach();
    EXPECT_EQ(views.ownWindow(), nullptr);
    EXPECT_EQ(views.panel().window(), &views);
    EXPECT_TRUE(views.panel().running());
}

TEST_F(LiveViewsTest, TheOwnWindowGoesOnWhenThePanelFoldsIn) {
    LiveViews views(source_);
    views.show();
    views.detach();
    views.hide();
    EXPECT_TRUE(views.panel().running());
}

TEST_F(LiveViewsTest, ClosingTheOwnWindowBringsTheViewsBack) {
    LiveViews views(source_);
    views.show();
    views.detach();
    views.ownWindow()->close();
    EXPECT_FALSE(views.panel().running());
    deliverQueued();
    EXPECT_FALSE(views.detached());
    EXPECT_TRUE(views.panel().running());
}

TEST_F(LiveViewsTest, ClosingTheOwnWindowWhileThePanelIsFoldedInStopsTheTimer) {
    LiveViews views(source_);
    views.show();
    views.detach();
    views.hide();
    views.ownWindow()->close();
    deliverQueued();
    EXPECT_FALSE(views.detached());
    EXPECT_FALSE(views.panel().running());
}

TEST_F(LiveViewsTest, ItsShortcutDetachesAndBringsBackWhateverTheKeyReads) {
    LiveViews views(source_);
    views.show();
    for (const bool detached : {true, false}) {
        views.activateWindow();
        QCoreApplication::processEvents();
        QTest::keyClick(&views, Qt::Key_L, Qt::ControlModifier);
        EXPECT_EQ(views.detached(), detached);
    }
}

TEST_F(LiveViewsTest, TheKeyDetachesAndBringsBack) {
    LiveViews views(source_);
    views.show();
    auto* const key = views.findChild<QPushButton*>("liveViewsMove");
    ASSERT_NE(key, nullptr);
    EXPECT_EQ(key->text(), liveViewWords().ownWindow);
    key->click();
    EXPECT_TRUE(views.detached());
    EXPECT_EQ(key->text(), liveViewWords().back);
    key->click();
    EXPECT_FALSE(views.detached());
}

TEST_F(LiveViewsTest, GoingWhileDetachedLeavesNothingBehind) {
    const auto tops = QApplication::topLevelWidgets().size();
    {
        LiveViews views(source_);
        views.show();
        views.detach();
    }
    EXPECT_EQ(QApplication::topLevelWidgets().size(), tops);
}

TEST_F(LiveViewsTest, GoingAfterTheOwnWindowWasClosedIsHarmless) {
    {
        LiveViews views(source_);
        views.show();
        views.detach();
        views.ownWindow()->close();
    }
    deliverQueued();
}

TEST_F(LiveViewsTest, ThereMayBeNoNavigator) {
    const LiveSource none{loop_.station->values, loop_.station->gui, [] { return nullptr; }, loop_.clock};
    LiveViews views(none);
    views.show();
    EXPECT_FALSE(views.panel().grid().picture().guidance);
    EXPECT_FALSE(views.grab().isNull());
}

TEST_F(LiveViewsTest, EveryViewHasANameThatCanBeRead) {
    LiveViews views(source_);
    for (const QWidget* view : views.panel().findChildren<QWidget*>())
        EXPECT_NE(view->accessibleName(), "") << view->objectName().toStdString();
}

}  // namespace
}  // namespace quorrin

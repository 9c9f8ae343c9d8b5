// The pages of the fold-outs: how they are turned, what rests meanwhile, and what stays within reach.
#include <gmock/gmock.h>

#include <QAccessible>
#include <QTabBar>
#include <set>

#include "desktop/dashboard_bench.h"
#include "desktop/views/grid_view.h"
#include "desktop/views/live_views.h"

namespace quorrin {
namespace {

using testing::IsSupersetOf;

constexpr int kLive = 0, kCharts = 1, kRanges = 2, kTasks = 3, kPower = 4;

class PanelPages : public DashboardBench {
  protected:
    void openEngineering(int width = 1280, int height = 764) {
        views = new LiveViews(liveSource(bench.station, bench.clock));
        open(width, height, views);
        window->activateWindow();
        settle();
        press(Qt::Key_F9);
    }
    QTabBar& tabs() { return find<QTabBar>("engineeringPages"); }
    void turnTo(int page) {
        tabs().setCurrentIndex(page);
        settle();
    }
    bool seen(const std::string& name) { return find(name).isVisible(); }
    std::set<std::string> stops() {
        std::set<std::string> names;
        QWidget* const first = QApplication::focusWidget();
        constexpr int kFarTooOften = 1000;
        for (int i = 0; i < kFarTooOften; ++i) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            names.insert(QApplication::focusWidget()->objectName().toStdString());
            if (QApplication::focusWidget() == first) return names;
        }
        ADD_FAILURE() << "never comes back";
        return names;
    }

    LiveViews* views = nullptr;
};

TEST_F(PanelPages, ShowOneAtATime) {
    openEngineering();
    EXPECT_TRUE(seen("gridView"));
    EXPECT_FALSE(seen("txtTh1"));
    turnTo(kRanges);
    EXPECT_FALSE(seen("gridView"));
    EXPECT_TRUE(seen("txtTh1"));
    EXPECT_TRUE(seen("SonarT(0)"));
    turnTo(kPower);
    EXPECT_FALSE(seen("txtTh1"));
    EXPECT_TRUE(seen("lblHuman"));
}

TEST_F(PanelPages, AreTurnedByTheArrowKeysOnTheirTabs) {
    openEngineering();
    tabs().setFocus();
    QTest::keyClick(&tabs(), Qt::Key_Right);
    QTest::keyClick(&tabs(), Qt::Key_Right);
    EXPECT_EQ(tabs().currentIndex(), kRanges);
    QTest::keyClick(&tabs(), Qt::Key_Left);
    EXPECT_EQ(tabs().currentIndex(), kCharts);
}

TEST_F(PanelPages, AreTurnedByShortcutsWhileThePanelIsOpen) {
    openEngineering();
    for (const int page : {kPower, kTasks, kLive, kRanges, kCharts}) {
        press(Qt::Key_1 + page, Qt::ControlModifier);
        EXPECT_EQ(tabs().currentIndex(), page);
    }
    press(Qt::Key_F9);
    press(Qt::Key_1, Qt::ControlModifier);
    EXPECT_EQ(tabs().currentIndex(), kCharts);
}

TEST_F(PanelPages, AreReadAloudAsTabsWithTheirNames) {
    openEngineering();
    QAccessibleInterface* const reader = QAccessible::queryAccessibleInterface(&tabs());
    ASSERT_NE(reader, nullptr);
    EXPECT_EQ(reader->role(), QAccessible::PageTabList);
    EXPECT_EQ(tabs().accessibleName(), "Pages of the engineering view");
    EXPECT_EQ(reader->child(kRanges)->text(QAccessible::Name), "Ranges and Navigator");
}

TEST_F(PanelPages, StayAsChosenWhenThePanelIsClosedAndOpened) {
    openEngineering();
    turnTo(kPower);
    press(Qt::Key_F9);
    press(Qt::Key_F9);
    EXPECT_EQ(tabs().currentIndex(), kPower);
    EXPECT_TRUE(seen("lblHuman"));
}

TEST_F(PanelPages, LetTheLiveViewsRestWhileTheyAreTurnedAway) {
    openEngineering();
    EXPECT_TRUE(views->panel().running());
    turnTo(kTasks);
    EXPECT_FALSE(views->panel().running());
    turnTo(kCharts);
    EXPECT_TRUE(views->panel().running());
    press(Qt::Key_F9);
    EXPECT_FALSE(views->panel().running());
}

TEST_F(PanelPages, ShowGridAndChartsTogetherWhereThereIsRoomAndEachAloneWhereNot) {
    openEngineering(1904, 1048);
    const auto chartSeen = [this] { return seen("stripChart"); };
    EXPECT_TRUE(seen("gridView"));
    EXPECT_TRUE(chartSeen());
    window->resize(1024, 568);
    settle();
    EXPECT_TRUE(seen("gridView"));
    EXPECT_FALSE(chartSeen());
    turnTo(kCharts);
    EXPECT_FALSE(seen("gridView"));
    EXPECT_TRUE(chartSeen());
}

TEST_F(PanelPages, PutTheLiveViewsInTheirOwnWindowByTheShortcutFromEveryPage) {
    openEngineering();
    for (const int page : {kLive, kCharts, kRanges, kTasks, kPower}) {
        turnTo(page);
        press(Qt::Key_L, Qt::ControlModifier);
        ASSERT_TRUE(views->detached()) << page;
        EXPECT_TRUE(views->panel().running());
        EXPECT_TRUE(views->panel().grid().isVisible());
        window->activateWindow();
        settle();
        press(Qt::Key_L, Qt::ControlModifier);
        ASSERT_FALSE(views->detached()) << page;
        EXPECT_EQ(views->panel().running(), page == kLive || page == kCharts);
    }
}

TEST_F(PanelPages, LeaveTheShortcutOfAKeyAtWorkOnEveryPage) {
    openEngineering();
    turnTo(kPower);
    ASSERT_FALSE(seen("cmdStop"));
    int clicks = 0;
    bench.gui.cmdStop.onClick = [&clicks] { ++clicks; };
    press(Qt::Key_F2, Qt::ControlModifier);
    EXPECT_EQ(clicks, 1);
    EXPECT_EQ(tabs().currentIndex(), kPower);
}

TEST_F(PanelPages, AreGoneThroughByTabEachWithItsOwnControls) {
    openEngineering();
    EXPECT_THAT(stops(), IsSupersetOf({"cmdCloseSensor", "engineeringPages", "liveViewsMove", "gridView"}));
    turnTo(kRanges);
    EXPECT_THAT(stops(), IsSupersetOf({"cmdCloseSensor", "engineeringPages", "txtTh1", "IRT(1)"}));
    turnTo(kTasks);
    EXPECT_THAT(stops(), IsSupersetOf({"engineeringPages", "cmdStop", "In_Target_X1"}));
    EXPECT_EQ(stops().count("txtTh1"), 0U);
}

TEST_F(PanelPages, GiveTheKeyboardToTheTabsWhenThePageThatHoldsItIsTurnedAway) {
    openEngineering();
    turnTo(kRanges);
    find("txtTh1").setFocus();
    press(Qt::Key_5, Qt::ControlModifier);
    EXPECT_EQ(QApplication::focusWidget(), &tabs());
}

TEST_F(PanelPages, OfTheSettingsAreNeededOnlyWhereTheRoomIsTooSmallForAll) {
    open(1280, 764);
    press(Qt::Key_F3);
    EXPECT_FALSE(seen("settingPages"));
    EXPECT_TRUE(seen("cmdStopChg"));
    EXPECT_TRUE(seen("txtRobotCurrX"));
    window->resize(1024, 568);
    settle();
    EXPECT_TRUE(seen("settingPages"));
    EXPECT_TRUE(seen("cmdStopChg"));
    EXPECT_FALSE(seen("txtRobotCurrX"));
    press(Qt::Key_7, Qt::ControlModifier);
    EXPECT_FALSE(seen("cmdStopChg"));
    EXPECT_TRUE(seen("txtRobotCurrX"));
    window->resize(1280, 764);
    settle();
    EXPECT_TRUE(seen("cmdStopChg"));
    EXPECT_TRUE(seen("txtRobotCurrX"));
}

TEST_F(PanelPages, AreGoneToByTheShortcutOfABoxThatIsTurnedAway) {
    open(1024, 568);
    press(Qt::Key_F3);
    ASSERT_FALSE(seen("txtIncomeTTS"));
    press(Qt::Key_T, Qt::AltModifier);
    EXPECT_TRUE(seen("txtIncomeTTS"));
    EXPECT_EQ(QApplication::focusWidget(), &find("txtIncomeTTS"));
}

}  // namespace
}  // namespace quorrin

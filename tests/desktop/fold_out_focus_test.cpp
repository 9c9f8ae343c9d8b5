// The keyboard and the fold-outs: where it goes when one opens and closes, and what Tab passes over
// meanwhile.
#include <gmock/gmock.h>

#include <set>

#include "desktop/dashboard_bench.h"
#include "desktop/views/live_views.h"

namespace quorrin {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::IsSupersetOf;

class FoldOutFocus : public DashboardBench {
  protected:
    FoldOutFocus() {
        open(1280, 764, new LiveViews(liveSource(bench.station, bench.clock)));
        window->activateWindow();
        settle();
        find("Toolbar1.Help").setFocus();
    }
    static QWidget* focus() { return QApplication::focusWidget(); }
    static std::string focused() { return focus() == nullptr ? "" : focus()->objectName().toStdString(); }
    // A key where the keyboard is, as a window system would send it.
    void key(Qt::Key key) {
        QTest::keyClick(focus(), key);
        settle();
    }
    // Goes on by Tab (or Shift+Tab) until it is back at where it began.
    template <typename See>
    void goAround(Qt::Key tab, See see) {
        QWidget* const first = focus();
        constexpr int kFarTooOften = 1000;
        for (int i = 0; i < kFarTooOften; ++i) {
            key(tab);
            see(*focus());
            if (focus() == first) return;
        }
        ADD_FAILURE() << "never comes back to " << first->objectName().toStdString();
    }
    // Another widget is drawn over its middle.
    bool isCovered(const QWidget& widget) const {
        QWidget* const seen = window->childAt(widget.mapTo(window.get(), widget.rect().center()));
        return seen != &widget && !widget.isAncestorOf(seen);
    }
    std::vector<std::string> coveredStops(Qt::Key tab) {
        std::vector<std::string> names;
        goAround(tab, [&](const QWidget& stop) {
            if (isCovered(stop)) names.push_back(stop.objectName().toStdString());
        });
        return names;
    }
    std::set<std::string> stops() {
        std::set<std::string> names;
        goAround(Qt::Key_Tab, [&](const QWidget& stop) { names.insert(stop.objectName().toStdString()); });
        return names;
    }
};

TEST_F(FoldOutFocus, TabNeverLandsOnWhatTheSettingsCover) {
    press(Qt::Key_F3);
    ASSERT_TRUE(isCovered(find("cmdZoomCamera")));
    EXPECT_THAT(coveredStops(Qt::Key_Tab), IsEmpty());
    EXPECT_THAT(coveredStops(Qt::Key_Backtab), IsEmpty());
}

TEST_F(FoldOutFocus, TabNeverLandsOnWhatTheEngineeringViewCovers) {
    press(Qt::Key_F9);
    ASSERT_TRUE(isCovered(find("Frame1")));
    EXPECT_THAT(coveredStops(Qt::Key_Tab), IsEmpty());
    EXPECT_THAT(coveredStops(Qt::Key_Backtab), IsEmpty());
}

TEST_F(FoldOutFocus, TabNeverLandsOnAPanelThatLiesUnderAnother) {
    press(Qt::Key_F3);
    press(Qt::Key_F9);
    ASSERT_TRUE(isCovered(find("cmdCloseSetting")));
    EXPECT_THAT(coveredStops(Qt::Key_Tab), IsEmpty());
    press(Qt::Key_F3);
    press(Qt::Key_F3);
    ASSERT_FALSE(isCovered(find("cmdCloseSetting")));
    ASSERT_TRUE(isCovered(find("cmdCloseSensor")));
    EXPECT_THAT(coveredStops(Qt::Key_Tab), IsEmpty());
}

TEST_F(FoldOutFocus, TabGoesThroughThePanelAndWhatIsSeenBesideIt) {
    press(Qt::Key_F3);
    EXPECT_THAT(stops(), IsSupersetOf({"cmdCloseSetting", "txtMusicName", "cmdTTS", "Toolbar1.Help",
                                       "cmdExpandSetting", "cmdTalk"}));
    press(Qt::Key_F3);
    press(Qt::Key_F9);
    EXPECT_THAT(stops(), IsSupersetOf({"cmdCloseSensor", "engineeringPages", "liveViewsMove", "gridView",
                                       "Toolbar1.Help", "cmdTalk"}));
}

TEST_F(FoldOutFocus, TabReachesEverythingAgainOnceThePanelsAreClosed) {
    const std::set<std::string> before = stops();
    EXPECT_THAT(before, IsSupersetOf({"Frame1", "cmdZoomCamera", "chkRemote", "ConnectionList"}));
    for (const Qt::Key panel : {Qt::Key_F3, Qt::Key_F9}) {
        press(panel);
        EXPECT_NE(stops(), before);
        press(panel);
        EXPECT_EQ(stops(), before);
    }
}

TEST_F(FoldOutFocus, GoesIntoTheSettingsAndBackToTheKeyThatOpenedThem) {
    find("cmdExpandSetting").setFocus();
    key(Qt::Key_Space);
    ASSERT_TRUE(window->settings().isVisible());
    EXPECT_EQ(focused(), "cmdCloseSetting");
    key(Qt::Key_Space);
    ASSERT_FALSE(window->settings().isVisible());
    EXPECT_EQ(focused(), "cmdExpandSetting");
}

TEST_F(FoldOutFocus, GoesIntoTheEngineeringViewAndBackToWhereItWas) {
    find("chkRemote").setFocus();
    key(Qt::Key_F9);
    EXPECT_EQ(focused(), "cmdCloseSensor");
    key(Qt::Key_Tab);
    EXPECT_TRUE(window->engineering().isAncestorOf(focus()));
    key(Qt::Key_F9);
    EXPECT_EQ(focused(), "chkRemote");
}

TEST_F(FoldOutFocus, StaysWhereTheOperatorHasTakenItMeanwhile) {
    key(Qt::Key_F3);
    find("viewMenu").setFocus();
    key(Qt::Key_F3);
    EXPECT_EQ(focused(), "viewMenu");
}

TEST_F(FoldOutFocus, GoesOnWhenWhereItWasCannotBeUsedAnyMore) {
    find("cmdListen").setFocus();
    key(Qt::Key_F3);
    bench.gui.cmdListen.setEnabled(false);
    key(Qt::Key_F3);
    ASSERT_NE(focus(), nullptr);
    EXPECT_FALSE(isCovered(*focus()));
    EXPECT_TRUE(focus()->isEnabled());
}

TEST_F(FoldOutFocus, DoesNotMoveWhenOnlyTheWindowIsHiddenAndShown) {
    key(Qt::Key_F3);
    key(Qt::Key_Tab);
    QWidget* const before = window->focusWidget();
    ASSERT_NE(before->objectName(), "cmdCloseSetting");
    window->hide();
    window->show();
    settle();
    EXPECT_EQ(window->focusWidget(), before);
}

TEST_F(FoldOutFocus, TellsTheFormNothing) {
    std::vector<std::string> told;
    bench.gui.onOperatorAct = [&](const OperatorAct& act) {
        told.push_back(act.control == nullptr ? "" : act.control->name());
    };
    key(Qt::Key_F3);
    EXPECT_THAT(told, ElementsAre("cmdExpandSetting")) << "the shortcut's click, and no focus";
    told.clear();
    key(Qt::Key_F9);
    key(Qt::Key_F9);
    EXPECT_THAT(told, IsEmpty());
}

}  // namespace
}  // namespace quorrin

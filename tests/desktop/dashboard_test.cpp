#include <gmock/gmock.h>

#include <QAction>
#include <QLineEdit>
#include <QRadioButton>
#include <QScrollBar>
#include <QTabBar>
#include <set>

#include "desktop/dashboard_bench.h"
#include "desktop/widgets/command.h"
#include "desktop/widgets/lamp.h"

namespace quorrin {
namespace {

using testing::IsEmpty;

class Dashboard : public DashboardBench {};

QImage pictureOf(QWidget& widget) {
    return widget.grab().toImage();
}

TEST_F(Dashboard, HasAWidgetForEveryControlThatIsToBeSeen) {
    open();
    // It only carries a picture.
    const std::set<std::string> unseen = {"picTest"};
    std::vector<std::string> missing;
    for (const Control* control : bench.gui.controls()) {
        if (dynamic_cast<const Timer*>(control) != nullptr || unseen.contains(control->name())) continue;
        if (window->findChild<QWidget*>(QString::fromStdString(control->name())) == nullptr)
            missing.push_back(control->name());
    }
    EXPECT_THAT(missing, IsEmpty());
}

TEST_F(Dashboard, HasEveryGroup) {
    open();
    for (const char* name : {"fra(0)", "fra(1)", "fra(2)", "fra(3)", "fra(4)", "fra(5)", "fra(7)", "fra(8)",
                             "fra(9)", "fra(10)", "fra(11)", "fra(12)", "fra(13)", "frmMotor", "fraNetwork",
                             "fraBat", "fraSetting", "fraSensor", "fraMapDisplay"})
        EXPECT_NE(window->findChild<QWidget*>(name), nullptr) << name;
}

TEST_F(Dashboard, GivesEveryGroupANameToBeReadAloud) {
    open();
    for (const char* name : {"fra(0)", "fra(1)", "fra(2)", "fra(5)", "fra(9)", "fra(13)"}) {
        EXPECT_FALSE(find(name).accessibleName().isEmpty()) << name;
        EXPECT_NE(find(name).accessibleName(), name);
    }
}

TEST_F(Dashboard, TellsWhereTheFloorPlanStandsAlsoWhenOnlyWhatHoldsItHasMoved) {
    open(1280, 764);
    for (const int height : {900, 764, 1100}) {
        window->resize(1280, height);
        settle();
        const QWidget& plan = find("fraMapDisplay");
        const QPoint place = plan.mapTo(window.get(), QPoint(0, 0));
        const Area& told = bench.gui.fraMapDisplay.area();
        EXPECT_EQ(told.left, place.x() * kTwipsPerPixel);
        EXPECT_EQ(told.top, place.y() * kTwipsPerPixel);
    }
}

TEST_F(Dashboard, OpensAndClosesTheSettingsByItsKey) {
    open();
    EXPECT_FALSE(window->settings().isVisible());
    click("cmdExpandSetting");
    EXPECT_TRUE(window->settings().isVisible());
    EXPECT_EQ(bench.gui.cmdExpandSetting.caption(), "Close Setting");
    click("cmdExpandSetting");
    EXPECT_FALSE(window->settings().isVisible());
    EXPECT_EQ(bench.gui.cmdExpandSetting.caption(), "Open Setting");
}

TEST_F(Dashboard, ClosesTheSettingsByTheirOwnKeySoThatOnePressOpensThemAgain) {
    open();
    click("cmdExpandSetting");
    click("cmdCloseSetting");
    EXPECT_FALSE(window->settings().isVisible());
    click("cmdExpandSetting");
    EXPECT_TRUE(window->settings().isVisible());
}

TEST_F(Dashboard, TellsTheFrameWhereTheSettingsAre) {
    open();
    click("cmdExpandSetting");
    const QRect place = window->settings().geometry();
    EXPECT_EQ(bench.gui.fraSetting.area(),
              (Area{place.x() * 15, place.y() * 15, place.width() * 15, place.height() * 15}));
}

TEST_F(Dashboard, OpensTheEngineeringViewByAShortcutThatTouchesNothingOfTheStation) {
    open();
    bench.take();
    bool acted = false;
    bench.gui.onOperatorAct = [&acted](const OperatorAct&) { acted = true; };
    press(Qt::Key_F9);
    EXPECT_TRUE(window->engineering().isVisible());
    EXPECT_FALSE(bench.gui.fraSensor.visible());
    EXPECT_FALSE(acted);
    EXPECT_THAT(bench.take(), IsEmpty());
}

TEST_F(Dashboard, ClosesTheEngineeringViewByItsShortcutAsWellAsByItsKey) {
    open();
    press(Qt::Key_F9);
    press(Qt::Key_F9);
    EXPECT_FALSE(window->engineering().isVisible());
    press(Qt::Key_F9);
    click("cmdCloseSensor");
    EXPECT_FALSE(window->engineering().isVisible());
}

TEST_F(Dashboard, ShowsTheEngineeringViewWhenTheFormDoes) {
    open();
    bench.gui.fraSensor.setVisible(true);
    EXPECT_TRUE(window->engineering().isVisible());
    click("cmdCloseSensor");
    EXPECT_FALSE(window->engineering().isVisible());
    EXPECT_FALSE(bench.gui.fraSensor.visible());
}

TEST_F(Dashboard, BlinksALampInTheFormsColoursWhileItsWordStands) {
    open();
    auto& lamp = find<Lamp>("shpBatteryStatus(0)");
    bench.values.tiLinkUp = true;
    bench.values.battery1Flash = true;
    bench.gui.shpBatteryStatus(0).setFill(255);
    window->refresh();
    const std::string word = lamp.sign().word;
    EXPECT_FALSE(word.empty());
    const QImage red = pictureOf(lamp);
    bench.clock.runFor(200);
    window->refresh();
    EXPECT_EQ(lamp.fill(), 8454016);
    EXPECT_NE(pictureOf(lamp), red);
    EXPECT_EQ(lamp.sign().word, word);
    bench.clock.runFor(200);
    window->refresh();
    EXPECT_EQ(lamp.fill(), 255);
    EXPECT_EQ(pictureOf(lamp), red);
}

TEST_F(Dashboard, ToolbarOpensTheAboutForm) {
    open();
    click("Toolbar1.Help");
    EXPECT_FALSE(bench.station.about.shown());
    click("Toolbar1.About");
    EXPECT_TRUE(bench.station.about.shown());
    EXPECT_TRUE(bench.values.aboutOpen);
}

TEST_F(Dashboard, RepaintsEverythingWhenTheThemeIsSwitched) {
    open();
    const QImage light = pictureOf(*window);
    press(Qt::Key_F8, Qt::ShiftModifier);
    ASSERT_TRUE(currentTheme().dark);
    const QImage dark = pictureOf(*window);
    // The ground between the groups, and a group.
    EXPECT_EQ(light.pixelColor(1, light.height() / 2), lightTheme().window);
    EXPECT_EQ(dark.pixelColor(1, dark.height() / 2), darkTheme().window);
    press(Qt::Key_F8, Qt::ControlModifier);
    EXPECT_EQ(pictureOf(*window), light);
}

TEST_F(Dashboard, OffersTheReviewKeysButDisabled) {
    open();
    click("cmdExpandSetting");
    for (const char* name : {"cmdPlay", "cmdPause", "cmdStopReview", "cmdForward", "cmdBackward"}) {
        EXPECT_TRUE(find(name).isVisible()) << name;
        EXPECT_FALSE(find(name).isEnabled()) << name;
    }
}

TEST_F(Dashboard, TellsTheFormOfTalkBeingPressedAndReleasedOutsideTheKey) {
    open();
    std::vector<OperatorAct::Kind> acted;
    int pressed = 0;
    int released = 0;
    bench.gui.cmdTalk.setEnabled(true);
    bench.gui.cmdTalk.onMouseDown = [&pressed] { ++pressed; };
    bench.gui.cmdTalk.onMouseUp = [&released] { ++released; };
    QWidget& talk = find("cmdTalk");
    QTest::mousePress(&talk, Qt::LeftButton, {}, talk.rect().center());
    settle();
    EXPECT_EQ(pressed, 1);
    EXPECT_EQ(released, 0);
    QTest::mouseRelease(&talk, Qt::LeftButton, {}, QPoint(-50, -50));
    settle();
    EXPECT_EQ(released, 1);
}

TEST_F(Dashboard, ShowsWhatTheOperatorTypesAsThePositionToTheForm) {
    open();
    click("cmdExpandSetting");
    auto& box = find<QLineEdit>("txtRobotCurrX");
    box.setFocus();
    box.selectAll();
    QTest::keyClicks(&box, "2.5");
    QTest::keyClick(&box, Qt::Key_Return);
    settle();
    EXPECT_EQ(bench.gui.txtRobotCurrX.text(), "2.5");
}

TEST_F(Dashboard, SaysInTheStripWhichModeTheRobotIsIn) {
    open();
    auto& mode = find<GlanceTile>("glance.0");
    bench.values.tickEnabled = true;
    bench.values.robotMode = 10;
    window->refresh();
    EXPECT_EQ(mode.glance().word, "wondering");
    EXPECT_EQ(mode.accessibleDescription().toStdString().substr(0, 9), "wondering");
}

TEST_F(Dashboard, ShowsAVisibleSignWhileARemoteClientIsConnected) {
    open();
    auto& remote = find<GlanceTile>("glance.8");
    window->refresh();
    EXPECT_EQ(remote.glance().tone, Tone::off);
    const QImage alone = pictureOf(remote);
    bench.gui.ConnectionList.add("10.0.0.7  [50000] - [7060]", 1);
    window->refresh();
    EXPECT_EQ(remote.glance().tone, Tone::good);
    EXPECT_NE(pictureOf(remote), alone);
}

TEST_F(Dashboard, NamesEverythingThatCanBeReachedForThoseWhoDoNotSeeIt) {
    open();
    std::vector<std::string> nameless;
    for (const QWidget* widget : window->findChildren<QWidget*>()) {
        // The lists that drop down are the toolkit's.
        if (widget->window() != window.get()) continue;
        const bool reached = widget->focusPolicy() != Qt::NoFocus && !widget->objectName().startsWith("qt_");
        if (reached && widget->accessibleName().isEmpty())
            nameless.push_back(widget->objectName().toStdString());
    }
    EXPECT_THAT(nameless, IsEmpty());
}

TEST_F(Dashboard, DrawsOnlyWhileItsWindowIsShown) {
    open();
    EXPECT_TRUE(window->drawing());
    window->hide();
    EXPECT_FALSE(window->drawing());
    window->show();
    EXPECT_TRUE(window->drawing());
}

TEST_F(Dashboard, ShowsWhatHasChangedWhileItWasHiddenAsSoonAsItIsShown) {
    open();
    window->hide();
    bench.values.tickEnabled = true;
    bench.values.robotMode = 10;
    window->show();
    EXPECT_EQ(find<GlanceTile>("glance.0").glance().word, "wondering");
}

TEST_F(Dashboard, WritesTheModeOnTheModeKeyAndSaysIt) {
    open();
    auto& key = find<Command>("cmdChEn");
    for (const auto& [picture, caption] :
         {std::pair(1, "Mode: wondering"), {3, "Mode: JOY"}, {2, "Mode: IDLE"}}) {
        bench.gui.cmdChEn.setPicture(picture);
        EXPECT_EQ(key.caption().toStdString(), caption);
        EXPECT_EQ(key.accessibleName().toStdString(), caption);
    }
    EXPECT_EQ(bench.gui.cmdChEn.caption(), "") << "the form's own key has a picture only";
}

TEST_F(Dashboard, KeepsTheModeOnTheModeKeyWhenItIsClicked) {
    open();
    bench.gui.cmdChEn.setPicture(2);
    click("cmdChEn");
    EXPECT_EQ(find<Command>("cmdChEn").caption().toStdString(), "Mode: IDLE");
}

TEST_F(Dashboard, ClosesTheEngineeringViewByTheShortcutOfItsKey) {
    open();
    press(Qt::Key_F9);
    press(Qt::Key_F9, Qt::ShiftModifier);
    EXPECT_FALSE(window->engineering().isVisible());
}

TEST_F(Dashboard, DrawsThePictureOfAStopKeyInTheColourOfItsCaptionInBothLooks) {
    open();
    press(Qt::Key_F9);
    auto& stop = find<Command>("cmdStop");
    stop.setCaption("");
    for (const Theme* theme : {&lightTheme(), &darkTheme()}) {
        applyTheme(*qApp, *theme);
        settle();
        const QImage picture = pictureOf(stop);
        int dots = 0;
        for (int y = 0; y < picture.height(); ++y)
            for (int x = 0; x < picture.width(); ++x)
                dots += picture.pixelColor(x, y) == stop.captionColour() ? 1 : 0;
        EXPECT_GT(dots, 20) << theme->dark;
    }
}

TEST_F(Dashboard, ScrollsItsFoldOutsWhereTheRoomIsTooSmall) {
    look.wear(lightTheme(), 4.0 / 3);
    open(1000, 560);
    click("cmdExpandSetting");
    press(Qt::Key_F9);
    for (FoldOut* panel : {&window->settings(), &window->engineering()}) {
        ASSERT_TRUE(panel->isVisible());
        // Lower than any window that shows them whole.
        panel->resize(600, 300);
        settle();
        auto& area = *panel->findChild<QScrollArea*>();
        auto& tabs = *panel->findChild<QTabBar*>();
        int reached = 0;
        for (int page = 0; page < tabs.count(); ++page) {
            tabs.setCurrentIndex(page);
            settle();
            EXPECT_GT(area.verticalScrollBar()->maximum(), 0) << page;
            for (QWidget* widget : area.widget()->findChildren<QWidget*>()) {
                // The lists that drop down are the toolkit's.
                if (widget->window() != window.get() || (widget->focusPolicy() & Qt::TabFocus) == 0) continue;
                if (!widget->isVisible()) continue;
                const QPoint middle = widget->mapTo(area.widget(), widget->rect().center());
                area.ensureVisible(middle.x(), middle.y(), widget->width() / 2 + 1, widget->height() / 2 + 1);
                const QRect seen(widget->mapTo(area.viewport(), QPoint(0, 0)), widget->size());
                EXPECT_TRUE(area.viewport()->rect().contains(seen)) << widget->objectName().toStdString();
                ++reached;
            }
        }
        EXPECT_GT(reached, 10);
    }
}

TEST_F(Dashboard, IsReachedByTabInReadingOrder) {
    open();
    QWidget& first = find("Toolbar1.Help");
    first.setFocus();
    QTest::keyClick(&first, Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), &find("Toolbar1.About"));
}

}  // namespace
}  // namespace quorrin

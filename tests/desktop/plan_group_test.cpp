// The group of the floor plan with real widgets: what the operator does to it with mouse, wheel and keys.
#include "desktop/forms/plan_group.h"

#include <gtest/gtest.h>

#include <QScrollBar>
#include <QTest>
#include <QVBoxLayout>
#include <QWheelEvent>

#include "console/floor_plan.h"
#include "desktop/binding/twips.h"
#include "desktop/theme/theme.h"
#include "desktop/widgets/map_overview.h"
#include "platform/host/posix_files.h"
#include "platform/virtual/virtual_clock.h"
#include "support/temp_folder.h"

namespace quorrin {
namespace {

constexpr int kPlanWidth = 705;
constexpr int kPlanHeight = 650;

struct PlanForm : Form, MapControls {
    PlanForm() : Form("frmGUI"), MapControls(static_cast<Form&>(*this)) {}
};

struct PlanGroup : testing::Test {
    TempFolder folder;
    PosixFiles files;
    VirtualClock clock;
    OperatorActs acts{clock};
    PlanForm form;
    QWidget window;
    ControlFactory controls{acts, form};
    Placing place{controls, form, acts};
    Group* group = nullptr;
    MapOverview* overview = nullptr;

    void SetUp() override {
        draw("office.bmp", kPlanWidth, kPlanHeight);
        draw("office_s.bmp", 168, 155);
        bindFloorPlan(form);
        loadFloorPlan(form, folder.path(), files);
        form.show();
        group = planGroup(place, form);
        overview = new MapOverview(controls, form, &window);
        auto* const column = new QVBoxLayout(&window);
        column->addWidget(group, 1);
        column->addWidget(overview);
        window.resize(420, 560);
        window.show();
        settle();
    }
    void draw(const char* name, int width, int height) {
        QImage image(width, height, QImage::Format_RGB32);
        image.fill(Qt::lightGray);
        image.setPixelColor(0, 0, Qt::red);
        ASSERT_TRUE(image.save(QString::fromStdString(folder.path() + "/" + name)));
    }
    // Lets Qt hand on what it has, and everything that the operator has done have its effect.
    void settle() {
        QCoreApplication::processEvents();
        clock.runFor(0);
    }
    QWidget& named(const char* name) { return *window.findChild<QWidget*>(name); }
    QWidget& viewport() { return named("Frame1"); }
    QWidget& plan() { return named("picRobotMap"); }
    QScrollBar& bar(const char* name) { return *window.findChild<QScrollBar*>(name); }

    void wheel(QPoint way, Qt::KeyboardModifiers keys = Qt::NoModifier) {
        const QPointF middle = viewport().rect().center();
        QWheelEvent event(middle, viewport().mapToGlobal(middle), QPoint(), way, Qt::NoButton, keys,
                          Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&viewport(), &event);
        settle();
    }
    void drag(QPoint from, QPoint to) {
        QTest::mousePress(&viewport(), Qt::LeftButton, Qt::NoModifier, from);
        QMouseEvent move(QEvent::MouseMove, to, viewport().mapToGlobal(to), Qt::NoButton, Qt::LeftButton,
                         Qt::NoModifier);
        QCoreApplication::sendEvent(&viewport(), &move);
        QTest::mouseRelease(&viewport(), Qt::LeftButton, Qt::NoModifier, to);
        settle();
    }
};

TEST_F(PlanGroup, TheGroupHasItsTitleAndEveryWidgetItsControlsName) {
    EXPECT_EQ(window.findChild<ShadowLabel*>("fraMapDisplay.title")->caption(), "Whole Layout Picture");
    for (const char* name :
         {"fraMapDisplay", "Frame1", "picRobotMap", "imgThumb", "HScroll1", "VScroll1", "RoomPic"})
        EXPECT_NE(window.findChild<QWidget*>(name), nullptr) << name;
}

TEST_F(PlanGroup, TheTravelIsThePlanLessTheRealViewport) {
    EXPECT_EQ(form.HScroll1.maximum(), (kPlanWidth - viewport().width()) * kTwipsPerPixel);
    EXPECT_EQ(form.VScroll1.maximum(), (kPlanHeight - viewport().height()) * kTwipsPerPixel);
    EXPECT_EQ(bar("HScroll1").maximum(), form.HScroll1.maximum());
    EXPECT_EQ(bar("VScroll1").maximum(), form.VScroll1.maximum());
}

TEST_F(PlanGroup, TheFormKnowsWhereViewportAndGroupAre) {
    EXPECT_EQ(form.Frame1.area(), twips(QRect(viewport().mapTo(&window, QPoint(0, 0)), viewport().size())));
    EXPECT_EQ(form.fraMapDisplay.area(), twips(QRect(group->mapTo(&window, QPoint(0, 0)), group->size())));
}

TEST_F(PlanGroup, ALargerWindowLeavesLessTravel) {
    const int before = form.HScroll1.maximum();
    window.resize(520, 560);
    settle();
    EXPECT_EQ(form.HScroll1.maximum(), before - 100 * kTwipsPerPixel);
}

TEST_F(PlanGroup, AVeryLargeWindowStillLeavesTravelInBothDirections) {
    window.resize(1600, 1200);
    settle();
    EXPECT_GT(form.HScroll1.maximum(), form.HScroll1.minimum());
    EXPECT_GT(form.VScroll1.maximum(), form.VScroll1.minimum());
    EXPECT_LT(viewport().width(), kPlanWidth);
}

TEST_F(PlanGroup, TheScrollBarMovesThePlan) {
    bar("HScroll1").setValue(750);
    settle();
    EXPECT_EQ(form.HScroll1.value(), 750);
    EXPECT_EQ(form.picRobotMap.area().left, -750);
    EXPECT_EQ(plan().x(), -50);
    bar("VScroll1").setValue(1500);
    settle();
    EXPECT_EQ(plan().y(), -100);
}

TEST_F(PlanGroup, ADragMovesThePlanWithTheMouse) {
    drag({200, 150}, {160, 130});
    EXPECT_EQ(form.HScroll1.value(), 1 + 40 * kTwipsPerPixel);
    EXPECT_EQ(form.VScroll1.value(), 1 + 20 * kTwipsPerPixel);
    EXPECT_EQ(plan().pos(), QPoint(-40, -20));
    EXPECT_EQ(bar("HScroll1").value(), form.HScroll1.value());
}

TEST_F(PlanGroup, ADragStopsAtThePlansEdge) {
    drag({10, 10}, {200, 150});
    EXPECT_EQ(form.HScroll1.value(), 1);
    EXPECT_EQ(form.VScroll1.value(), 1);
}

TEST_F(PlanGroup, AfterTheReleaseTheMouseMovesNothing) {
    drag({200, 150}, {160, 150});
    const int value = form.HScroll1.value();
    QTest::mouseMove(&viewport(), QPoint(20, 20));
    settle();
    EXPECT_EQ(form.HScroll1.value(), value);
}

TEST_F(PlanGroup, TheWheelMovesThePlanUpAndDownAndWithShiftSideways) {
    wheel({0, -120});
    EXPECT_EQ(form.VScroll1.value(), 301);
    wheel({0, -120}, Qt::ShiftModifier);
    EXPECT_EQ(form.HScroll1.value(), 301);
    EXPECT_EQ(form.VScroll1.value(), 301);
    wheel({0, 120});
    EXPECT_EQ(form.VScroll1.value(), 1);
}

TEST_F(PlanGroup, TheArrowKeysMoveThePlan) {
    viewport().setFocus();
    QTest::keyClick(&viewport(), Qt::Key_Right);
    QTest::keyClick(&viewport(), Qt::Key_PageDown);
    settle();
    EXPECT_EQ(form.HScroll1.value(), 301);
    EXPECT_EQ(form.VScroll1.value(), 1501);
}

TEST_F(PlanGroup, TheFocusedPlanWearsARing) {
    const auto ring = [this] {
        QWidget& scroller = *viewport().parentWidget();
        return scroller.grab().toImage().pixelColor(viewport().pos() + QPoint(50, -1));
    };
    window.activateWindow();
    settle();
    viewport().setFocus();
    settle();
    EXPECT_EQ(ring(), currentTheme().focus);
    bar("HScroll1").setFocusPolicy(Qt::StrongFocus);
    bar("HScroll1").setFocus();
    settle();
    EXPECT_NE(ring(), currentTheme().focus);
}

TEST_F(PlanGroup, EverythingComesThroughTheOperatorsDoor) {
    std::vector<std::string> deeds;
    form.onOperatorAct = [&](const OperatorAct& act) { deeds.push_back(act.control->name()); };
    bar("HScroll1").setValue(300);
    EXPECT_TRUE(deeds.empty());  // not before its turn
    settle();
    wheel({0, -120});
    drag({100, 100}, {90, 90});
    EXPECT_EQ(deeds, (std::vector<std::string>{"HScroll1", "VScroll1", "HScroll1", "VScroll1"}));
}

TEST_F(PlanGroup, AFormThatIsNotShownKeepsItsPlan) {
    form.hide();
    drag({200, 150}, {160, 130});
    EXPECT_EQ(form.HScroll1.value(), 1);
    EXPECT_EQ(plan().pos(), QPoint(0, 0));
}

TEST_F(PlanGroup, TheProgramsOwnMoveIsShown) {
    form.HScroll1.setValue(1500);
    form.VScroll1.setValue(600);
    settle();
    EXPECT_EQ(plan().pos(), QPoint(-100, -40));
    EXPECT_EQ(bar("HScroll1").value(), 1500);
}

TEST_F(PlanGroup, TheOverviewFramesThePartThatIsSeen) {
    const QRect whole = overview->picturePlace();
    ASSERT_EQ(whole.size(), QSize(168, 155));
    EXPECT_EQ(overview->seenFrame().topLeft(), whole.topLeft());
    EXPECT_NEAR(overview->seenFrame().width(), 168.0 * viewport().width() / kPlanWidth, 1);
    bar("HScroll1").setValue(form.HScroll1.maximum());
    bar("VScroll1").setValue(form.VScroll1.maximum());
    settle();
    EXPECT_NEAR(overview->seenFrame().right(), whole.right(), 1);
    EXPECT_NEAR(overview->seenFrame().bottom(), whole.bottom(), 1);
}

TEST_F(PlanGroup, TheOverviewTellsTheFormWhereItStands) {
    EXPECT_EQ(form.imgThumb.area(), twips(overview->picturePlace().translated(overview->pos())));
}

TEST_F(PlanGroup, ThePlanIsSeenThroughTheViewport) {
    const QImage seen = viewport().grab().toImage();
    EXPECT_EQ(seen.pixelColor(0, 0), QColor(Qt::red));
    EXPECT_EQ(seen.pixelColor(50, 50), QColor(Qt::lightGray));
    bar("HScroll1").setValue(750);
    settle();
    EXPECT_EQ(viewport().grab().toImage().pixelColor(0, 0), QColor(Qt::lightGray));
}

TEST_F(PlanGroup, WhatIsDrawnOnThePlanIsSeenAndScrollsWithIt) {
    form.picRobotMap.drawCircle({1500, 1500, 450, rgb(0, 0, 255)});
    const auto onTheCircle = [this](int x, int y) {
        return viewport().grab().toImage().pixelColor(x, y).blue() -
               viewport().grab().toImage().pixelColor(x, y).red();
    };
    EXPECT_GT(onTheCircle(130, 100) + onTheCircle(129, 100), 60);
    bar("HScroll1").setValue(750);
    settle();
    EXPECT_GT(onTheCircle(80, 100) + onTheCircle(79, 100), 60);
    form.picRobotMap.clearDrawing();
    EXPECT_EQ(onTheCircle(80, 100) + onTheCircle(79, 100), 0);
}

TEST_F(PlanGroup, HoldsThePlanThatIsBuiltInAndNeverChanges) {
    const auto builtIn = [this] { return named("RoomPic").grab().toImage(); };
    const QImage before = builtIn();
    QImage empty = before;
    empty.fill(before.pixelColor(0, 0));
    EXPECT_NE(before, empty) << "nothing is drawn";
    draw("office.bmp", kPlanWidth / 2, kPlanHeight / 2);
    loadFloorPlan(form, folder.path(), files);
    form.picRobotMap.drawCircle({1500, 1500, 450, rgb(255, 0, 0)});
    settle();
    EXPECT_EQ(builtIn(), before);
    EXPECT_TRUE(form.RoomPic.drawing().empty());
}

TEST_F(PlanGroup, ARefreshReadsNoFileAgain) {
    draw("office.bmp", kPlanWidth, kPlanHeight);
    QImage other(kPlanWidth, kPlanHeight, QImage::Format_RGB32);
    other.fill(Qt::green);
    ASSERT_TRUE(other.save(QString::fromStdString(folder.path() + "/office.bmp")));
    form.picRobotMap.refresh();
    settle();
    EXPECT_EQ(viewport().grab().toImage().pixelColor(50, 50), QColor(Qt::lightGray));
}

}  // namespace
}  // namespace quorrin

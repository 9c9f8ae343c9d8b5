#include "desktop/views/grid_view.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QImage>
#include <QMouseEvent>
#include <QWheelEvent>

#include "desktop/theme/theme.h"
#include "support/navigation_station.h"

namespace quorrin {
namespace {

class GridViewTest : public testing::Test, protected NavigationStation {
  protected:
    GridViewTest() {
        view_.resize(400, 400);
        view_.refresh();
    }
    QImage drawn() { return view_.grab().toImage(); }
    // The colour of the cell of that number.
    QColor cell(int x, int y) {
        const ViewPoint place = view_.window().toView({(x - 80) * 0.1, (y - 80) * 0.1}, {400, 400});
        return drawn().pixelColor(static_cast<int>(place.x), static_cast<int>(place.y));
    }
    void mouse(QEvent::Type type, QPointF at) {
        const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
        QMouseEvent event(type, at, view_.mapToGlobal(at), button, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&view_, &event);
    }
    void wheel(int steps) {
        QWheelEvent event(QPointF(100, 100), view_.mapToGlobal(QPointF(100, 100)), {}, {0, steps * 120},
                          Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&view_, &event);
    }
    LiveSource source_{values, controls, [] { return nullptr; }, clock};
    GridView view_{source_};
};

TEST_F(GridViewTest, AMarkedCellIsDrawnWhereItLies) {
    values.certaintyGrid[93][88] = 15;
    view_.refresh();
    const ViewColours colours = viewColours(view_.palette());
    EXPECT_EQ(cell(93, 88).rgb(), colours.ink.rgb());
    EXPECT_EQ(cell(93, 72).rgb(), colours.paper.rgb());
}

TEST_F(GridViewTest, TheSurerTheObstacleTheFartherFromThePaper) {
    values.certaintyGrid[93][88] = 3;
    values.certaintyGrid[93][92] = 12;
    view_.refresh();
    const ViewColours colours = viewColours(view_.palette());
    EXPECT_GT(contrast(cell(93, 92), colours.paper), contrast(cell(93, 88), colours.paper));
    EXPECT_GT(contrast(cell(93, 88), colours.paper), 1.3);
}

TEST_F(GridViewTest, OnlyChangedCellsAreDrawnAnew) {
    values.certaintyGrid[90][90] = 4;
    view_.refresh();
    EXPECT_EQ(view_.cellsDrawn(), 1);
    view_.refresh();
    EXPECT_EQ(view_.cellsDrawn(), 1);
    values.certaintyGrid[90][90] = 3;
    view_.refresh();
    EXPECT_EQ(view_.cellsDrawn(), 2);
}

TEST_F(GridViewTest, AnotherLookDrawsTheOldCellsInItsColours) {
    values.certaintyGrid[93][88] = 15;
    view_.refresh();
    QPalette dark = view_.palette();
    dark.setColor(QPalette::Window, Qt::black);
    dark.setColor(QPalette::WindowText, Qt::white);
    view_.setPalette(dark);
    EXPECT_EQ(cell(93, 88).rgb(), darkTheme().text.rgb());
    EXPECT_EQ(cell(93, 72).rgb(), darkTheme().field.rgb());
}

TEST_F(GridViewTest, FollowsTheRobot) {
    values.robotX = 1.5;
    view_.refresh();
    EXPECT_DOUBLE_EQ(view_.window().centre().x_m, 1.5);
}

TEST_F(GridViewTest, TheWheelZooms) {
    wheel(2);
    EXPECT_LT(view_.window().span_m(), GridWindow::kStartSpan_m);
    wheel(-4);
    EXPECT_GT(view_.window().span_m(), GridWindow::kStartSpan_m);
}

TEST_F(GridViewTest, DraggingMovesThePictureAndStopsFollowing) {
    mouse(QEvent::MouseButtonPress, {200, 200});
    mouse(QEvent::MouseMove, {200, 250});
    EXPECT_FALSE(view_.window().following());
    EXPECT_NEAR(view_.window().centre().x_m, 0.5, 1e-9);
}

TEST_F(GridViewTest, EveryDeedIsInTheMenuWithItsKey) {
    ASSERT_EQ(view_.actions().size(), static_cast<qsizetype>(gridDeeds().size()));
    for (qsizetype i = 0; i < view_.actions().size(); ++i) {
        const DeedWords& words = gridDeeds()[static_cast<std::size_t>(i)];
        EXPECT_EQ(view_.actions()[i]->text(), words.caption);
        EXPECT_EQ(view_.actions()[i]->shortcut(), QKeySequence(words.key));
        EXPECT_FALSE(view_.actions()[i]->shortcut().isEmpty());
    }
}

TEST_F(GridViewTest, TheMenuShowsAllAndFollowsAgain) {
    view_.actions()[1]->trigger();
    EXPECT_FALSE(view_.window().following());
    EXPECT_DOUBLE_EQ(view_.window().span_m(), GridWindow::kGridSpan_m);
    view_.actions()[0]->trigger();
    EXPECT_TRUE(view_.window().following());
}

TEST_F(GridViewTest, APoseThatIsNoPlaceIsLeftOut) {
    values.robotX = std::nan("");
    view_.refresh();
    EXPECT_FALSE(drawn().isNull());
    EXPECT_TRUE(view_.window().following());
}

TEST_F(GridViewTest, LinesAndWordsKeepTheirContrastOnBothPapers) {
    for (const Theme* theme : {&lightTheme(), &darkTheme()}) {
        QPalette palette;
        palette.setColor(QPalette::Window, theme->window);
        palette.setColor(QPalette::WindowText, theme->text);
        const ViewColours colours = viewColours(palette);
        for (const QColor& letters : {colours.ink, colours.quiet}) {
            EXPECT_GE(contrast(letters, colours.paper), 4.5);
        }
        for (const QColor& line : {colours.infrared, colours.sonar, colours.blocked, colours.free,
                                   colours.guidance, colours.robot, colours.focus})
            EXPECT_GE(contrast(line, colours.paper), 3) << line.name().toStdString();
        for (const QColor& trace : colours.traces) EXPECT_GE(contrast(trace, colours.paper), 4.5);
    }
}

}  // namespace
}  // namespace quorrin

// Dragging windows by their bodies.
#include "console/window_drag.h"

#include <gtest/gtest.h>

#include "base/program_error.h"
#include "platform/virtual/virtual_clock.h"

namespace quorrin {
namespace {

struct WindowDragging : testing::Test {
    VirtualClock clock;
    Form form{"frmA"};
    Form other{"frmB"};
    DragState state;
    WindowDrag drag{clock, form, state};
    WindowDrag otherDrag{clock, other, state};
    ScreenPlace cursor;

    void SetUp() override {
        form.setArea({1000, 2000, 300, 400});
        other.setArea({5000, 6000, 700, 800});
        form.show();
        other.show();
    }
    void move(ScreenPlace to) {
        cursor = to;
        drag.moved([this] { return cursor; });
    }
};

TEST_F(WindowDragging, MovesTheWindowAsFarAsTheCursorHasGoneSinceThePress) {
    drag.leftDown({1100, 2100});
    EXPECT_TRUE(drag.windowDragging());
    move({1150, 2090});
    EXPECT_EQ(form.area(), (Area{1050, 1990, 300, 400}));
    move({1000, 3000});
    EXPECT_EQ(form.area(), (Area{900, 2900, 300, 400}));
}

TEST_F(WindowDragging, EndsWithTheButton) {
    drag.leftDown({0, 0});
    drag.leftUp();
    EXPECT_FALSE(drag.windowDragging());
    move({50, 50});
    EXPECT_EQ(form.area().left, 1000);
}

TEST_F(WindowDragging, MovesNothingWithoutAPress) {
    move({50, 50});
    EXPECT_EQ(form.area(), (Area{1000, 2000, 300, 400}));
}

TEST_F(WindowDragging, GoesToWhereTheCursorIsAfterPendingEventsHaveRun) {
    drag.leftDown({0, 0});
    clock.arriveAt(0, [this] { cursor = {70, 80}; });
    move({10, 10});
    EXPECT_EQ(form.area().left, 1070);
    EXPECT_EQ(form.area().top, 2080);
}

TEST_F(WindowDragging, AMoveInsideAMoveDoesNothing) {
    drag.leftDown({0, 0});
    std::int32_t leftInside = -1;
    int reads = 0;
    clock.arriveAt(0, [&] {
        drag.moved([&] {
            ++reads;
            return ScreenPlace{500, 500};
        });
        leftInside = form.area().left;
    });
    move({10, 10});
    EXPECT_EQ(reads, 0);
    EXPECT_EQ(leftInside, 1000);
    EXPECT_EQ(form.area().left, 1010);
    move({20, 20});
    EXPECT_EQ(form.area().left, 1020);
}

TEST_F(WindowDragging, EachFormHasABusyFlagOfItsOwn) {
    drag.leftDown({0, 0});
    clock.arriveAt(0, [this] { otherDrag.moved([] { return ScreenPlace{30, 40}; }); });
    move({10, 10});
    // The press was on the first window, and its rectangle goes for both.
    EXPECT_EQ(other.area(), (Area{1030, 2040, 700, 800}));
}

TEST_F(WindowDragging, AFailureInAPendingEventLeavesTheWindowMovable) {
    drag.leftDown({0, 0});
    clock.arriveAt(0, [] { throw ProgramError("x"); });
    EXPECT_THROW(move({10, 10}), ProgramError);
    move({20, 20});
    EXPECT_EQ(form.area().left, 1020);
}

TEST_F(WindowDragging, TheStateIsSharedByAllForms) {
    drag.leftDown({0, 0});
    EXPECT_TRUE(otherDrag.windowDragging());
    otherDrag.leftDown({100, 100});
    otherDrag.moved([] { return ScreenPlace{110, 120}; });
    EXPECT_EQ(other.area().left, 5010);
    EXPECT_EQ(other.area().top, 6020);
    otherDrag.leftUp();
    EXPECT_FALSE(drag.windowDragging());
}

TEST_F(WindowDragging, AFormThatIsNotShownIsNotDragged) {
    form.hide();
    drag.leftDown({0, 0});
    EXPECT_FALSE(drag.windowDragging());
}

TEST_F(WindowDragging, AFormThatWasHiddenWhileItWasDraggedStaysWhereItWas) {
    drag.leftDown({0, 0});
    form.hide();
    move({50, 50});
    EXPECT_EQ(form.area().left, 1000);
}

TEST_F(WindowDragging, TellsTheView) {
    int told = 0;
    form.onMoved = [&told] { ++told; };
    drag.leftDown({0, 0});
    move({10, 10});
    EXPECT_EQ(told, 1);
}

}  // namespace
}  // namespace quorrin

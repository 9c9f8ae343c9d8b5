// What the windows do before the station holds still.
#include <gtest/gtest.h>

#include <QLabel>
#include <QTimer>

#include "desktop/paint_now.h"
#include "desktop/station_window_bench.h"
#include "desktop/window_bench.h"

namespace quorrin {
namespace {

// Remembers the text that was painted last.
struct PaintedLabel : QLabel {
    using QLabel::QLabel;
    void paintEvent(QPaintEvent* event) override {
        painted = text().toStdString();
        QLabel::paintEvent(event);
    }
    std::string painted;
};

struct BeforeABlock : WindowBench {
    BeforeABlock() {
        label = new PaintedLabel;
        bind(*label, form.lblState, acts);
        row->addWidget(label);
        settle();
        clock.setBeforeBlock([] { paintDirtyWindows(); });
    }
    PaintedLabel* label = nullptr;
};

TEST_F(BeforeABlock, ANewTextIsPainted) {
    form.lblState.setCaption("comm wrong");
    ASSERT_EQ(label->painted, "idle");
    clock.block(1000);
    EXPECT_EQ(label->painted, "comm wrong");
}

TEST_F(BeforeABlock, ALongerTextGetsItsRoomFirst) {
    const int before = label->sizeHint().width();
    form.lblState.setCaption("a text that is much longer than the one before");
    clock.block(1000);
    EXPECT_GE(label->width(), label->sizeHint().width());
    EXPECT_GT(label->sizeHint().width(), before);
}

TEST_F(BeforeABlock, WhatWasJustShownIsPainted) {
    auto* const sign = new PaintedLabel(QStringLiteral("closing"), &window);
    sign->hide();
    settle();
    sign->show();
    clock.block(1000);
    EXPECT_EQ(sign->painted, "closing");
}

TEST_F(BeforeABlock, WhatIsNotDirtyIsNotPainted) {
    clock.block(1000);
    label->painted = "untouched";
    clock.block(1000);
    EXPECT_EQ(label->painted, "untouched");
}

TEST_F(BeforeABlock, AClickThatWaitsIsNotDelivered) {
    auto& button = put<Command>("cmdGo");
    settle();
    int clicks = 0;
    button.onClick = [&] { ++clicks; };
    for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease})
        QCoreApplication::postEvent(
            &button, new QMouseEvent(type, QPointF(3, 3), button.mapToGlobal(QPointF(3, 3)), Qt::LeftButton,
                                     Qt::LeftButton, Qt::NoModifier));
    clock.block(1000);
    EXPECT_EQ(clicks, 0);
    settle();
    EXPECT_EQ(clicks, 1);
}

TEST_F(BeforeABlock, ADeedThatWaitsHasNoTurn) {
    acts.act([this] { form.lblState.setCaption("too early"); });
    clock.block(1000);
    EXPECT_EQ(form.lblState.caption(), "idle");
}

TEST_F(BeforeABlock, ATimerOfAWindowDoesNotFire) {
    int fired = 0;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&] { ++fired; });
    timer.start(0);
    clock.block(1000);
    EXPECT_EQ(fired, 0);
}

struct ClosingStation : testing::Test {
    ClosingStation() {
        bench.clock.setBeforeBlock([this] {
            bench.windows.beforeBlock();
            seen.push_back(sign() != nullptr && sign()->isVisible());
        });
        bench.startSession();
        bench.settle();
        seen.clear();
    }
    QWidget* sign() const { return bench.widget("frmGUI", "closingSign"); }
    void close(const std::function<void()>& deed) {
        bench.untilEnd([&] {
            deed();
            bench.settle();
        });
    }

    StationWindowBench bench;
    std::vector<bool> seen;  // whether each block was announced by the sign
};

TEST_F(ClosingStation, SaysSoBeforeItHoldsStill) {
    ASSERT_FALSE(sign()->isVisible());
    close([this] { bench.window("frmGUI")->close(); });
    ASSERT_EQ(seen, std::vector<bool>{true});
}

TEST_F(ClosingStation, AsksNothing) {
    bench.take();
    close([this] { bench.window("frmGUI")->close(); });
    EXPECT_TRUE(bench.ended);
    for (const std::string& line : bench.take()) EXPECT_NE(line.substr(0, 3), "box") << line;
}

TEST_F(ClosingStation, ClosesTheWindowsOfTheSecondaryForms) {
    bench.station.controlPanel.show();
    close([this] { bench.window("frmGUI")->close(); });
    EXPECT_FALSE(bench.station.controlPanel.shown());
}

TEST_F(ClosingStation, SaysNothingBeforeABlockOfARunningSession) {
    bench.clock.block(100);
    EXPECT_EQ(seen, std::vector<bool>{false});
}

}  // namespace
}  // namespace quorrin

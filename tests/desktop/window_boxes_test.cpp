// Message boxes as windows. Their own loop runs; the answer is given in it.
#include "desktop/forms/window_boxes.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include "base/program_error.h"
#include "platform/virtual/virtual_clock.h"

namespace quorrin {
namespace {

struct Boxes : testing::Test {
    // Does it to the box as soon as it stands.
    static void whenShown(std::function<void(QMessageBox&)> deed) {
        QTimer::singleShot(0, qApp, [deed] {
            auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_NE(box, nullptr);
            deed(*box);
        });
    }
    BoxAnswer ask() { return boxes.show("Accept the call?", "Remote", BoxButtons::yesNo); }

    VirtualClock clock;
    WindowBoxes boxes{clock, {}};
};

TEST_F(Boxes, AQuestionIsAnsweredByItsButtons) {
    whenShown([](QMessageBox& box) { QTest::mouseClick(box.button(QMessageBox::Yes), Qt::LeftButton); });
    EXPECT_EQ(ask(), BoxAnswer::yes);
    whenShown([](QMessageBox& box) { QTest::mouseClick(box.button(QMessageBox::No), Qt::LeftButton); });
    EXPECT_EQ(ask(), BoxAnswer::no);
}

TEST_F(Boxes, AQuestionThatIsClosedIsAnsweredWithNo) {
    whenShown([](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); });
    EXPECT_EQ(ask(), BoxAnswer::no);
}

TEST_F(Boxes, AMessageShowsItsWordsAndIsGoneWithOk) {
    QString text;
    whenShown([&](QMessageBox& box) {
        text = box.text();
        EXPECT_EQ(box.textFormat(), Qt::PlainText);
        QTest::mouseClick(box.button(QMessageBox::Ok), Qt::LeftButton);
    });
    EXPECT_EQ(boxes.show("No valid IP-address", "", BoxButtons::ok), BoxAnswer::ok);
    EXPECT_EQ(text, "No valid IP-address");
}

TEST_F(Boxes, WhatEndsTheProgramMeanwhileComesOut) {
    WindowBoxes ending(clock, [] { throw ProgramEnd{}; });
    whenShown([](QMessageBox& box) { box.accept(); });
    EXPECT_THROW(ending.show("text", "", BoxButtons::ok), ProgramEnd);
}

TEST_F(Boxes, TheClockIsArmedForTheBoxsLoop) {
    struct ArmedClock : VirtualClock {
        void armNested() override { armed = true; }
        bool armed = false;
    } armed;
    WindowBoxes armedBoxes(armed, {});
    whenShown([&](QMessageBox& box) {
        EXPECT_TRUE(armed.armed);
        box.accept();
    });
    armedBoxes.show("text", "", BoxButtons::ok);
    EXPECT_TRUE(armed.armed);
}

}  // namespace
}  // namespace quorrin

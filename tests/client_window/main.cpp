// The windows are tested on Qt's platform without a screen. Deeds and timers come by the virtual clock; Qt's
// own loop is never run.
#include <gtest/gtest.h>

#include <QApplication>

int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}

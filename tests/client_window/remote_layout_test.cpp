// Nothing of the client's window is cut off or covered, on a screen of 1280x800 and with a font a third
// larger; what the keyboard reaches has a name and shows that it has the focus.
#include <gmock/gmock.h>

#include <QAccessible>
#include <QShortcut>
#include <map>

#include "client_window/remote_window_bench.h"
#include "desktop/layout_faults.h"

namespace quorrin {
namespace {

using testing::IsEmpty;

constexpr QSize kSmallScreen(1280, 768);  // what a title bar leaves
constexpr double kLargerFont = 4.0 / 3;

class RemoteLayout : public RemoteWindowBench, public testing::WithParamInterface<double> {
  protected:
    RemoteLayout() { look.wear(lightTheme(), GetParam()); }
    void openOnScreen() { open(kSmallScreen.width(), kSmallScreen.height()); }
    void expectNoFaults(const std::string& what) {
        after(0);
        EXPECT_EQ(window->size(), kSmallScreen) << what;
        EXPECT_THAT(layoutFaults(*window, {}), IsEmpty()) << what;
    }
};

TEST_P(RemoteLayout, ShowsEverythingWholeAtStart) {
    openOnScreen();
    expectNoFaults("at start");
}

TEST_P(RemoteLayout, ShowsEverythingWholeWhileItDrives) {
    bench.load();
    openOnScreen();
    key(Qt::Key_Return);
    after(2000);
    bench.modeBecomes("wondering");
    down(Qt::Key_Up);
    bench.modeBecomes("JOY");
    expectNoFaults("driving");
}

TEST_P(RemoteLayout, HoldsTheLongestTexts) {
    bench.calls.setRoundTripMs(12345);
    bench.load();
    bench.clientSticks.attach();
    openOnScreen();
    key(Qt::Key_Return);
    after(2000);
    bench.gui.txtRobotCurrX.setText("-12345.67890");
    bench.gui.txtRobotCurrY.setText("-12345.67890");
    bench.gui.txtRobotCurrZ.setText("-12345.67890");
    bench.gui.txtHumanLocation.setText("an unknown place");
    bench.modeBecomes("an unknown mode");
    down(Qt::Key_Up);
    expectNoFaults("long texts");
    bench.calls.breakAll();
    expectNoFaults("lost");
    bench.calls.setReachable(false);
    after(10'000);
    expectNoFaults("no answer");
}

INSTANTIATE_TEST_SUITE_P(Fonts, RemoteLayout, testing::Values(1.0, kLargerFont),
                         [](const auto& tested) { return tested.param > 1 ? "Larger" : "Usual"; });

using RemoteAccess = RemoteWindowBench;

std::vector<QWidget*> reached(const QWidget& top) {
    std::vector<QWidget*> all;
    for (QWidget* widget : top.findChildren<QWidget*>()) {
        if (!widget->isVisible() || !widget->isEnabled()) continue;
        if ((widget->focusPolicy() & Qt::TabFocus) == 0 || widget->objectName().startsWith("qt_")) continue;
        all.push_back(widget);
    }
    return all;
}

TEST_F(RemoteAccess, WhatTheKeyboardReachesHasAName) {
    openConnected();
    const auto widgets = reached(*window);
    EXPECT_GE(widgets.size(), 9U);
    for (QWidget* widget : widgets) {
        QAccessibleInterface* const reader = QAccessible::queryAccessibleInterface(widget);
        ASSERT_NE(reader, nullptr);
        EXPECT_NE(reader->text(QAccessible::Name), QString()) << widget->objectName().toStdString();
        EXPECT_NE(widget->objectName(), QString()) << widget->metaObject()->className();
    }
}

TEST_F(RemoteAccess, WhatCanBeUsedHasAToolTip) {
    open();
    for (const char* name : {"host", "connect", "look", "mode", "release", "avoidance", "headAhead",
                             "headUpDown", "headLeftRight", "mouth", "cap.Up", "cap.Q"})
        EXPECT_NE(find(name).toolTip(), QString()) << name;
}

TEST_F(RemoteAccess, TabGoesThroughAllOfItInReadingOrder) {
    openConnected();
    find("connect").setFocus();
    std::vector<std::string> order;
    for (int i = 0; i < 9; ++i) {
        key(Qt::Key_Tab);
        order.push_back(focused().objectName().toStdString());
    }
    // The release can be used by none yet.
    EXPECT_EQ(order, (std::vector<std::string>{"look", "drive", "avoidance", "headUpDown", "headLeftRight",
                                               "headAhead", "mouth", "mode", "connect"}));
}

TEST_F(RemoteAccess, TheFocusIsSeenInBothLooks) {
    openConnected();
    for (const Theme* theme : {&lightTheme(), &darkTheme()}) {
        applyTheme(*qApp, *theme);
        settle();
        for (QWidget* widget : reached(*window)) {
            focused().clearFocus();
            const QImage before = window->grab().toImage();
            widget->setFocus(Qt::TabFocusReason);
            const QImage after = window->grab().toImage();
            QRect changed;
            double most = 1;
            const QRect place(widget->mapTo(window.get(), QPoint()), widget->size());
            const QRect around = place.adjusted(-4, -4, 4, 4) & window->rect();
            for (int y = around.top(); y <= around.bottom(); ++y) {
                for (int x = around.left(); x <= around.right(); ++x) {
                    const QColor was = before.pixelColor(x, y);
                    const QColor is = after.pixelColor(x, y);
                    if (was == is) continue;
                    changed |= QRect(x, y, 1, 1);
                    most = std::max(most, contrast(was, is));
                }
            }
            const std::string name = widget->objectName().toStdString() + (theme->dark ? " dark" : " light");
            EXPECT_GE(changed.width(), place.width() / 2) << name;
            EXPECT_GE(changed.height(), place.height() / 2) << name;
            EXPECT_GE(most, 3) << name;
        }
    }
}

TEST_F(RemoteAccess, NoKeyMeansTwoThings) {
    openConnected();
    std::map<QString, QString> owners;
    const auto take = [&owners](const QString& keys, const QString& owner) {
        if (keys.isEmpty()) return;
        EXPECT_TRUE(owners.emplace(keys, owner).second)
            << keys.toStdString() << " is of " << owners[keys].toStdString() << " and "
            << owner.toStdString();
    };
    for (const auto* button : window->findChildren<QAbstractButton*>())
        EXPECT_TRUE(button->shortcut().isEmpty()) << button->objectName().toStdString();
    for (const auto* shortcut : window->findChildren<QShortcut*>())
        take(shortcut->key().toString(), shortcut->parent()->objectName());
    for (int code = Qt::Key_A; code <= Qt::Key_Z; ++code) {
        if (heldKeyOf(code) != nullptr) take(QKeySequence(code).toString(), QStringLiteral("held"));
    }
    // Six of buttons, Esc, six letters.
    EXPECT_EQ(owners.size(), 13U);
}

}  // namespace
}  // namespace quorrin

// What holds for every window of the station, with its real widgets: what the keyboard reaches has a name and
// shows that it has the focus, and no key means two things.
#include <gmock/gmock.h>

#include <QAbstractButton>
#include <QAccessible>
#include <QAction>
#include <QShortcut>
#include <functional>
#include <map>

#include "desktop/dashboard_bench.h"
#include "desktop/station_window_bench.h"

namespace quorrin {
namespace {

using testing::IsEmpty;
using testing::Not;

// A window, and how it is opened in a session that runs (or at the login).
struct Opened {
    const char* name;
    const char* window;
    std::function<void(StationWindowBench&)> open;
};

void f9(StationWindowBench& bench) {
    QTest::keyClick(bench.window("frmGUI"), Qt::Key_F9);
}

const Opened kWindows[] = {
    {"Login", "frmLogin", {}},
    {"Dashboard", "frmGUI", [](StationWindowBench&) {}},
    {"Settings", "frmGUI", [](StationWindowBench& bench) { bench.gui.cmdExpandSetting.operatorClick(); }},
    {"Engineering", "frmGUI", f9},
    {"Panel", "frmControlPanel",
     [](StationWindowBench& bench) { bench.gui.cmdShowControlPanel.operatorClick(); }},
    {"Zoom", "frmZoomCamera", [](StationWindowBench& bench) { bench.gui.cmdZoomCamera.operatorClick(); }},
    {"About", "frmAbout", [](StationWindowBench& bench) { bench.gui.toolbarAbout.operatorClick(); }},
    {"LiveViews", "liveViewsWindow",
     [](StationWindowBench& bench) {
         f9(bench);
         QTest::keyClick(bench.window("frmGUI"), Qt::Key_L, Qt::ControlModifier);
     }},
    {"Notices", "notices", [](StationWindowBench& bench) { bench.windows.say("cannot write /app/a"); }},
};

class EveryWindow : public testing::TestWithParam<Opened> {
  protected:
    EveryWindow() { look.wear(lightTheme(), 1); }

    QWidget& open() {
        bench = std::make_unique<StationWindowBench>();
        if (GetParam().open) {
            bench->startSession();
            activate(*bench->window("frmGUI"));
            GetParam().open(*bench);
        } else {
            bench->station.startAtLogin();
        }
        bench->settle();
        QWidget* const top = bench->window(GetParam().window);
        if (top == nullptr || !top->isVisible()) throw ProgramError("the window does not show");
        activate(*top);
        return *top;
    }
    void activate(QWidget& top) {
        top.activateWindow();
        bench->settle();
    }
    // What Tab reaches; the insides of the toolkit's own widgets are its own.
    static std::vector<QWidget*> reached(const QWidget& top) {
        std::vector<QWidget*> all;
        for (QWidget* widget : top.findChildren<QWidget*>()) {
            if (widget->window() != &top || !widget->isVisible() || !widget->isEnabled()) continue;
            if ((widget->focusPolicy() & Qt::TabFocus) == 0 || widget->objectName().startsWith("qt_"))
                continue;
            all.push_back(widget);
        }
        return all;
    }

    LookGuard look;
    std::unique_ptr<StationWindowBench> bench;
};

TEST_P(EveryWindow, HasAReadableNameForWhatTheKeyboardReaches) {
    const std::vector<QWidget*> widgets = reached(open());
    EXPECT_THAT(widgets, Not(IsEmpty()));
    for (QWidget* widget : widgets) {
        const std::string name = widget->objectName().toStdString();
        EXPECT_FALSE(name.empty()) << widget->metaObject()->className();
        QAccessibleInterface* const reader = QAccessible::queryAccessibleInterface(widget);
        ASSERT_NE(reader, nullptr) << name;
        EXPECT_NE(reader->text(QAccessible::Name).toStdString(), "") << name;
        EXPECT_NE(reader->text(QAccessible::Name).toStdString(), name);
    }
}

// How a widget's surroundings differ between two pictures.
struct Change {
    QRect place;
    double contrast = 1;  // the greatest of a dot with what it was
};

Change changeOf(const QImage& before, const QImage& after) {
    Change change;
    for (int y = 0; y < before.height(); ++y) {
        for (int x = 0; x < before.width(); ++x) {
            const QColor was = before.pixelColor(x, y);
            const QColor is = after.pixelColor(x, y);
            if (was == is) continue;
            change.place |= QRect(x, y, 1, 1);
            change.contrast = std::max(change.contrast, contrast(was, is));
        }
    }
    return change;
}

// A ring may lie a little outside of the widget, where its parent draws it.
QImage surroundings(QWidget& widget) {
    constexpr int kReach = 4;
    QWidget& parent = *widget.parentWidget();
    const QRect place = widget.geometry().adjusted(-kReach, -kReach, kReach, kReach);
    return parent.grab(place & parent.rect()).toImage();
}

TEST_P(EveryWindow, ShowsWhichWidgetHasTheFocusInBothLooks) {
    QWidget& top = open();
    for (const Theme* theme : {&lightTheme(), &darkTheme()}) {
        applyTheme(*qApp, *theme);
        bench->settle();
        for (QWidget* widget : reached(top)) {
            const std::string name = widget->objectName().toStdString() + (theme->dark ? " dark" : " light");
            if (QApplication::focusWidget() != nullptr) QApplication::focusWidget()->clearFocus();
            const QImage before = surroundings(*widget);
            widget->setFocus(Qt::TabFocusReason);
            ASSERT_TRUE(widget->hasFocus()) << name;
            const Change change = changeOf(before, surroundings(*widget));
            // More than a cursor.
            EXPECT_GE(change.place.width(), widget->width() / 2) << name;
            EXPECT_GE(change.place.height(), widget->height() / 2) << name;
            EXPECT_GE(change.contrast, 3) << name;
        }
    }
}

TEST_P(EveryWindow, HasNoKeyThatMeansTwoThings) {
    QWidget& top = open();
    std::map<std::string, std::string> owners;
    const auto take = [&owners](const QKeySequence& keys, const QObject* owner) {
        if (keys.isEmpty()) return;
        const auto [at, isNew] =
            owners.emplace(keys.toString().toStdString(), owner->objectName().toStdString());
        EXPECT_TRUE(isNew) << at->first << " is of " << at->second << " and "
                           << owner->objectName().toStdString();
    };
    std::vector<const QWidget*> widgets{&top};
    for (const QWidget* widget : top.findChildren<QWidget*>())
        if (widget->window() == &top) widgets.push_back(widget);
    for (const QWidget* widget : widgets) {
        for (const QShortcut* shortcut : widget->findChildren<QShortcut*>(Qt::FindDirectChildrenOnly))
            take(shortcut->key(), widget);
        for (const QAction* action : widget->actions())
            if (action->shortcutContext() == Qt::WindowShortcut) take(action->shortcut(), action);
        if (const auto* button = qobject_cast<const QAbstractButton*>(widget))
            take(button->shortcut(), button);
    }
}

INSTANTIATE_TEST_SUITE_P(Windows, EveryWindow, testing::ValuesIn(kWindows),
                         [](const auto& tested) { return std::string(tested.param.name); });

}  // namespace
}  // namespace quorrin

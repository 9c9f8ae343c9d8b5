// A whole station on fakes with its real windows: what the operator does to a widget goes all the way.
#pragma once

#include <QApplication>
#include <QTest>
#include <string>

#include "desktop/station_windows.h"
#include "support/station_bench.h"

namespace quorrin {

struct StationWindowBench : StationBench {
    OperatorActs acts{clock};
    StationWindows windows{station, acts};

    // Lets Qt hand on what it has, and everything that the operator has done have its effect.
    void settle() {
        QCoreApplication::processEvents();
        clock.runFor(0);
    }

    static QWidget* window(const std::string& form) {
        for (QWidget* top : QApplication::topLevelWidgets())
            if (top->objectName().toStdString() == form) return top;
        return nullptr;
    }
    template <typename Widget = QWidget>
    static Widget* widget(const std::string& form, const std::string& control) {
        QWidget* const top = window(form);
        return top == nullptr ? nullptr : top->findChild<Widget*>(QString::fromStdString(control));
    }

    // Keys go where a window system would send them.
    void type(const std::string& text) {
        QTest::keyClicks(QApplication::focusWidget(), QString::fromStdString(text));
        settle();
    }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
        settle();
    }
};

}  // namespace quorrin

// The control panel's window with real widgets, in a whole station on virtual time.
#pragma once

#include "desktop/forms/control_panel_window.h"

#include <gtest/gtest.h>

#include <QCloseEvent>
#include <QLabel>
#include <QScrollBar>
#include <QSlider>
#include <QTest>

#include "desktop/binding/key_codes.h"
#include "desktop/binding/twips.h"
#include "session/console_rooms.h"
#include "support/station_bench.h"

namespace quorrin {

class PanelWindow : public testing::Test, protected StationBench {
  protected:
    void SetUp() override {
        station.startAtMainForm();
        window.bodyDrag().cursorPosition = [this] { return cursor; };
    }
    void settle() {
        QCoreApplication::processEvents();
        clock.runFor(0);
    }
    void open() {
        gui.cmdShowControlPanel.operatorClick();
        window.activateWindow();
        settle();
    }
    template <typename Kind = QWidget>
    Kind& widget(const char* name) {
        auto* const found = window.findChild<Kind*>(QString::fromLatin1(name));
        if (found == nullptr) throw ProgramError(std::string("no widget ") + name);
        return *found;
    }
    void key(QEvent::Type type, int qtKey, bool autoRepeat = false,
             Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QKeyEvent event(type, qtKey, modifiers, QString(), autoRepeat);
        QWidget* const focused = window.focusWidget();
        QCoreApplication::sendEvent(focused != nullptr ? focused : &window, &event);
        settle();
    }
    void keyDown(int qtKey, bool autoRepeat = false) { key(QEvent::KeyPress, qtKey, autoRepeat); }
    void keyUp(int qtKey, bool autoRepeat = false) { key(QEvent::KeyRelease, qtKey, autoRepeat); }
    void mouse(QEvent::Type type, QWidget& on, const QPoint& at, Qt::MouseButton button,
               Qt::MouseButtons held) {
        QMouseEvent event(type, at, on.mapToGlobal(at), button, held, Qt::NoModifier);
        QCoreApplication::sendEvent(&on, &event);
        settle();
    }
    QWidget& body() { return widget("Picture1"); }

    frmControlPanel& form = station.controlPanel;
    OperatorActs acts{clock};
    ControlPanelWindow window{form, station.console().controlPanel().drag(), acts};
    QPoint cursor;
};

}  // namespace quorrin

// The client's window on a desk, with a whole station at the other end, in virtual time; and what a person
// does at it.
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>

#include "base/program_error.h"
#include "client/window/remote_window.h"
#include "desktop/dashboard_bench.h"
#include "support/desk_bench.h"

namespace quorrin {

class RemoteWindowBench : public testing::Test {
  protected:
    RemoteWindowBench() { look.wear(lightTheme(), 1); }

    void open(int width = 1280, int height = 768) {
        window = std::make_unique<RemoteWindow>(bench.desk, bench.clock, [this] { ++ended; });
        window->resize(width, height);
        window->show();
        activate(*window);
    }
    // Open and connected, all that is due done.
    void openConnected() {
        bench.load();
        open();
        key(Qt::Key_Return);
        after(2000);
    }
    void activate(QWidget& top) {
        top.activateWindow();
        settle();
    }
    void settle() {
        for (int i = 0; i < 3; ++i) {
            QCoreApplication::processEvents();
            bench.clock.runFor(0);
        }
    }
    void after(std::int64_t ms) {
        settle();
        bench.clock.runFor(ms);
        window->refresh();
        settle();
    }
    template <typename Widget = QWidget>
    Widget& find(const std::string& name) {
        auto* const found = dynamic_cast<Widget*>(window->findChild<QWidget*>(QString::fromStdString(name)));
        if (found == nullptr) throw ProgramError("the window has no " + name);
        return *found;
    }
    // To whatever has the focus, as a keyboard does it.
    QWidget& focused() {
        QWidget* const widget = QApplication::focusWidget();
        return widget != nullptr ? *widget : *window;
    }
    void key(int code) {
        QTest::keyClick(&focused(), static_cast<Qt::Key>(code));
        settle();
    }
    void down(int code) {
        QTest::keyPress(&focused(), static_cast<Qt::Key>(code));
        settle();
    }
    void up(int code) {
        QTest::keyRelease(&focused(), static_cast<Qt::Key>(code));
        settle();
        bench.run(KeyWatch::kReleaseMs);
        settle();
    }
    // One repeat of a key that is held: up and down again, marked as such.
    void repeat(int code) {
        for (const QEvent::Type type : {QEvent::KeyRelease, QEvent::KeyPress}) {
            QKeyEvent event(type, code, Qt::NoModifier, QString(), true);
            QCoreApplication::sendEvent(&focused(), &event);
        }
        settle();
    }
    void click(const std::string& name) {
        QTest::mouseClick(&find(name), Qt::LeftButton);
        settle();
    }
    const PublicValues& values() const { return bench.values; }

    LookGuard look;
    DeskBench bench;
    int ended = 0;
    std::unique_ptr<RemoteWindow> window;
};

}  // namespace quorrin

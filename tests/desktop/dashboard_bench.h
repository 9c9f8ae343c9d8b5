// The dashboard's window on a whole station with invented links, in virtual time. The station has started up:
// its main form is shown and has loaded.
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>

#include "desktop/forms/main_window.h"
#include "desktop/theme/theme.h"
#include "support/station_bench.h"

namespace quorrin {

// Puts the application's font, palette and style sheet back.
class LookGuard {
  public:
    LookGuard()
        : font_(QApplication::font()), palette_(QApplication::palette()), sheet_(qApp->styleSheet()) {}
    LookGuard(const LookGuard&) = delete;
    LookGuard& operator=(const LookGuard&) = delete;
    ~LookGuard() {
        qApp->setStyleSheet(sheet_);
        QApplication::setPalette(palette_);
        QApplication::setFont(font_);
    }
    void wear(const Theme& theme, double fontFactor) {
        QFont font = font_;
        font.setPointSizeF(kPoints * fontFactor);
        QApplication::setFont(font);
        applyTheme(*qApp, theme);
    }

  private:
    static constexpr double kPoints = 10;  // what desktops have as a rule
    QFont font_;
    QPalette palette_;
    QString sheet_;
};

class DashboardBench : public testing::Test {
  protected:
    DashboardBench() { look.wear(lightTheme(), 1); }

    // Opens the window at that size in logical pixels.
    MainWindow& open(int width = 1280, int height = 764, LiveViews* views = nullptr) {
        if (!bench.gui.shown()) bench.station.startAtMainForm();
        window =
            std::make_unique<MainWindow>(bench.gui, bench.values, bench.station.controlPanel, acts, views);
        window->resize(width, height);
        window->show();
        settle();
        return *window;
    }
    void settle() {
        for (int i = 0; i < 3; ++i) {
            QCoreApplication::processEvents();
            bench.clock.runFor(0);
        }
    }
    template <typename Widget = QWidget>
    Widget& find(const std::string& name) {
        for (QWidget* widget : window->findChildren<QWidget*>(QString::fromStdString(name)))
            if (auto* found = dynamic_cast<Widget*>(widget)) return *found;
        throw ProgramError("the window has no " + name);
    }
    void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(window.get(), static_cast<Qt::Key>(key), modifiers);
        settle();
    }
    void click(const std::string& name) {
        QTest::mouseClick(&find(name), Qt::LeftButton);
        settle();
    }

    LookGuard look;
    StationBench bench;
    OperatorActs acts{bench.clock};
    std::unique_ptr<MainWindow> window;
};

}  // namespace quorrin

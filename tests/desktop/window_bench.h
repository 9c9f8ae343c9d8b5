// A form with one control of each kind and a window for it; what the operator does has its turn in settle().
#pragma once

#include <gtest/gtest.h>

#include <QHBoxLayout>
#include <QTest>
#include <string>

#include "base/controls.h"
#include "desktop/binding/control_factory.h"
#include "desktop/binding/form_link.h"
#include "platform/virtual/virtual_clock.h"

namespace quorrin {

struct SampleForm : Form {
    explicit SampleForm(Clock& clock)
        : Form("frmSample"),
          txtName(*this, "txtName", "abc"),
          txtLimit(*this, "txtLimit", "40", Accepts::integer),
          lblState(*this, "lblState", "idle"),
          cmdGo(*this, "cmdGo", "Go"),
          chkRemote(*this, "chkRemote", "Remote"),
          optFast(*this, "optFast", "Fast", true),
          optSlow(*this, "optSlow", "Slow"),
          sldLevel(*this, "sldLevel", 0, 100, 75),
          cobDay(*this, "cobDay"),
          lstClients(*this, "lstClients"),
          imgCamera(*this, "imgCamera"),
          fraPanel(*this, "fraPanel", "Panel"),
          tmrIdle(*this, "tmrIdle", clock, 100) {}

    TextBox txtName;
    TextBox txtLimit;
    Label lblState;
    CommandButton cmdGo;
    CheckBox chkRemote;
    OptionButton optFast;
    OptionButton optSlow;
    Slider sldLevel;
    ComboBox cobDay;
    ListBox lstClients;
    Picture imgCamera;
    Frame fraPanel;
    Timer tmrIdle;
};

class WindowBench : public ::testing::Test {
  protected:
    WindowBench() {
        form.show();
        link = new FormLink(window, form, acts);
    }

    template <typename Widget>
    Widget& put(const std::string& name) {
        auto* const widget = dynamic_cast<Widget*>(controls(name));
        row->addWidget(widget);
        return *widget;
    }
    // Lets Qt hand on what it has, and everything that the operator has done have its effect.
    void settle() {
        QCoreApplication::processEvents();
        clock.runFor(0);
    }
    void activate() {
        window.activateWindow();
        settle();
    }

    VirtualClock clock;
    OperatorActs acts{clock};
    SampleForm form{clock};
    QWidget window;
    QHBoxLayout* row = new QHBoxLayout(&window);
    ControlFactory controls{acts, form};
    FormLink* link = nullptr;
};

}  // namespace quorrin

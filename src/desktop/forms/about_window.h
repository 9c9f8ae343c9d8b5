// The window of frmAbout: version, web site, OK, and the page with the list of makers, which stands where the
// form says.
#pragma once

#include <QWidget>

#include "console/frm_about.h"
#include "desktop/binding/control_factory.h"
#include "desktop/binding/listening.h"
#include "desktop/operator_acts.h"

namespace quorrin {

class AboutWindow : public QWidget {
  public:
    // `makers` is the list, line by line.
    AboutWindow(frmAbout& form, const OperatorActs& acts, const QStringList& makers);

  private:
    QWidget* aboutColumn(const OperatorActs& acts);
    QWidget* extension(const QStringList& makers);
    void slide();

    frmAbout& form_;
    ControlFactory controls_;
    QWidget* opening_ = nullptr;  // through which the page is seen
    QWidget* page_ = nullptr;
    Listening moved_;
};

}  // namespace quorrin

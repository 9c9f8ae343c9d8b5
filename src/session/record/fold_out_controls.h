// The main form's two fold-out panels, its toolbar and its maker's mark. The caption of cmdExpandSetting is
// the state of the settings panel.
#pragma once

#include "base/controls.h"

namespace quorrin {

struct FoldOutControls {
    explicit FoldOutControls(Form& form)
        : fraSetting(form, "fraSetting"),
          fraSensor(form, "fraSensor"),
          cmdExpandSetting(form, "cmdExpandSetting", "Open Setting"),
          cmdCloseSetting(form, "cmdCloseSetting", "Close"),
          cmdCloseSensor(form, "cmdCloseSensor", "Close"),
          toolbarHelp(form, "Toolbar1.Help", "Help"),
          toolbarAbout(form, "Toolbar1.About", "About"),
          toolbarWww(form, "Toolbar1.WWW", "WWW"),
          imgLogo(form, "imgLogo"),
          lblLink(form, "lblLink") {}

    Frame fraSetting;
    Frame fraSensor;  // engineering view
    CommandButton cmdExpandSetting;
    CommandButton cmdCloseSetting;
    CommandButton cmdCloseSensor;
    ToolbarKey toolbarHelp;
    ToolbarKey toolbarAbout;
    ToolbarKey toolbarWww;
    Picture imgLogo;
    Label lblLink;
};

}  // namespace quorrin

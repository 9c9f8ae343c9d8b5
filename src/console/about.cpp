#include "console/about.h"

#include <utility>

#include "console/maker.h"

namespace quorrin {

About::About(PublicValues& values, frmGUI& gui, frmAbout& form, OpenWebPage openWebPage, std::string version)
    : values_(values), form_(form), openWebPage_(std::move(openWebPage)), version_(std::move(version)) {
    // "Help" is a key without an effect.
    gui.toolbarAbout.onClick = [this] { toolbarAbout_Click(); };
    gui.toolbarWww.onClick = [this] { openMakersPage(); };
    form_.lblWWW.onClick = [this] { openMakersPage(); };
    form_.cmdOK.onClick = [this] { cmdOK_Click(); };
    form_.onClose = [this] { Form_Unload(); };
    form_.Timer1.setHandler([this] { Timer1_Timer(); });
}

void About::toolbarAbout_Click() {
    values_.aboutOpen = true;
    if (!loaded_) Form_Load();
    form_.showModal();
}

void About::openMakersPage() {
    if (openWebPage_) openWebPage_(kMakerWebPage);
}

void About::cmdOK_Click() {
    values_.aboutOpen = false;
    form_.close();
}

void About::Form_Load() {
    loaded_ = true;
    form_.lblVersion.setCaption("Version " + version_);
    form_.lblWWW.setCaption(kMakerWebPage);
    form_.picExtend.moveTo(form_.picExtend.area().left, kPageAtLoad);
    form_.Timer1.setRunning(true);
}

// Only cmdOK clears aboutOpen.
void About::Form_Unload() {
    form_.Timer1.setRunning(false);
    loaded_ = false;
    form_.hide();
}

void About::Timer1_Timer() {
    form_.picExtend.moveTo(form_.picExtend.area().left, form_.picExtend.area().top - kStep);
    if (form_.picExtend.area().top == kPageAtRest) form_.Timer1.setRunning(false);
}

}  // namespace quorrin

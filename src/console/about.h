// What the small form about the program does, and the main form's toolbar, which shows it.
//
// frmAbout is modal: the rest of the station runs on, but the operator cannot use it meanwhile. Its page with
// the list of makers slides up by a fixed step until it is in its place; places are twips from the form's
// top.
#pragma once

#include <functional>
#include <string>

#include "console/frm_about.h"
#include "console/frm_gui.h"
#include "session/record/public_values.h"

namespace quorrin {

class About {
  public:
    using OpenWebPage = std::function<void(const std::string& address)>;

    // Where the page begins, and where it comes to rest: a whole number of steps apart.
    static constexpr int kStep = 45;
    static constexpr int kPageAtRest = 45;
    static constexpr int kPageAtLoad = kPageAtRest + 40 * kStep;

    // `version` is "major.minor.revision". The forms and the record must outlive it.
    About(PublicValues& values, frmGUI& gui, frmAbout& form, OpenWebPage openWebPage, std::string version);
    About(const About&) = delete;
    About& operator=(const About&) = delete;

    // Unloads the form, if it is open, when the main form closes.
    void unload() { form_.close(); }

  private:
    void toolbarAbout_Click();
    void openMakersPage();
    void cmdOK_Click();
    void Timer1_Timer();
    void Form_Load();
    void Form_Unload();

    PublicValues& values_;
    frmAbout& form_;
    OpenWebPage openWebPage_;
    std::string version_;
    bool loaded_ = false;
};

}  // namespace quorrin

// The four address boxes of the login form: how they are filled, edited and judged.
//
// A box's tag is its validity as text: "True", "False", or "" while nothing has been put into it. Only
// "False" counts as invalid. While being typed in, a box keeps digits only; a dot, a blank or the third digit
// moves on to the next box. On being left it is padded to three characters with blanks in front, which are
// taken away when it gets the focus again. An empty box cannot be left.
//
// One flag for all boxes says that the next change is the padding's own; it shields one change only.
#pragma once

#include <string>

#include "console/frm_login.h"

namespace quorrin {

class AddressBoxes {
  public:
    // Sets the handlers of the form's txt_ip and txt_ipdot.
    explicit AddressBoxes(frmLogin& form);

    // Cuts a dotted address into the boxes. The second field is cut at the place of the first dot of the
    // whole address: right only where the first two fields have one length.
    void fill(const std::string& robotIp);
    void clear();

    // Index of the first invalid box, or -1.
    int firstInvalid() const;
    // Focuses a box and runs its got-focus handler, whether it had the focus or not.
    void focusAndMark(int index);

    // The trimmed fields with dots between them.
    std::string joined() const;
    std::string trimmedField(int index) const;
    void setEnabled(bool enabled);

  private:
    void changed(int index);
    void gotFocus(int index);
    void keyPressed(int index, int key);
    void left(int index);
    void focusBox(int index);

    frmLogin& form_;
    bool paddingChange_ = false;
};

}  // namespace quorrin

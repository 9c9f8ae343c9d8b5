// The clipboard of the desktop, for as long as there is an application with windows. What is placed there is
// this program's until another one places something.
#pragma once

#include "platform/clipboard.h"

namespace quorrin {

class WindowClipboard : public Clipboard {
  public:
    // False for a picture whose pixels are not as many as its size says.
    bool placeBitmap(const ClipboardPicture& picture) override;
};

}  // namespace quorrin

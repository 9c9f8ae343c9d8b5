// The clipboard of the desktop that the program runs on, for pictures. Write only.
#pragma once

#include <cstdint>
#include <string>

namespace quorrin {

// Three bytes a pixel (red, green, blue), rows from the top, no padding.
struct ClipboardPicture {
    std::int32_t width = 0;
    std::int32_t height = 0;
    std::string pixels;
};

class Clipboard {
  public:
    virtual ~Clipboard() = default;
    // Opens and empties the clipboard and places the picture on it; true when it was taken.
    virtual bool placeBitmap(const ClipboardPicture& picture) = 0;
};

}  // namespace quorrin

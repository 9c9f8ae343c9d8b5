// Is a bitmap file there as a whole? For files that are read while somebody else writes them. Pure.
//
// True when the file says that it is a Windows bitmap, with header, size and depth that make sense, and has
// all the bytes of its picture. What the pixels are is not looked at.
#pragma once

#include <string_view>

namespace quorrin {

bool isWholeBitmap(std::string_view file);

}  // namespace quorrin

// Text in the one-byte alphabet that remote clients speak, Windows-1252.
#pragma once

#include <string>
#include <string_view>

namespace quorrin {

// One byte for each character; "?" for one that the alphabet does not have, and for a byte that is no UTF-8.
std::string windowsText(std::string_view utf8);

}  // namespace quorrin

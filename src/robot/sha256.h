// SHA-256 of a byte string, as 64 lower-case hex digits. For telling files apart in the truth file.
#pragma once

#include <string>
#include <string_view>

namespace quorrin {

std::string sha256Hex(std::string_view bytes);

}  // namespace quorrin

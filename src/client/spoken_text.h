// Text to be spoken: what a person writes (UTF-8) as the bytes of the speech channel (Windows-1252).
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace quorrin {

// Empty where the text is no UTF-8 or has a character that Windows-1252 has not.
std::optional<std::string> spokenBytes(std::string_view utf8);

}  // namespace quorrin

// Small cuts of text that the forms need. Blanks are the only white space they know.
#pragma once

#include <string>

namespace quorrin {

std::string leftTrimmed(const std::string& text);
std::string trimmed(const std::string& text);
// The characters "0" to "9" alone.
std::string digitsOf(const std::string& text);
// The number that the text begins with, blanks skipped; 0 where it begins with none.
double leadingNumber(const std::string& text);

}  // namespace quorrin

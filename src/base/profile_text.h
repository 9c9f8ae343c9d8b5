// The text of a private profile file: sections of "key = value" lines, read and changed as the Windows calls
// do it.
//
// Section and key names are compared without regard to (ASCII) case and to blanks around them. Of several
// sections of one name only the first counts, and in it the first line with the key. Blanks around a value do
// not belong to it, and one pair of matching quotes, single or double, is taken off. Lines that begin with
// ";", lines without "=" and everything before the first section say nothing. Lines end with LF, CR or both;
// a UTF-8 byte order mark at the start is skipped.
//
// Pure functions on text; what is kept where is the business of general_functions.h. No errors: what is not
// understood is left alone.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace quorrin {

// The value of the key; empty optional where section or key is missing.
std::optional<std::string> profileValue(std::string_view text, std::string_view section,
                                        std::string_view key);

// The text with that value. The value of an existing key is replaced in its place, a new key goes behind the
// last filled line of its section, a new section to the end; every other byte stays. New lines end as the
// first line of the text does, with LF in an empty text. The value is written as it is, without quotes; names
// and value must hold no line break.
std::string withProfileValue(std::string_view text, std::string_view section, std::string_view key,
                             std::string_view value);

}  // namespace quorrin

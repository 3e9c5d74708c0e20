// Writing a document as the bytes of a rich-text file.
#pragma once

#include <string>

#include "platform/richtext/document.h"

namespace richtext {

// Code page 1254, other characters as \u with a question mark behind. readRtf() gives back an equal
// document, provided that font names are at most 63 bytes without semicolon and outer blanks, sizes
// are 1 to 3276 half points and indents within 22 inches.
std::string writeRtf(const Document& document);

}  // namespace richtext

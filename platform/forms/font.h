// The font of a form or a text, as the font records and dialogs hold it.
#pragma once

#include <string>

#include "platform/forms/colour.h"

namespace forms {

struct Font {
  std::string name;
  int size = 0;  // points; 0 means the system's own font
  bool bold = false;
  bool italic = false;
  bool underline = false;
  bool strikethrough = false;
  Colour colour = 0;

  bool operator==(const Font&) const = default;
};

}  // namespace forms

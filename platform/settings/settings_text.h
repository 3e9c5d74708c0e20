// The text that a settings file holds: a heading, one line per setting with its application,
// section, key and value between tabs, and a closing line that tells a whole file from a cut one.
#pragma once

#include <string>
#include <string_view>

#include "platform/settings/values.h"

namespace settings {

// Lines are in the order of their text, so that equal settings make equal files.
[[nodiscard]] std::string toText(const Values& values);

struct ReadSettings {
  Values values;
  // Every line was understood, and none is missing. An editor may have left its mark in front,
  // other ends of lines, blank lines, or no end of the last one. An empty text is whole.
  bool whole = false;
};

// What can be read of the text. The line at which it was cut off is no line: half a value would
// pass for a whole one.
[[nodiscard]] ReadSettings fromText(std::string_view text);

}  // namespace settings

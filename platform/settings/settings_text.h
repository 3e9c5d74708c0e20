// The text that a settings file holds: a heading, one line per setting with its application,
// section, key and value between tabs, and a closing line that tells a whole file from a cut one.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/settings/values.h"

namespace settings {

// Lines are in the order of their text, so that equal settings make equal files.
[[nodiscard]] std::string toText(const Values& values);

// Empty when the text breaks the form anywhere. An empty text holds no settings.
[[nodiscard]] std::optional<Values> fromText(std::string_view text);

}  // namespace settings

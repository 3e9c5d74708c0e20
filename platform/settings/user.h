// What the user's environment says before there are any settings.
#pragma once

#include <filesystem>
#include <string>

namespace settings {

// The language of the user's region as two lower-case letters; "en" when none is chosen.
[[nodiscard]] std::string userLanguage();

// The settings file in the user's configuration folder; empty when the user has none.
[[nodiscard]] std::filesystem::path userSettingsPath();

}  // namespace settings

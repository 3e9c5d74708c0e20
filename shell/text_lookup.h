// The words of the program: every caption and message goes through metinbul.
#pragma once

#include <string>
#include <string_view>

#include "shell/station.h"

namespace shell {

// The text of a key in the language of the setting `Language`; a key in neither table comes back as
// it stands. The first lookup of a new user chooses the language from the desk's regional language.
// Sets Station::Dil.
[[nodiscard]] std::string metinbul(Station& istasyon, std::string_view key);

// The two lines of text that captions and messages join are separated by "\n\r"; a window wants
// "\n".
[[nodiscard]] std::string oneLineBreak(std::string_view text);

}  // namespace shell

#include "platform/settings/user.h"

#include <pwd.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <string_view>

#include "platform/text/fold.h"

namespace settings {
namespace {

std::string_view variable(const char* name) {
  const char* value = std::getenv(name);
  return value == nullptr ? std::string_view{} : std::string_view{value};
}

// Services start programs without the variable; the user has a folder all the same.
std::filesystem::path homeFolder() {
  const std::filesystem::path home = variable("HOME");
  if (home.is_absolute()) return home;
  const passwd* const user = ::getpwuid(::getuid());
  return user == nullptr || user->pw_dir == nullptr ? "" : user->pw_dir;
}

bool isLetter(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

}  // namespace

std::string userLanguage() {
  std::string_view region;
  for (const char* name : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
    if (region.empty()) region = variable(name);
  }
  // "tr_TR.UTF-8" or "tr@euro"; "C" and "POSIX" are no languages.
  const std::string_view language = region.substr(0, region.find_first_of("_.@"));
  if (language.size() != 2 || !std::ranges::all_of(language, isLetter)) return "en";
  return text::lower(language);
}

std::filesystem::path userSettingsPath() {
  std::filesystem::path folder = variable("XDG_CONFIG_HOME");
  if (!folder.is_absolute()) {
    const std::filesystem::path home = homeFolder();
    if (!home.is_absolute()) return {};
    folder = home / ".config";
  }
  return folder / "sanavel" / "settings.txt";
}

}  // namespace settings

#include "shell/text_lookup.h"

#include "platform/settings/user.h"
#include "shell/vocabulary/vocabulary.h"

namespace shell {

namespace {

void chooseLanguage(Station& istasyon) {
  istasyon.Dil = istasyon.ayar("Language");
  if (!istasyon.Dil.empty()) return;
  istasyon.ayarYaz("Language", settings::userLanguage());
  istasyon.Dil = istasyon.ayar("Language", "eng");
}

}  // namespace

std::string metinbul(Station& istasyon, std::string_view key) {
  chooseLanguage(istasyon);
  const Language language = istasyon.Dil == "tr" ? Language::Turkish : Language::English;
  return std::string(lookUp(key, language));
}

std::string oneLineBreak(std::string_view text) {
  std::string result(text);
  for (auto at = result.find("\n\r"); at != std::string::npos; at = result.find("\n\r", at + 1)) {
    result.erase(at + 1, 1);
  }
  return result;
}

}  // namespace shell

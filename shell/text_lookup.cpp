#include "shell/text_lookup.h"

#include "platform/settings/user.h"
#include "shell/vocabulary/vocabulary.h"

namespace shell {

namespace {

// Settings that cannot be written leave the choice to this run.
void chooseLanguage(Station& istasyon) {
  const std::string chosen = istasyon.ayar("Language");
  if (!chosen.empty()) {
    istasyon.Dil = chosen;
  } else if (istasyon.Dil.empty()) {
    istasyon.Dil = settings::userLanguage();
    istasyon.settings.set(applicationName, mainSection, "Language", istasyon.Dil).ignore();
  }
}

}  // namespace

std::string metinbul(Station& istasyon, std::string_view key) {
  chooseLanguage(istasyon);
  const Language language = istasyon.turkce() ? Language::Turkish : Language::English;
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

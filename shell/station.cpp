#include "shell/station.h"

#include <algorithm>
#include <filesystem>

#include "platform/text/fold.h"
#include "platform/text/number.h"
#include "shell/fault_words.h"
#include "shell/phrases.h"
#include "shell/text_lookup.h"

namespace shell {

namespace {

std::string withSlash(std::string_view folder) {
  std::string path(folder);
  std::ranges::replace(path, '\\', '/');
  if (path.empty() || path.back() != '/') path += '/';
  return path;
}

// Without the folder, and without the ending that some systems give to programs.
std::string bareName(std::string_view program) {
  const std::filesystem::path name = std::filesystem::path(program).filename();
  return name.extension() == ".exe" ? name.stem().string() : name.string();
}

}  // namespace

Station::Station(World world, std::string_view folder, std::string_view program)
    : host(world.host),
      clock(world.clock),
      settings(world.settings),
      screens(world.screens),
      UygYolu(withSlash(folder)),
      programName(bareName(program)) {
  stores.folder = UygYolu;
}

std::string Station::ayar(std::string_view key, std::string_view missing) const {
  return std::string(settings.get(applicationName, mainSection, key, missing));
}

bool Station::acik(std::string_view key) const {
  const std::string value = ayar(key);
  return text::equalsNoCase(value, "True") || text::Val(value) != 0;
}

void Station::ayarYaz(std::string_view key, std::string_view value) {
  const platform::Status written = settings.set(applicationName, mainSection, key, value);
  if (!written) hataSoyle(*this, written);
}

host::Answer Station::mesaj(std::string_view text, host::Buttons buttons, host::Icon icon,
                            host::Stake stake) {
  return host.messageBox({.text = oneLineBreak(text),
                          .title = kart == nullptr ? std::string(applicationName) : kart->baslik(),
                          .buttons = buttons,
                          .icon = icon,
                          .stake = stake});
}

bool Station::evetMi(std::string_view question) {
  return mesaj(question, host::Buttons::YesNo, host::Icon::Question) == host::Answer::Yes;
}

bool Station::confirmLoss(std::string_view question) {
  return mesaj(question, host::Buttons::YesNo, host::Icon::Question, host::Stake::Existing) ==
         host::Answer::Yes;
}

host::Answer Station::askAboutText(std::string_view question, host::Stake stake) {
  return mesaj(question, host::Buttons::YesNo, host::Icon::Question, stake);
}

void Station::bilgi(std::string_view text) {
  mesaj(text, host::Buttons::Ok, host::Icon::Information);
}

void Station::ekranAc(std::string_view name, std::string_view entry, const Prepare& prepare) {
  const auto form = screens.make(name, *this);
  if (form == nullptr) {
    std::string asked = entry.empty() ? phrase(*this, Phrase::ThisScreen) : std::string(entry);
    std::erase(asked, '&');
    return bilgi(asked + phrase(*this, Phrase::NotInThisVersion));
  }
  form->Load();
  if (prepare) prepare(*form);
  host.showModal(*form);
}

}  // namespace shell

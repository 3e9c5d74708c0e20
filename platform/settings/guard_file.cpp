#include "platform/settings/guard_file.h"

#include <fcntl.h>

#include <algorithm>
#include <string_view>

#include "platform/files/atomic_write.h"
#include "platform/files/read_file.h"
#include "platform/text/fold.h"

namespace settings {
namespace {

constexpr std::size_t largest = std::size_t{1} << 16U;
constexpr std::string_view explanation =
    "# Passwords were set in the settings. If they are lost, removing this file opens the "
    "program.\n"
    "# Ayarlarda sifreler vardi. Kaybolduysa bu dosya silinince program acilir.\n";

bool isOn(std::string_view value) {
  return !value.empty() && value != "0" && !text::equalsNoCase(value, "False");
}

}  // namespace

GuardFile::Keys GuardFile::keys() const {
  const auto text = files::readFile(path_, largest, files::Links::Followed);
  Keys keys;
  std::string lines = '\n' + text.value_or(std::string()) + '\n';
  std::erase(lines, '\r');
  if (!text && text.error().fault() == platform::Fault::Missing) return keys;
  for (const Place& place : guarded_) {
    if (!text || lines.contains('\n' + place.key + '\n')) keys.insert(place.key);
  }
  return keys;
}

bool GuardFile::holds(const PlaceView& place) const {
  const auto isPlace = [&](const Place& each) { return PlaceEqual()(each, place); };
  const auto found = std::ranges::find_if(guarded_, isPlace);
  return found != guarded_.end() && keys().contains(found->key);
}

void GuardFile::forget(const Values& before, const Values& after) {
  const Keys held = keys();
  Keys rest = held;
  for (const Place& place : guarded_) {
    const auto now = after.find(place);
    const bool off = now == after.end() ? before.contains(place) : !isOn(now->second);
    if (off) rest.erase(place.key);
  }
  if (rest != held) write(rest);
}

void GuardFile::remember(const Values& values) {
  const Keys held = keys();
  Keys all = held;
  for (const Place& place : guarded_) {
    const auto now = values.find(place);
    if (now != values.end() && isOn(now->second)) all.insert(place.key);
  }
  if (all != held) write(all);
}

// Where this fails, the settings beside it tell their user of it; the next change tries again.
void GuardFile::write(const Keys& keys) {
  std::string text(explanation);
  for (const std::string& key : keys) text += key + '\n';
  if (keys.empty()) text.clear();
  files::writeAtomically(path_, text, files::Links::Followed, files::privateMode).ignore();
}

}  // namespace settings

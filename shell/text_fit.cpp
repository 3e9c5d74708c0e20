#include "shell/text_fit.h"

#include <string>

#include "platform/text/nearest.h"
#include "platform/text/utf8.h"
#include "shell/text_lookup.h"

namespace shell {

namespace {

constexpr std::ptrdiff_t shownOfCut = 40;

std::string replacedIn(std::span<const FileText> texts) {
  std::string all;
  for (const FileText& each : texts) all.append(each.text).push_back('\n');
  std::string list;
  for (const text::Substitute& each : text::substitutesIn(all))
    list.append(list.empty() ? "" : ",   ").append(each.character).append(" : " + each.nearest);
  return list;
}

// A line for each text that is too long: its end, as far as it goes on a line.
std::string cutFrom(Station& istasyon, std::span<const FileText> texts) {
  std::string lines;
  for (const FileText& each : texts) {
    const auto room = static_cast<std::ptrdiff_t>(each.width);
    const std::string lost = text::mid(text::nearestTurkish(each.text), room + 1);
    if (text::trimmed(lost).empty()) continue;
    std::string shown = text::left(lost, shownOfCut);
    if (shown != lost) shown += "…";
    lines += "\n" + metinbul(istasyon, each.caption) + ": \"…" + shown + "\" (" +
             std::to_string(text::length(lost)) + ")";
  }
  return lines;
}

}  // namespace

bool boyleKalsinMi(Station& istasyon, std::span<const FileText> texts, Phrase question) {
  const std::string characters = replacedIn(texts);
  const std::string ends = cutFrom(istasyon, texts);
  if (characters.empty() && ends.empty()) return true;
  std::string told;
  if (!characters.empty())
    told += phrase(istasyon, Phrase::CharactersReplaced) + "\n" + characters + "\n\n";
  if (!ends.empty()) told += phrase(istasyon, Phrase::TextsCut) + ends + "\n\n";
  told += phrase(istasyon, question);
  return ends.empty() ? istasyon.evetMi(told) : istasyon.confirmLoss(told);
}

long kalanYer(std::string_view text, std::size_t width) {
  return static_cast<long>(width) - static_cast<long>(text::length(text::nearestTurkish(text)));
}

}  // namespace shell

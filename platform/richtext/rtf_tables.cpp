#include "platform/richtext/rtf_tables.h"

#include <algorithm>
#include <array>

#include "platform/richtext/code_pages.h"
#include "platform/richtext/utf8.h"

namespace richtext {
namespace {

constexpr std::size_t kMostEntries = 4096;
constexpr std::size_t kLongestName = 63;

void appendLimited(std::string& name, std::string_view text) {
  std::size_t room = kLongestName - std::min(name.size(), kLongestName);
  if (text.size() > room) {
    while (room > 0 && (static_cast<unsigned char>(text[room]) & 0xC0U) == 0x80U) --room;
    text = text.substr(0, room);
  }
  name += text;
}

// Fonts of old systems carry their script in the name, where the character set says it already.
std::string_view withoutScript(std::string_view name) {
  for (const std::string_view ending : {" TUR", " Tur", " (Turkish)"})
    if (name.ends_with(ending)) name.remove_suffix(ending.size());
  return name;
}

std::string trimmed(std::string_view name) {
  const std::size_t first = name.find_first_not_of(" \t");
  if (first == std::string_view::npos) return {};
  return cleaned(name.substr(first, name.find_last_not_of(" \t") - first + 1));
}

}  // namespace

void RtfFonts::begin(int number) {
  const bool room = entries_.size() < kMostEntries || entries_.contains(number);
  current_ = room ? &(entries_[number] = {}) : nullptr;
}

void RtfFonts::setCharset(int charset) {
  if (current_) current_->codePage = codePageOfCharset(charset);
}

void RtfFonts::setCodePage(int codePage) {
  if (current_) current_->codePage = codePage;
}

void RtfFonts::addTo(std::string Entry::*name, std::string_view text) {
  if (!current_) return;
  bool& ended = name == &Entry::name ? current_->named : current_->plainNamed;
  if (ended) return;
  const std::size_t end = text.find(';');
  ended = end != std::string_view::npos;
  appendLimited(current_->*name, text.substr(0, end));
}

std::string RtfFonts::name(int number) const {
  const auto found = entries_.find(number);
  if (found == entries_.end()) return {};
  const Entry& entry = found->second;
  if (!entry.plainName.empty()) return trimmed(entry.plainName);
  return trimmed(entry.codePage == kTurkishCodePage ? withoutScript(entry.name) : entry.name);
}

int RtfFonts::codePage(int number) const {
  const auto found = entries_.find(number);
  return found == entries_.end() ? 0 : found->second.codePage;
}

void RtfColours::set(Part part, int value) {
  const auto bits = static_cast<std::uint32_t>(std::clamp(value, 0, 255));
  const auto shift = static_cast<std::uint32_t>(part);
  entry_ = (entry_.value_or(0) & ~(0xFFU << shift)) | (bits << shift);
}

void RtfColours::endEntry() {
  if (colours_.size() < kMostEntries) colours_.push_back(entry_);
  entry_.reset();
}

Colour RtfColours::at(int number) const {
  if (number < 0 || static_cast<std::size_t>(number) >= colours_.size()) return std::nullopt;
  return colours_[static_cast<std::size_t>(number)];
}

}  // namespace richtext

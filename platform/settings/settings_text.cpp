#include "platform/settings/settings_text.h"

#include <algorithm>
#include <array>
#include <optional>
#include <vector>

namespace settings {
namespace {

constexpr std::string_view heading = "settings 1";
constexpr std::string_view closing = "end";
constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
// Each character of the first has its letter, behind a backslash, in the second.
constexpr std::string_view escaped{"\\\t\n\r\0", 5};
constexpr std::string_view letters = "\\tnr0";

void appendEscaped(std::string& line, std::string_view field) {
  for (const char c : field) {
    const std::size_t kind = escaped.find(c);
    if (kind == std::string_view::npos) {
      line += c;
    } else {
      line += {'\\', letters[kind]};
    }
  }
}

std::string lineOf(const Place& place, std::string_view value) {
  std::string line;
  for (const std::string_view name :
       {place.view().application, place.view().section, place.view().key}) {
    appendEscaped(line, name);
    line += '\t';
  }
  appendEscaped(line, value);
  return line;
}

std::optional<std::string> unescaped(std::string_view field) {
  std::string plain;
  for (std::size_t i = 0; i < field.size(); ++i) {
    if (field[i] == '\\') {
      const std::size_t kind = ++i < field.size() ? letters.find(field[i]) : std::string_view::npos;
      if (kind == std::string_view::npos) return std::nullopt;
      plain += escaped[kind];
    } else if (escaped.contains(field[i])) {
      return std::nullopt;
    } else {
      plain += field[i];
    }
  }
  return plain;
}

// Takes what stands before the mark, and the mark.
std::optional<std::string_view> take(std::string_view& text, char mark) {
  const std::size_t end = text.find(mark);
  if (end == std::string_view::npos) return std::nullopt;
  const std::string_view taken = text.substr(0, end);
  text.remove_prefix(end + 1);
  return taken;
}

// Without the end of the line, whatever system wrote it; the last one may have none.
std::string_view takeLine(std::string_view& text) {
  std::string_view line = text.substr(0, text.find('\n'));
  text.remove_prefix(std::min(line.size() + 1, text.size()));
  if (line.ends_with('\r')) line.remove_suffix(1);
  return line;
}

bool readLine(std::string_view line, Values& values) {
  std::array<std::string, 3> names;
  for (std::string& name : names) {
    const auto field = take(line, '\t');
    auto plain = field ? unescaped(*field) : std::nullopt;
    if (!plain) return false;
    name = std::move(*plain);
  }
  auto value = unescaped(line);
  if (!value) return false;
  values.insert_or_assign(Place{PlaceView{names[0], names[1], names[2]}}, std::move(*value));
  return true;
}

}  // namespace

std::string toText(const Values& values) {
  std::vector<std::string> lines;
  for (const auto& [place, value] : values) lines.push_back(lineOf(place, value));
  std::ranges::sort(lines);
  std::string text{heading};
  text += '\n';
  for (const std::string& line : lines) (text += line) += '\n';
  (text += closing) += '\n';
  return text;
}

ReadSettings fromText(std::string_view text) {
  ReadSettings read;
  if (text.starts_with(byteOrderMark)) text.remove_prefix(byteOrderMark.size());
  read.whole = true;
  bool ended = text.empty();
  bool begun = text.empty();
  while (!text.empty()) {
    const bool isCut = !text.contains('\n');
    const std::string_view line = takeLine(text);
    if (line.empty()) continue;
    const bool isHeading = line == heading;
    ended = line == closing;
    if (!isHeading && !ended && (isCut || !readLine(line, read.values))) read.whole = false;
    if (!begun && !isHeading) read.whole = false;
    begun = true;
  }
  read.whole = read.whole && ended;
  return read;
}

}  // namespace settings

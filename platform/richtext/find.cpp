#include "platform/richtext/find.h"

#include <unicode/uchar.h>

#include <string>

#include "platform/richtext/utf8.h"

namespace richtext {
namespace {

constexpr char32_t kDottedCapital = 0x130;
constexpr char32_t kDotlessSmall = 0x131;

// One code point for one, so that positions stay.
char32_t folded(char32_t character) {
  if (character == kDottedCapital || character == kDotlessSmall) return U'i';
  return static_cast<char32_t>(u_foldCase(static_cast<UChar32>(character), U_FOLD_CASE_DEFAULT));
}

std::u32string searchable(std::string_view text, FindCase letters) {
  std::u32string result = toCodePoints(text);
  if (letters == FindCase::Match) return result;
  for (char32_t& character : result) character = folded(character);
  return result;
}

bool isWordCharacter(char32_t character) {
  return character == U'_' || u_isalnum(static_cast<UChar32>(character)) != 0;
}

bool standsAlone(const std::u32string& text, Range match) {
  const bool joinsBefore = match.begin > 0 && isWordCharacter(text[match.begin - 1]);
  const bool joinsAfter = match.end < text.size() && isWordCharacter(text[match.end]);
  return !joinsBefore && !joinsAfter;
}

}  // namespace

std::optional<Range> findText(const Document& document, std::string_view what, std::size_t from,
                              FindOptions options) {
  const std::u32string needle = searchable(what, options.letters);
  if (needle.empty()) return std::nullopt;
  const std::u32string text = searchable(document.plainText(), options.letters);
  for (std::size_t at = text.find(needle, from); at != std::u32string::npos;
       at = text.find(needle, at + 1)) {
    const Range match{at, at + needle.size()};
    if (options.word == FindWord::Part || standsAlone(text, match)) return match;
  }
  return std::nullopt;
}

}  // namespace richtext

#include "platform/dao/pattern.h"

#include <unicode/uchar.h>

#include <optional>
#include <string>

#include "platform/text/utf8.h"

namespace dao {
namespace {

std::u32string foldedCharacters(std::string_view text, Order order) {
  const uint32_t rule =
      order == Order::Turkish ? U_FOLD_CASE_EXCLUDE_SPECIAL_I : U_FOLD_CASE_DEFAULT;
  std::u32string result;
  for (std::size_t position = 0; position < text.size();) {
    const auto character = static_cast<UChar32>(text::nextCharacter(text, position));
    result += static_cast<char32_t>(u_foldCase(character, rule));
  }
  return result;
}

// One pattern element that stands for exactly one character.
struct Single {
  std::size_t length;
  bool fits;
};

Single bracket(std::u32string_view pattern, std::size_t close, char32_t character) {
  std::size_t at = 1;
  const bool negated = pattern[at] == U'!' && at + 1 < close;
  if (negated) ++at;
  bool found = false;
  while (at < close) {
    const bool range = at + 2 < close && pattern[at + 1] == U'-';
    const char32_t last = range ? pattern[at + 2] : pattern[at];
    found = found || (pattern[at] <= character && character <= last);
    at += range ? 3 : 1;
  }
  return {close + 1, found != negated};
}

Single single(std::u32string_view pattern, char32_t character) {
  if (pattern[0] == U'?') return {1, true};
  if (pattern[0] == U'#') return {1, character >= U'0' && character <= U'9'};
  if (pattern[0] == U'[') {
    const std::size_t close = pattern.find(U']', 2);
    if (close != pattern.npos) return bracket(pattern, close, character);
  }
  return {1, pattern[0] == character};
}

// Remembering only the last star is enough: a later star never needs an earlier one to give way.
bool matches(std::u32string_view text, std::u32string_view pattern) {
  std::size_t at = 0;
  std::size_t element = 0;
  std::optional<std::size_t> star;
  std::size_t starText = 0;
  while (at < text.size()) {
    if (element < pattern.size() && pattern[element] == U'*') {
      star = element++;
      starText = at;
      continue;
    }
    const Single one =
        element < pattern.size() ? single(pattern.substr(element), text[at]) : Single{0, false};
    if (one.fits) {
      ++at;
      element += one.length;
    } else if (star) {
      element = *star + 1;
      at = ++starText;
    } else {
      return false;
    }
  }
  return pattern.find_first_not_of(U'*', element) == pattern.npos;
}

}  // namespace

bool matchesPattern(std::string_view text, std::string_view pattern, Order order) {
  return matches(foldedCharacters(text, order), foldedCharacters(pattern, order));
}

}  // namespace dao

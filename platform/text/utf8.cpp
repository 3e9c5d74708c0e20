#include "platform/text/utf8.h"

#include <unicode/utf8.h>

#include <algorithm>
#include <cstdint>

namespace text {
namespace {

constexpr char32_t replacement = 0xFFFD;

// Where the character behind the first n starts; the end when there are fewer.
std::size_t offsetOf(std::string_view text, std::size_t n) {
  std::size_t position = 0;
  for (; n > 0 && position < text.size(); --n) (void)nextCharacter(text, position);
  return position;
}

std::size_t atLeastZero(std::ptrdiff_t n) {
  return n < 0 ? 0 : static_cast<std::size_t>(n);
}

// ICU's macro narrows within; the warning is about its code, not ours.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wconversion"
char32_t decode(std::string_view window, std::int32_t& used) {
  UChar32 character = 0;
  U8_NEXT_OR_FFFD(window.data(), used, static_cast<std::int32_t>(window.size()), character);
  return static_cast<char32_t>(character);
}
#pragma GCC diagnostic pop

}  // namespace

char32_t nextCharacter(std::string_view text, std::size_t& position) {
  const auto first = static_cast<std::uint8_t>(text[position]);
  if (first < 0x80) return ++position, first;
  // A sequence is four bytes at most; the window keeps ICU's 32-bit offsets away from large texts.
  std::int32_t used = 0;
  const char32_t character = decode(text.substr(position, 4), used);
  position += static_cast<std::size_t>(used);
  return character;
}

void appendCharacter(std::string& text, char32_t character) {
  if (character > 0x10FFFF || (character >= 0xD800 && character <= 0xDFFF)) character = replacement;
  char bytes[U8_MAX_LENGTH];
  std::size_t used = 0;
  U8_APPEND_UNSAFE(bytes, used, character);
  text.append(bytes, used);
}

bool isAscii(std::string_view text) {
  return std::ranges::all_of(text, [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

std::size_t length(std::string_view text) {
  std::size_t count = 0;
  for (std::size_t position = 0; position < text.size(); ++count) {
    (void)nextCharacter(text, position);
  }
  return count;
}

std::string left(std::string_view text, std::ptrdiff_t n) {
  return std::string{text.substr(0, offsetOf(text, atLeastZero(n)))};
}

std::string right(std::string_view text, std::ptrdiff_t n) {
  const std::size_t all = length(text);
  return std::string{text.substr(offsetOf(text, all - std::min(all, atLeastZero(n))))};
}

std::string mid(std::string_view text, std::ptrdiff_t start, std::ptrdiff_t n) {
  if (start < 1) return {};
  return left(text.substr(offsetOf(text, atLeastZero(start - 1))), n);
}

std::string mid(std::string_view text, std::ptrdiff_t start) {
  if (start < 1) return {};
  return std::string{text.substr(offsetOf(text, atLeastZero(start - 1)))};
}

std::string cut(std::string text, std::size_t n) {
  if (text.size() > n) text.resize(offsetOf(text, n));
  return text;
}

std::string trim(std::string_view text) {
  return std::string{trimmed(text)};
}

std::string_view trimmed(std::string_view text) {
  const std::size_t first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::string sanitize(std::string_view text) {
  std::string clean;
  clean.reserve(text.size());
  for (std::size_t position = 0; position < text.size();) {
    appendCharacter(clean, nextCharacter(text, position));
  }
  return clean;
}

}  // namespace text

#include "platform/richtext/utf8.h"

#include <unicode/utf8.h>

#include <algorithm>
#include <array>
#include <cstdint>

namespace richtext {
namespace {

constexpr char32_t kReplacement = 0xFFFD;

bool isTrail(char byte) {
  return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

// The next code point; anything malformed is U+FFFD.
char32_t nextCharacter(std::string_view text, std::size_t& offset) {
  const auto* bytes = reinterpret_cast<const std::uint8_t*>(text.data());
  UChar32 character = 0;
  U8_NEXT_OR_FFFD(bytes, offset, text.size(), character);
  return static_cast<char32_t>(character);
}

bool isPrintableAscii(char byte) {
  return (byte >= ' ' && byte < '\x7F') || byte == '\t';
}

bool isControl(char32_t character) {
  return (character < U' ' && character != U'\t') || (character >= 0x7F && character < 0xA0);
}

bool isLineEnd(char32_t character) {
  return character >= U'\n' && character <= U'\r';
}

}  // namespace

std::size_t characterCount(std::string_view text) {
  std::size_t count = 0;
  for (const char byte : text) count += isTrail(byte) ? 0U : 1U;
  return count;
}

std::size_t byteOffset(std::string_view text, std::size_t characters) {
  std::size_t offset = 0;
  for (; offset < text.size(); ++offset) {
    if (isTrail(text[offset])) continue;
    if (characters == 0) break;
    --characters;
  }
  return offset;
}

bool isUtf8(std::string_view bytes) {
  const auto* data = reinterpret_cast<const std::uint8_t*>(bytes.data());
  for (std::size_t offset = 0; offset < bytes.size();) {
    UChar32 character = 0;
    U8_NEXT(data, offset, bytes.size(), character);
    if (character < 0) return false;
  }
  return true;
}

std::string cleaned(std::string_view text) {
  if (std::ranges::all_of(text, isPrintableAscii)) return std::string(text);
  std::string result;
  result.reserve(text.size());
  for (std::size_t offset = 0; offset < text.size();) {
    const char32_t character = nextCharacter(text, offset);
    if (isLineEnd(character)) {
      result += ' ';
    } else if (!isControl(character)) {
      appendCharacter(result, character);
    }
  }
  return result;
}

void appendCharacter(std::string& text, char32_t character) {
  const bool scalar = character <= 0x10FFFF && !(character >= 0xD800 && character <= 0xDFFF);
  std::array<char, U8_MAX_LENGTH> bytes{};
  std::size_t size = 0;
  U8_APPEND_UNSAFE(bytes, size, scalar ? character : kReplacement);
  text.append(bytes.data(), size);
}

std::u32string toCodePoints(std::string_view text) {
  std::u32string result;
  result.reserve(text.size());
  for (std::size_t offset = 0; offset < text.size();) result += nextCharacter(text, offset);
  return result;
}

}  // namespace richtext

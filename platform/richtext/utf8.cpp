#include "platform/richtext/utf8.h"

#include <unicode/utf8.h>

#include <algorithm>
#include <cstdint>

#include "platform/text/utf8.h"

namespace richtext {
namespace {

bool isTrail(char byte) {
  return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
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

std::string cleaned(std::string_view raw) {
  if (std::ranges::all_of(raw, isPrintableAscii)) return std::string(raw);
  std::string result;
  result.reserve(raw.size());
  for (std::size_t offset = 0; offset < raw.size();) {
    const char32_t character = text::nextCharacter(raw, offset);
    if (isLineEnd(character)) {
      result += ' ';
    } else if (!isControl(character)) {
      text::appendCharacter(result, character);
    }
  }
  return result;
}

std::u32string toCodePoints(std::string_view raw) {
  std::u32string result;
  result.reserve(raw.size());
  for (std::size_t offset = 0; offset < raw.size();) result += text::nextCharacter(raw, offset);
  return result;
}

}  // namespace richtext

#include "platform/text/codepage.h"

#include <unicode/ucnv.h>

#include <array>
#include <memory>

#include "platform/text/utf8.h"

namespace text {
namespace {

using Characters = std::array<char16_t, 256>;

// An ICU converter keeps state and belongs to one thread; its answers for the 256 bytes do not.
Characters readCodePage() {
  Characters characters{};
  std::array<char, 256> bytes{};
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    bytes[i] = static_cast<char>(i);
    characters[i] = static_cast<char16_t>(i);
  }
  UErrorCode error = U_ZERO_ERROR;
  const std::unique_ptr<UConverter, decltype(&ucnv_close)> converter(
      ucnv_open("windows-1254", &error), &ucnv_close);
  ucnv_toUChars(converter.get(), characters.data(), 256, bytes.data(), 256, &error);
  return characters;
}

const Characters& codePage() {
  static const Characters characters = readCodePage();
  return characters;
}

char toByte(char32_t character) {
  if (character < 0x80) return static_cast<char>(character);
  const Characters& characters = codePage();
  for (std::size_t byte = 0x80; byte < characters.size(); ++byte) {
    if (characters[byte] == character) return static_cast<char>(byte);
  }
  return '?';
}

}  // namespace

std::string fromTurkishCodePage(std::string_view bytes) {
  std::string text;
  text.reserve(bytes.size());
  for (const char byte : bytes) {
    appendCharacter(text, codePage()[static_cast<unsigned char>(byte)]);
  }
  return text;
}

std::string toTurkishCodePage(std::string_view text) {
  std::string bytes;
  bytes.reserve(text.size());
  for (std::size_t position = 0; position < text.size();) {
    bytes += toByte(nextCharacter(text, position));
  }
  return bytes;
}

}  // namespace text

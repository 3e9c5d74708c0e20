#include "platform/text/fold.h"

#include <unicode/bytestream.h>
#include <unicode/casemap.h>
#include <unicode/uchar.h>

#include <algorithm>
#include <cstdint>
#include <limits>

#include "platform/text/utf8.h"

namespace text {
namespace {

using CaseMapping = void (*)(const char*, std::uint32_t, icu::StringPiece, icu::ByteSink&,
                             icu::Edits*, UErrorCode&);

constexpr char upperAscii(char c) {
  return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

constexpr char lowerAscii(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

// ICU counts bytes in 32 bits; a text beyond that stays as it is.
std::string mapped(CaseMapping mapping, const char* language, std::string_view text) {
  if (text.size() > std::numeric_limits<std::int32_t>::max() / 4) return std::string{text};
  std::string result;
  icu::StringByteSink<std::string> sink(&result, static_cast<std::int32_t>(text.size()));
  UErrorCode error = U_ZERO_ERROR;
  mapping(language, 0, {text.data(), static_cast<std::int32_t>(text.size())}, sink, nullptr, error);
  return U_SUCCESS(error) ? result : std::string{text};
}

std::string mappedAscii(char (*mapping)(char), std::string_view text) {
  std::string result{text};
  std::ranges::transform(result, result.begin(), mapping);
  return result;
}

// One character to one character, so that comparing and hashing need no memory.
char32_t nextFolded(std::string_view text, std::size_t& position) {
  const char byte = text[position];
  if (static_cast<unsigned char>(byte) < 0x80) {
    ++position;
    return static_cast<char32_t>(lowerAscii(byte));
  }
  const char32_t character = nextCharacter(text, position);
  return static_cast<char32_t>(u_foldCase(static_cast<UChar32>(character), U_FOLD_CASE_DEFAULT));
}

}  // namespace

std::string upper(std::string_view text) {
  if (isAscii(text)) return mappedAscii(upperAscii, text);
  return mapped(icu::CaseMap::utf8ToUpper, "", text);
}

std::string lower(std::string_view text) {
  if (isAscii(text)) return mappedAscii(lowerAscii, text);
  return mapped(icu::CaseMap::utf8ToLower, "", text);
}

std::string upperTurkish(std::string_view text) {
  if (isAscii(text) && !text.contains('i')) return mappedAscii(upperAscii, text);
  return mapped(icu::CaseMap::utf8ToUpper, "tr", text);
}

bool equalsNoCase(std::string_view a, std::string_view b) {
  std::size_t inA = 0;
  std::size_t inB = 0;
  while (inA < a.size() && inB < b.size()) {
    if (nextFolded(a, inA) != nextFolded(b, inB)) return false;
  }
  return inA == a.size() && inB == b.size();
}

std::size_t hashNoCase(std::string_view name, std::size_t seed) {
  // FNV-1a over characters; the final step separates ("ab", "c") from ("a", "bc").
  constexpr std::uint64_t prime = 0x100000001B3;
  std::uint64_t hash = seed == 0 ? 0xCBF29CE484222325 : seed;
  for (std::size_t position = 0; position < name.size();) {
    hash = (hash ^ nextFolded(name, position)) * prime;
  }
  return static_cast<std::size_t>((hash ^ 0xFFFFFFFF) * prime);
}

}  // namespace text

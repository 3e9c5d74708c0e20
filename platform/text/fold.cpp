#include "platform/text/fold.h"

#include <unicode/bytestream.h>
#include <unicode/casemap.h>
#include <unicode/uchar.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <limits>

#include "platform/text/utf8.h"

namespace text {
namespace {

using CaseMapping = void (*)(const char*, std::uint32_t, icu::StringPiece, icu::ByteSink&,
                             icu::Edits*, UErrorCode&);

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

// The capitals of the characters that European names are written in, so that most names need no
// case mapper. None of these maps otherwise beside another.
class Capitals {
 public:
  explicit Capitals(const char* language) {
    for (std::size_t letter = 0; letter < letters_.size(); ++letter) {
      std::string lower;
      appendCharacter(lower, static_cast<char32_t>(letter));
      const std::string upper = mapped(icu::CaseMap::utf8ToUpper, language, lower);
      letters_[letter].size = static_cast<std::uint8_t>(upper.size());
      std::ranges::copy(upper, letters_[letter].bytes.begin());
    }
  }

  // False at a character that is not among them; what was written is of no use then.
  bool map(std::string& capitals, std::string_view text) const {
    bool known = true;
    // No capital is more than twice as long; each is copied with the room behind it.
    capitals.resize_and_overwrite(2 * text.size() + mostBytes, [&](char* out, std::size_t) {
      char* at = out;
      for (std::size_t i = 0; i < text.size() && known; ++i) {
        const Letter* letter = find(text, i);
        known = letter != nullptr;
        if (known) at = copy(*letter, at);
      }
      return static_cast<std::size_t>(at - out);
    });
    return known;
  }

 private:
  static constexpr std::size_t mostBytes = 3;
  static constexpr std::size_t count = 0x180;
  struct Letter {
    std::array<char, mostBytes> bytes{};
    std::uint8_t size = 0;
  };

  // The letter that starts at `i`, which moves to its last byte.
  const Letter* find(std::string_view text, std::size_t& i) const {
    const auto byte = static_cast<unsigned char>(text[i]);
    if (byte < 0x80) return &letters_[byte];
    if (byte < 0xC2 || byte > 0xC5 || i + 1 == text.size()) return nullptr;
    const auto next = static_cast<unsigned char>(text[++i]);
    return (next & 0xC0U) == 0x80U ? &letters_[((byte & 0x1FU) << 6U) | (next & 0x3FU)] : nullptr;
  }
  static char* copy(const Letter& letter, char* at) {
    std::memcpy(at, letter.bytes.data(), mostBytes);
    return at + letter.size;
  }

  std::array<Letter, count> letters_;
};

void capitalize(std::string& capitals, std::string_view text, const Capitals& known,
                const char* language) {
  if (!known.map(capitals, text)) capitals = mapped(icu::CaseMap::utf8ToUpper, language, text);
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

void upperInto(std::string& capitals, std::string_view text) {
  static const Capitals known("");
  capitalize(capitals, text, known, "");
}

void upperTurkishInto(std::string& capitals, std::string_view text) {
  static const Capitals known("tr");
  capitalize(capitals, text, known, "tr");
}

std::string upper(std::string_view text) {
  std::string capitals;
  upperInto(capitals, text);
  return capitals;
}

std::string lower(std::string_view text) {
  if (isAscii(text)) return mappedAscii(lowerAscii, text);
  return mapped(icu::CaseMap::utf8ToLower, "", text);
}

std::string upperTurkish(std::string_view text) {
  std::string capitals;
  upperTurkishInto(capitals, text);
  return capitals;
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

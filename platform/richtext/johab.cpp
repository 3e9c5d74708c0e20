#include "platform/richtext/johab.h"

#include <array>

#include "platform/text/utf8.h"

namespace richtext {
namespace {

constexpr int kNone = -1;
constexpr int kFiller = -2;  // a letter that the syllable does without

// The places of the letters in Unicode's order, by the five bits that Johab gives them.
constexpr auto kInitials = std::to_array<int>(
    {kNone, kFiller, 0,     1,     2,     3,     4,     5,     6,     7,    8,
     9,     10,      11,    12,    13,    14,    15,    16,    17,    18,   kNone,
     kNone, kNone,   kNone, kNone, kNone, kNone, kNone, kNone, kNone, kNone});
constexpr auto kVowels = std::to_array<int>(
    {kNone, kNone, kFiller, 0,  1,  2,  3,  4,  kNone, kNone, 5,  6,  7,  8,  9,     10,
     kNone, kNone, 11,      12, 13, 14, 15, 16, kNone, kNone, 17, 18, 19, 20, kNone, kNone});
constexpr auto kFinals = std::to_array<int>(
    {kNone, kFiller, 1,     2,  3,  4,  5,  6,  7,  8,  9,  10, 11, 12, 13,    14,
     15,    16,      kNone, 17, 18, 19, 20, 21, 22, 23, 24, 25, 26, 27, kNone, kNone});
constexpr std::u32string_view kLoneInitials = U"ㄱㄲㄴㄷㄸㄹㅁㅂㅃㅅㅆㅇㅈㅉㅊㅋㅌㅍㅎ";
constexpr char32_t kFirstLoneVowel = U'ㅏ';
constexpr char32_t kFirstSyllable = U'가';
constexpr char32_t kReplacement = 0xFFFD;
static_assert(kInitials.size() == 32 && kVowels.size() == 32 && kFinals.size() == 32);

char32_t hangul(unsigned code) {
  const int initial = kInitials[code >> 10U & 31U];
  const int vowel = kVowels[code >> 5U & 31U];
  const int final = kFinals[code & 31U];
  if (initial >= 0 && vowel >= 0 && final != kNone)
    return kFirstSyllable +
           static_cast<char32_t>((initial * 21 + vowel) * 28 + (final == kFiller ? 0 : final));
  if (initial >= 0 && vowel == kFiller && final == kFiller)
    return kLoneInitials[static_cast<std::size_t>(initial)];
  if (initial == kFiller && vowel >= 0 && final == kFiller)
    return kFirstLoneVowel + static_cast<char32_t>(vowel);
  return kReplacement;
}

bool isSignLead(unsigned lead) {
  return (lead >= 0xD9 && lead <= 0xDE) || (lead >= 0xE0 && lead <= 0xF9);
}

// Two rows of 94 signs share a first byte; the second one counts through both, with a gap.
std::string wansungOf(unsigned lead, unsigned trail) {
  const bool low = trail >= 0x31 && trail <= 0x7E;
  if (!low && (trail < 0x91 || trail > 0xFE)) return {};
  const unsigned row = (lead < 0xE0 ? 2 * (lead - 0xD9) : 2 * (lead - 0xE0) + 0x29) + 0xA1;
  const unsigned place = low ? trail - 0x31 : trail - 0x43;
  return {static_cast<char>(row + place / 94), static_cast<char>(0xA1 + place % 94)};
}

}  // namespace

JohabCharacter takeJohab(std::string_view& bytes) {
  JohabCharacter taken;
  const auto lead = static_cast<unsigned char>(bytes.front());
  if (lead < 0x80) {
    taken.utf8 = bytes.front();
    bytes.remove_prefix(1);
    return taken;
  }
  const bool whole = bytes.size() > 1;
  const unsigned trail = whole ? static_cast<unsigned char>(bytes[1]) : 0;
  bytes.remove_prefix(whole ? 2 : 1);
  if (whole && isSignLead(lead)) taken.wansung = wansungOf(lead, trail);
  if (!taken.wansung.empty()) return taken;
  const bool spelt = whole && lead >= 0x84 && lead <= 0xD3;
  text::appendCharacter(taken.utf8, spelt ? hangul(lead << 8U | trail) : kReplacement);
  return taken;
}

}  // namespace richtext

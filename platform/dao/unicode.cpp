#include "platform/dao/unicode.h"

#include <unicode/ustring.h>
#include <unicode/utf8.h>

#include "platform/dao/prefix_search.h"

namespace dao {
namespace {

constexpr char16_t kSmallI = u'i';
constexpr char16_t kCapitalI = u'I';
constexpr char16_t kCapitalDottedI = 0x0130;
constexpr char16_t kSmallDotlessI = 0x0131;
constexpr UChar32 kReplacement = 0xFFFD;

int32_t sizeOf(std::string_view text) {
  return static_cast<int32_t>(text.size());
}

bool isTrail(char byte) {
  return U8_IS_TRAIL(static_cast<uint8_t>(byte));
}

std::u16string upper(const std::u16string& wide) {
  std::u16string result(wide.size() * 3, u'\0');  // no character has more than three capitals
  UErrorCode error = U_ZERO_ERROR;
  const int32_t length = u_strToUpper(result.data(), static_cast<int32_t>(result.size()),
                                      wide.data(), static_cast<int32_t>(wide.size()), "", &error);
  result.resize(static_cast<std::size_t>(length));
  return result;
}

}  // namespace

std::u16string toUtf16(std::string_view text) {
  std::u16string wide(text.size(), u'\0');  // UTF-16 never needs more units than UTF-8 has bytes
  UErrorCode error = U_ZERO_ERROR;
  int32_t length = 0;
  u_strFromUTF8WithSub(wide.data(), sizeOf(text), &length, text.data(), sizeOf(text), kReplacement,
                       nullptr, &error);
  wide.resize(static_cast<std::size_t>(length));
  return wide;
}

std::string toUtf8(std::u16string_view wide) {
  std::string text(wide.size() * 3, '\0');
  UErrorCode error = U_ZERO_ERROR;
  int32_t length = 0;
  u_strToUTF8WithSub(text.data(), sizeOf(text), &length, wide.data(),
                     static_cast<int32_t>(wide.size()), kReplacement, nullptr, &error);
  text.resize(static_cast<std::size_t>(length));
  return text;
}

std::u32string characters(std::string_view text) {
  const std::u16string wide = toUtf16(text);
  std::u32string result(wide.size(), U'\0');
  UErrorCode error = U_ZERO_ERROR;
  int32_t length = 0;
  u_strToUTF32(reinterpret_cast<UChar32*>(result.data()), static_cast<int32_t>(result.size()),
               &length, wide.data(), static_cast<int32_t>(wide.size()), &error);
  result.resize(static_cast<std::size_t>(length));
  return result;
}

std::string folded(std::string_view text, Fold fold) {
  std::u16string wide = toUtf16(text);
  if (fold == Fold::Turkish) {
    for (char16_t& unit : wide) {
      if (unit == kSmallI) unit = kCapitalDottedI;
      if (unit == kSmallDotlessI) unit = kCapitalI;
    }
  }
  return toUtf8(upper(wide));
}

std::string repairedUtf8(std::string_view text) {
  return toUtf8(toUtf16(text));
}

int characterCount(std::string_view text) {
  int count = 0;
  for (const char byte : text) count += !isTrail(byte);
  return count;
}

std::string_view leftCharacters(std::string_view text, std::int64_t characters) {
  std::size_t end = 0;
  while (characters-- > 0 && end < text.size()) {
    do ++end;
    while (end < text.size() && isTrail(text[end]));
  }
  return text.substr(0, end);
}

}  // namespace dao

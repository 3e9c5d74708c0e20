#include "platform/dao/collation.h"

#include <unicode/ucol.h>
#include <unicode/ustring.h>

#include <algorithm>
#include <array>

namespace dao {
namespace {

std::string_view withoutTrailingBlanks(std::string_view text) {
  return text.substr(0, text.find_last_not_of(' ') + 1);
}

int32_t sizeOf(std::string_view text) {
  return static_cast<int32_t>(text.size());
}

std::u16string toUtf16(std::string_view text) {
  constexpr UChar32 kReplacement = 0xFFFD;
  std::u16string wide(text.size(), u'\0');  // UTF-16 never needs more units than UTF-8 has bytes
  UErrorCode error = U_ZERO_ERROR;
  int32_t length = 0;
  u_strFromUTF8WithSub(wide.data(), sizeOf(text), &length, text.data(), sizeOf(text), kReplacement,
                       nullptr, &error);
  wide.resize(static_cast<std::size_t>(length));
  return wide;
}

}  // namespace

void Collator::Closer::operator()(UCollator* collator) const {
  ucol_close(collator);
}

Collator::Collator(Order order) {
  UErrorCode error = U_ZERO_ERROR;
  collator_.reset(ucol_open(order == Order::Turkish ? "tr" : "root", &error));
  if (collator_) ucol_setStrength(collator_.get(), UCOL_SECONDARY);
}

int Collator::compare(std::string_view left, std::string_view right) const {
  left = withoutTrailingBlanks(left);
  right = withoutTrailingBlanks(right);
  UErrorCode error = U_ZERO_ERROR;
  return ucol_strcollUTF8(collator_.get(), left.data(), sizeOf(left), right.data(), sizeOf(right),
                          &error);
}

std::string Collator::key(std::string_view text) const {
  const std::u16string wide = toUtf16(withoutTrailingBlanks(text));
  const auto units = static_cast<int32_t>(wide.size());
  std::array<uint8_t, 256> room;
  const int32_t length = ucol_getSortKey(collator_.get(), wide.data(), units, room.data(),
                                         static_cast<int32_t>(room.size()));
  std::string key(static_cast<std::size_t>(length), '\0');
  if (key.size() <= room.size()) {
    std::copy_n(room.begin(), key.size(), key.begin());
  } else {
    ucol_getSortKey(collator_.get(), wide.data(), units, reinterpret_cast<uint8_t*>(key.data()),
                    length);
  }
  if (!key.empty()) key.pop_back();  // the closing zero
  return key;
}

std::string Collator::version() const {
  std::array<uint8_t, U_MAX_VERSION_LENGTH> parts{};
  ucol_getVersion(collator_.get(), parts.data());
  std::string text;
  for (const int part : parts) text += (text.empty() ? "" : ".") + std::to_string(part);
  return text;
}

}  // namespace dao

#include "platform/richtext/rtf_lexer.h"

#include <algorithm>
#include <array>

namespace richtext {
namespace {

constexpr int kEightDigits = 99'999'999;

constexpr std::array<bool, 256> kEndsText = [] {
  std::array<bool, 256> ends{};
  for (const char byte : {'\\', '{', '}', '\r', '\n'})
    ends[static_cast<unsigned char>(byte)] = true;
  return ends;
}();

bool endsText(char byte) {
  return kEndsText[static_cast<unsigned char>(byte)];
}
bool isLetter(char byte) {
  return (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z');
}
bool isDigit(char byte) {
  return byte >= '0' && byte <= '9';
}

std::optional<unsigned char> hexDigit(char byte) {
  if (isDigit(byte)) return static_cast<unsigned char>(byte - '0');
  if (byte >= 'a' && byte <= 'f') return static_cast<unsigned char>(byte - 'a' + 10);
  if (byte >= 'A' && byte <= 'F') return static_cast<unsigned char>(byte - 'A' + 10);
  return std::nullopt;
}

}  // namespace

RtfToken RtfLexer::next() {
  while (offset_ < bytes_.size() && (bytes_[offset_] == '\r' || bytes_[offset_] == '\n')) ++offset_;
  if (offset_ == bytes_.size()) return {};
  const std::size_t start = offset_;
  switch (bytes_[offset_]) {
    case '{':
      ++offset_;
      return {RtfToken::Kind::Open, {}, {}, 0};
    case '}':
      ++offset_;
      return {RtfToken::Kind::Close, {}, {}, 0};
    case '\\':
      ++offset_;
      return control();
    default:
      while (offset_ < bytes_.size() && !endsText(bytes_[offset_])) ++offset_;
      return {RtfToken::Kind::Text, bytes_.substr(start, offset_ - start), {}, 0};
  }
}

// "\\}" behind the first byte of a character is the second one escaped, or a backslash and the end
// of a group. Which of them, the braces of the file tell: escaped ones leave the others in pairs.
std::string_view RtfLexer::takeSignByte() {
  const std::string_view rest = bytes_.substr(offset_, 2);
  if (rest.empty() || std::string_view("\\{}").find(rest.front()) == rest.npos) return {};
  const char behind = rest.front() == '\\' && rest.size() == 2 ? rest.back() : '\0';
  if (behind == '\\' || behind == '\'') return {};
  if ((behind == '{' || behind == '}') && bracesPair()) return {};
  ++offset_;
  return rest.substr(0, 1);
}

bool RtfLexer::bracesPair() {
  if (bracesPair_) return *bracesPair_;
  std::ptrdiff_t open = 0;
  for (std::size_t at = 0; at < bytes_.size(); ++at) {
    if (bytes_[at] == '\\')
      ++at;
    else if (bytes_[at] == '{')
      ++open;
    else if (bytes_[at] == '}')
      --open;
  }
  bracesPair_ = open == 0;
  return *bracesPair_;
}

RtfToken RtfLexer::control() {
  if (offset_ == bytes_.size()) return {};
  if (isLetter(bytes_[offset_])) return word();
  const char symbol = bytes_[offset_++];
  if (symbol == '\'') return hexByte();
  return {RtfToken::Kind::Symbol, {}, {}, static_cast<unsigned char>(symbol)};
}

// Without two digits nothing but the mark itself is passed over.
RtfToken RtfLexer::hexByte() {
  const std::string_view digits = bytes_.substr(offset_, 2);
  const auto high = hexDigit(digits.empty() ? '\0' : digits.front());
  const auto low = hexDigit(digits.size() < 2 ? '\0' : digits.back());
  if (!high || !low) return {RtfToken::Kind::Text, {}, {}, 0};
  offset_ += digits.size();
  return {RtfToken::Kind::Byte, {}, {}, static_cast<unsigned char>(*high * 16 + *low)};
}

RtfToken RtfLexer::word() {
  const std::size_t start = offset_;
  while (offset_ < bytes_.size() && isLetter(bytes_[offset_])) ++offset_;
  RtfToken token{RtfToken::Kind::Word, bytes_.substr(start, offset_ - start), parameter(), 0};
  if (offset_ < bytes_.size() && bytes_[offset_] == ' ') ++offset_;
  if (token.text == "bin") skipBinary(token.parameter);
  return token;
}

// A minus sign belongs to the parameter only with a digit behind it.
std::optional<int> RtfLexer::parameter() {
  std::size_t digits = offset_;
  const bool negative = digits < bytes_.size() && bytes_[digits] == '-';
  if (negative) ++digits;
  if (digits == bytes_.size() || !isDigit(bytes_[digits])) return std::nullopt;
  int value = 0;
  for (; digits < bytes_.size() && isDigit(bytes_[digits]); ++digits)
    if (value <= kEightDigits) value = value * 10 + (bytes_[digits] - '0');
  offset_ = digits;
  return negative ? -value : value;
}

void RtfLexer::skipBinary(std::optional<int> size) {
  const auto wanted = static_cast<std::size_t>(std::max(size.value_or(0), 0));
  offset_ += std::min(wanted, bytes_.size() - offset_);
}

}  // namespace richtext

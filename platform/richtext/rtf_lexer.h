// Cuts the bytes of a rich-text file into its tokens. Any bytes at all give tokens.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace richtext {

struct RtfToken {
  enum class Kind { End, Open, Close, Word, Symbol, Byte, Text };

  Kind kind = Kind::End;
  std::string_view text;         // the word's name, or a stretch of plain bytes
  std::optional<int> parameter;  // of a word, cut behind nine digits
  unsigned char byte = 0;        // the symbol's character, or the value of \'xx
};

// Views into the bytes, which must outlive it. Raw bytes behind \bin are passed over here.
class RtfLexer {
 public:
  explicit RtfLexer(std::string_view bytes) : bytes_(bytes) {}

  RtfToken next();
  // The brace or backslash that comes next, as the second byte of a character; nothing when
  // something else comes, or one that is written with a backslash of its own.
  std::string_view takeSignByte();

 private:
  bool bracesPair();
  RtfToken control();
  RtfToken hexByte();
  RtfToken word();
  std::optional<int> parameter();
  void skipBinary(std::optional<int> size);

  std::string_view bytes_;
  std::size_t offset_ = 0;
  std::optional<bool> bracesPair_;  // once somebody has counted
};

}  // namespace richtext

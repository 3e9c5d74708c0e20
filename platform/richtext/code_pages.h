// Bytes of the code pages that rich-text files name, turned into UTF-8.
#pragma once

#include <unicode/ucnv.h>

#include <map>
#include <memory>
#include <string>
#include <string_view>

namespace richtext {

constexpr int kTurkishCodePage = 1254;
constexpr int kSymbolCodePage = 42;
constexpr int kJohabCodePage = 1361;

// The Windows code page of a font's character set number; 0 for the sets that follow the document.
int codePageOfCharset(int charset);

// Whether a character of two bytes begins with this one.
bool isLeadByte(int codePage, char byte);
// Whether the second byte of a character may be a brace or a backslash.
bool mayEndInSign(int codePage);

// Opens each converter once; one object serves one reader.
class CodePages {
 public:
  // Appends the decoded bytes; what a page cannot decode becomes U+FFFD. A page that is not known
  // is read as Turkish. Symbol fonts give the Greek letters and signs of the Symbol font, and the
  // private characters from U+F020 for the rest.
  void decode(int codePage, std::string_view bytes, std::string& utf8);

 private:
  void decodeJohab(std::string_view bytes, std::string& utf8);
  struct Closer {
    void operator()(UConverter* converter) const { ucnv_close(converter); }
  };
  using Converter = std::unique_ptr<UConverter, Closer>;

  UConverter* converter(int codePage);

  std::map<int, Converter> converters_;
};

}  // namespace richtext

#include <string>

#include "platform/richtext/code_pages.h"
#include "platform/richtext/rtf_reader.h"
#include "platform/richtext/utf8.h"

namespace richtext {

Document readPlain(std::string_view bytes, const CharFormat& format) {
  constexpr std::string_view kMark = "\xEF\xBB\xBF";
  if (bytes.starts_with(kMark)) return Document::fromText(bytes.substr(kMark.size()), format);
  if (isUtf8(bytes)) return Document::fromText(bytes, format);
  std::string text;
  CodePages().decode(kTurkishCodePage, bytes, text);
  return Document::fromText(text, format);
}

}  // namespace richtext

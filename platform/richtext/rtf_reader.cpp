#include "platform/richtext/rtf_reader.h"

#include <algorithm>

#include "platform/richtext/rtf_interpreter.h"

namespace richtext {

namespace {

// Editors of plain text put a mark or blanks in front.
std::string_view withoutMark(std::string_view bytes) {
  constexpr std::string_view mark = "\xEF\xBB\xBF";
  if (bytes.starts_with(mark)) bytes.remove_prefix(mark.size());
  return bytes.substr(std::min(bytes.find_first_not_of(" \t\r\n"), bytes.size()));
}

}  // namespace

platform::Result<Document> readRtf(std::string_view bytes, const ReadLimits& limits) {
  using platform::Fault;
  using platform::Status;
  if (bytes.empty()) return Document();
  bytes = withoutMark(bytes);
  if (bytes.size() > limits.inputBytes)
    return std::unexpected(Status(Fault::Damaged, "The rich-text file is too big."));
  return RtfInterpreter(bytes, limits).run();
}

}  // namespace richtext

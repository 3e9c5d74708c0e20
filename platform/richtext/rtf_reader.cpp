#include "platform/richtext/rtf_reader.h"

#include "platform/richtext/rtf_interpreter.h"

namespace richtext {

platform::Result<Document> readRtf(std::string_view bytes, const ReadLimits& limits) {
  using platform::Fault;
  using platform::Status;
  if (bytes.empty()) return Document();
  if (bytes.size() > limits.inputBytes)
    return std::unexpected(Status(Fault::Damaged, "The rich-text file is too big."));
  return RtfInterpreter(bytes, limits).run();
}

}  // namespace richtext

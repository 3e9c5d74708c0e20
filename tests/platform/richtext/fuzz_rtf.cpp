// Fuzzing: any bytes must end in a status or in a sound document that survives being written.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "platform/richtext/rtf_reader.h"
#include "platform/richtext/rtf_writer.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  const auto document = richtext::readRtf(bytes);
  if (!document) return 0;
  if (!(richtext::Document(document->paragraphs()) == *document)) std::abort();
  const auto again = richtext::readRtf(richtext::writeRtf(*document));
  if (!again || again->plainText() != document->plainText()) std::abort();
  return 0;
}

#include "shell/letterhead.h"

#include <filesystem>
#include <fstream>
#include <iterator>

#include "platform/files/atomic_write.h"
#include "platform/richtext/rtf_reader.h"
#include "platform/richtext/rtf_writer.h"

namespace shell {

platform::Result<richtext::Document> basligiOku(const Station& istasyon) {
  std::ifstream file(istasyon.dosya(letterhead::text), std::ios::binary);
  if (!file) return richtext::Document();
  const std::string bytes{std::istreambuf_iterator<char>(file), {}};
  return richtext::readRtf(bytes);
}

platform::Status basligiYaz(const Station& istasyon, const richtext::Document& baslik) {
  return files::writeAtomically(istasyon.dosya(letterhead::text), richtext::writeRtf(baslik));
}

}  // namespace shell

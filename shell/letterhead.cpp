#include "shell/letterhead.h"

#include "platform/files/atomic_write.h"
#include "platform/richtext/rtf_reader.h"
#include "platform/richtext/rtf_writer.h"
#include "shell/fault_words.h"
#include "shell/phrases.h"

namespace shell {

// What a page can show at its head, many times over; more would keep every page waiting.
constexpr richtext::ReadLimits letterheadLimits{.textBytes = std::size_t{1} << 18U,
                                                .pieces = 20'000};

platform::Result<richtext::Document> basligiOku(const Station& istasyon) {
  const auto bytes = files::readFile(istasyon.dosya(letterhead::text), largestLetterhead);
  if (bytes) return richtext::readRtf(*bytes, letterheadLimits);
  if (bytes.error().fault() == platform::Fault::Missing) return richtext::Document();
  return std::unexpected(bytes.error());
}

void baslikOkunurMu(Station& istasyon) {
  const auto read = basligiOku(istasyon);
  if (!read) hataSoyle(istasyon, Phrase::LetterheadNotRead, read.error());
}

platform::Status basligiYaz(const Station& istasyon, const richtext::Document& baslik) {
  return files::writeAtomically(istasyon.dosya(letterhead::text), richtext::writeRtf(baslik));
}

}  // namespace shell

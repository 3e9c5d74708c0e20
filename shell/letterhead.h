// The practice's letterhead as the stations of a folder share it.
#pragma once

#include <string>

#include "platform/files/read_file.h"
#include "platform/richtext/document.h"
#include "platform/status/status.h"
#include "shell/station.h"

namespace shell {

namespace letterhead {
inline constexpr auto text = "Data/Baslik.rtf";
inline constexpr auto picture = "Data/Baslik.bmp";
inline constexpr auto icon = "Data/Baslik.ico";
}  // namespace letterhead

// Far beyond any heading of a page.
inline constexpr std::size_t largestLetterhead = 8 * files::megabyte;

// Empty when there is no letterhead yet; Damaged when the file is no rich text, TooLarge beyond the
// limit.
[[nodiscard]] platform::Result<richtext::Document> basligiOku(const Station& istasyon);
// Tells the user when there is a letterhead that cannot be read.
void baslikOkunurMu(Station& istasyon);
platform::Status basligiYaz(const Station& istasyon, const richtext::Document& baslik);

}  // namespace shell

// The practice's letterhead as the stations of a folder share it.
#pragma once

#include <string>

#include "platform/richtext/document.h"
#include "platform/status/status.h"
#include "shell/station.h"

namespace shell {

namespace letterhead {
inline constexpr auto text = "Data/Baslik.rtf";
inline constexpr auto picture = "Data/Baslik.bmp";
inline constexpr auto icon = "Data/Baslik.ico";
}  // namespace letterhead

// Empty when there is no letterhead yet; Damaged when the file is no rich text.
[[nodiscard]] platform::Result<richtext::Document> basligiOku(const Station& istasyon);
platform::Status basligiYaz(const Station& istasyon, const richtext::Document& baslik);

}  // namespace shell

// A layout in a record of Data/setting.dat: its numbers hold the places of up to six items and,
// last, which of them are printed; its two spare text fields hold the fonts. The record's owner,
// font, template and signature are nobody's business here, so that a layout can lie in the record
// of another screen.
#pragma once

#include <cstddef>
#include <vector>

#include "documents/page_layout.h"
#include "platform/files/setting_record.h"

namespace documents {

// A record in which no layout was ever written leaves the layout as it is; so does, for its item, a
// font that cannot be read.
void yerlesimOku(PageLayout& layout, const files::SettingRecord& record);
void yerlesimYaz(const PageLayout& layout, files::SettingRecord& record);

// The items whose font would not come back from the record: its fields have no room for so many
// long names, or no characters for them. Such an item comes back with its size and style alone.
[[nodiscard]] std::vector<std::size_t> unkeptFonts(const PageLayout& layout);

}  // namespace documents

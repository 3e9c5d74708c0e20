// The pictures of a record: six paths that its screen keeps in its text fields txtp1 to txtp6. The
// fields are rows of the screen's field table as any other, so that storing, snapshot and clearing
// know them.
#pragma once

#include <string_view>

#include "shell/record_screen.h"

namespace shell {

inline constexpr std::string_view pictureScreen = "frmpicture";

// The record whose pictures are opened: the caption of the menu entry, the date and the patient.
struct PictureRecord {
  std::string_view entry;
  std::string_view tarih;
  std::string_view isim;
};

// What a screen's entry `mnuresim` does: opens the archive on the fields of the screen and, when it
// was left with OK, writes those that differ, each of which fires its Change.
void resimArsivi(Station& istasyon, RecordScreen& owner, const PictureRecord& record);

}  // namespace shell

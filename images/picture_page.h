// The printed page of the archive: the picture that is shown, else the sheet of all six.
#pragma once

#include <span>
#include <string>

#include "images/picture_fit.h"
#include "platform/page/page.h"
#include "shell/station.h"

namespace images {

struct PrintedPicture {
  std::string path;
  Extent natural;  // empty for a picture that cannot be shown: its cell stays empty
};
struct PicturePage {
  std::string isim;
  std::string tarih;
  std::span<const PrintedPicture> pictures;  // one alone gets the whole page
};

// Under the letterhead. The station has a printer.
[[nodiscard]] page::Pages resimSayfasi(const shell::Station& istasyon, const PicturePage& page);

}  // namespace images

// The printed page of the archive: the picture that is shown, else the sheet of all six.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "images/picture_fit.h"

namespace images {

// In twips.
struct PagePlace {
  int x = 0;
  int y = 0;
  Extent size;
  bool operator==(const PagePlace&) const = default;
};

// What the page asks of a printer or a preview.
class PictureDevice {
 public:
  virtual ~PictureDevice() = default;
  // The practice's letterhead, from this height down.
  virtual void letterhead(int y) = 0;
  virtual void text(int x, int y, std::string_view line) = 0;
  virtual void picture(std::string_view path, const PagePlace& place) = 0;
};

struct PrintedPicture {
  std::string path;
  Extent natural;  // empty for a picture that cannot be shown: its cell stays empty
};
struct PicturePage {
  std::string isim;
  std::string tarih;
  std::span<const PrintedPicture> pictures;  // one alone gets the whole page
};

void drawPicturePage(PictureDevice& device, const PicturePage& page);

}  // namespace images

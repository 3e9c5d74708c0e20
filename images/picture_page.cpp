#include "images/picture_page.h"

#include <algorithm>
#include <array>

namespace images {

namespace {

constexpr int letterheadTop = 300;
constexpr int headerLeft = 7500;
constexpr int headerTop = 1600;
constexpr int headerLine = 300;

constexpr std::array columns{500, 5000};
constexpr std::array rows{2500, 6000, 9500};
constexpr Extent cell{4300, 3300};
constexpr PagePlace wholePage{500, 2500, {11000, 13500}};

PagePlace cellOf(std::size_t number) {
  return {columns.at(number % columns.size()), rows.at(number / columns.size()), cell};
}

void draw(PictureDevice& device, const PrintedPicture& picture, const PagePlace& room) {
  const Extent size = fitted(picture.natural, room.size, Enlarging::Allowed);
  if (size.empty()) return;
  device.picture(picture.path, {room.x, room.y, size});
}

}  // namespace

void drawPicturePage(PictureDevice& device, const PicturePage& page) {
  device.letterhead(letterheadTop);
  device.text(headerLeft, headerTop, page.isim);
  device.text(headerLeft, headerTop + headerLine, page.tarih);
  if (page.pictures.size() == 1) return draw(device, page.pictures.front(), wholePage);
  const std::size_t count = std::min(page.pictures.size(), columns.size() * rows.size());
  for (std::size_t i = 0; i < count; ++i) draw(device, page.pictures[i], cellOf(i));
}

}  // namespace images

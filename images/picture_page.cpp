#include "images/picture_page.h"

#include <algorithm>
#include <array>

#include "documents/page_parts.h"
#include "platform/page/printer.h"

namespace images {

namespace {

// In twips.
struct Room {
  int x;
  int y;
  Extent size;
};

constexpr int headerLeft = 7500;
constexpr int headerTop = 1600;

constexpr std::array columns{500, 5000};
constexpr std::array rows{2500, 6000, 9500};
constexpr Extent cell{4300, 3300};
constexpr Room wholePage{500, 2500, {11000, 13500}};

Room cellOf(std::size_t number) {
  return {columns.at(number % columns.size()), rows.at(number / columns.size()), cell};
}

void draw(page::Device& device, const PrintedPicture& picture, const Room& room) {
  const Extent size = fitted(picture.natural, room.size, Enlarging::Allowed);
  if (size.empty()) return;
  device.paintPicture(picture.path, room.x, room.y, page::Size{size.width, size.height});
}

void printPatient(page::Device& device, const PicturePage& page) {
  device.left = headerLeft;
  device.x = headerLeft;
  device.y = headerTop;
  device.print(page.isim);
  device.print(page.tarih);
}

void drawAll(page::Device& device, std::span<const PrintedPicture> pictures) {
  if (pictures.size() == 1) return draw(device, pictures.front(), wholePage);
  const std::size_t count = std::min(pictures.size(), columns.size() * rows.size());
  for (std::size_t i = 0; i < count; ++i) draw(device, pictures[i], cellOf(i));
}

}  // namespace

page::Pages resimSayfasi(const shell::Station& istasyon, const PicturePage& page) {
  page::Device device(istasyon.yazici->metrics());
  documents::YaziciFontuAyarla(device, {});
  documents::BaslikYazici(istasyon, device);
  printPatient(device, page);
  drawAll(device, page.pictures);
  return device.endDocument();
}

}  // namespace images

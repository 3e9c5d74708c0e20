#include "desktop/print/pictures.h"

#include "desktop/picture_frame.h"
#include "desktop/text.h"

namespace desktop {

const QImage& PagePictures::of(const std::string& path, const QSize& limit) {
  Read& read = read_[path];
  if (read.limit != limit) read = {limit, loadPicture(qs(path), limit)};
  return read.image;
}

}  // namespace desktop

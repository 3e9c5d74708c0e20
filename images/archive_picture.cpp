#include "images/archive_picture.h"

namespace images {

void ArchivePicture::open(std::string_view path) {
  natural_.reset();
  fault_.reset();
  setPath({});
  setPath(path);
  Change();
}

void ArchivePicture::report(Extent natural) {
  if (natural_ == natural) return;
  natural_ = natural;
  fault_.reset();
  Change();
}

void ArchivePicture::report(PictureFault fault) {
  if (fault_ == fault) return;
  fault_ = fault;
  natural_.reset();
  Change();
}

}  // namespace images

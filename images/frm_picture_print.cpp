// The pictures of the record on paper.
#include <vector>

#include "documents/print_job.h"
#include "images/frm_picture.h"
#include "images/picture_page.h"

namespace images {

page::Pages FrmPicture::sayfa() const {
  std::vector<PrintedPicture> pictures;
  if (picfoto.natural()) {
    pictures.push_back({picfoto.path(), *picfoto.natural()});
  } else {
    for (const ArchivePicture* picture : resimler_)
      pictures.push_back({picture->path(), picture->natural().value_or(Extent())});
  }
  return resimSayfasi(
      istasyon,
      {.isim = istasyon.Resimler.isim, .tarih = istasyon.Resimler.tarih, .pictures = pictures});
}

void FrmPicture::oniz() {
  if (documents::yazdirilabilir(istasyon) && documents::sayfalariGoster(istasyon, sayfa()))
    Yazdır();
}

void FrmPicture::Yazdır() {
  if (documents::yazdirilabilir(istasyon)) documents::sayfalariYazdir(istasyon, caption(), sayfa());
}

}  // namespace images

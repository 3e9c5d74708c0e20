#include "desktop/bind/bind_archive.h"

#include "desktop/text.h"

namespace desktop {

void bind(ArchiveFrame& frame, images::ArchivePicture& picture) {
  using forms::Aspect;
  Binding& binding = attach(frame, picture, Follow::All, [&](Aspect aspect) {
    if (aspect == Aspect::Image) frame.setPath(qs(picture.path()));
    if (aspect == Aspect::Caption) frame.setWords(qs(picture.caption()));
    if (aspect != Aspect::Range) return;
    const forms::Picture::Frame& place = picture.frame();
    frame.setPlace({place.left, place.top, place.width, place.height});
  });
  QObject::connect(&frame, &ArchiveFrame::shown, &binding, [&](const QSize& natural) {
    picture.report(images::Extent{natural.width(), natural.height()});
  });
  QObject::connect(&frame, &ArchiveFrame::failed, &binding,
                   [&](images::PictureFault fault) { picture.report(fault); });
  QObject::connect(&frame, &ArchiveFrame::resized, &binding,
                   [&](const QSize& size) { picture.Resize(size.width(), size.height()); });
  QObject::connect(&frame, &ArchiveFrame::clicked, &binding, [&] { picture.Click(); });
  QObject::connect(&frame, &ArchiveFrame::doubleClicked, &binding, [&] { picture.DblClick(); });
  QObject::connect(&frame, &ArchiveFrame::rightClicked, &binding, [&] { picture.RightClick(); });
}

}  // namespace desktop

#include "desktop/bind/bind_picture.h"

#include "desktop/text.h"

namespace desktop {

void bind(PictureFrame& frame, forms::Picture& picture) {
  using forms::Aspect;
  Binding& binding = attach(frame, picture, Follow::All, [&](Aspect aspect) {
    if (aspect == Aspect::Image) frame.setPath(qs(picture.path()));
    if (aspect != Aspect::Range) return;
    const forms::Picture::Frame& place = picture.frame();
    frame.setPlace({place.left, place.top, place.width, place.height});
  });
  QObject::connect(&frame, &PictureFrame::resized, &binding,
                   [&](const QSize& size) { picture.Resize(size.width(), size.height()); });
  QObject::connect(&frame, &PictureFrame::clicked, &binding, [&] { picture.Click(); });
  QObject::connect(&frame, &PictureFrame::doubleClicked, &binding, [&] { picture.DblClick(); });
}

}  // namespace desktop

#include "desktop/picture_frame.h"

#include <QMouseEvent>
#include <QPainter>
#include <chrono>

#include "desktop/pictures/picture_reader.h"

namespace desktop {

QSize naturalSize(const QString& path) {
  constexpr QSize smallest{1, 1};
  return readPicture(path, smallest).natural;
}

QImage loadPicture(const QString& path, const QSize& limit, QSize* natural) {
  // The window waits for it.
  using Clock = std::chrono::steady_clock;
  const auto end = Clock::now() + std::chrono::seconds(3);
  ReadPicture read = readPicture(path, limit, [end] { return Clock::now() > end; });
  if (natural != nullptr) *natural = read.natural;
  return std::move(read.image);
}

PictureFrame::PictureFrame(QWidget* parent) : QFrame(parent) {
  setFrameShape(QFrame::NoFrame);
}

void PictureFrame::setPath(const QString& path) {
  if (path == path_ && showsPicture()) return;
  path_ = path;
  reload();
  // A frame without room tells by the file's header alone.
  emit loaded(showsPicture() || (size().isEmpty() && isPicture(path_)));
}

void PictureFrame::setPlace(const QRect& place) {
  if (place == place_) return;
  const bool sameSize = place.size() == place_.size();
  place_ = place;
  sameSize ? update() : reload();
}

void PictureFrame::reload() {
  image_ = {};
  natural_ = {};
  const QSize room = (place_.isEmpty() ? size() : place_.size()) * devicePixelRatioF();
  if (!path_.isEmpty() && !room.isEmpty()) image_ = loadPicture(path_, room, &natural_);
  update();
}

QRect PictureFrame::placeFor(const QSize& picture) const {
  if (!place_.isEmpty()) return place_;
  const QSize fitted = picture.scaled(size().boundedTo(natural_), Qt::KeepAspectRatio);
  return {QPoint((width() - fitted.width()) / 2, (height() - fitted.height()) / 2), fitted};
}

void PictureFrame::paintEvent(QPaintEvent* event) {
  QFrame::paintEvent(event);
  if (image_.isNull()) return;
  QPainter painter(this);
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  painter.drawImage(placeFor(image_.size()), image_);
}

void PictureFrame::resizeEvent(QResizeEvent* event) {
  QFrame::resizeEvent(event);
  if (place_.isEmpty()) reload();
  emit resized(size());
}

void PictureFrame::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) emit clicked();
}

void PictureFrame::mouseDoubleClickEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) emit doubleClicked();
}

}  // namespace desktop

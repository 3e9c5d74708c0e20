#include "desktop/picture_frame.h"

#include <QImageReader>
#include <QMouseEvent>
#include <QPainter>

namespace desktop {

namespace {

constexpr qint64 mostPixels = 150'000'000;

// The size as it stands after the camera's rotation.
QSize uprightSize(const QImageReader& reader) {
  const bool turned = reader.transformation().testFlag(QImageIOHandler::TransformationRotate90);
  return turned ? reader.size().transposed() : reader.size();
}

QSize scaledSize(const QImageReader& reader, const QSize& limit) {
  const QSize upright = uprightSize(reader);
  const QSize fitted =
      upright.scaled(limit.boundedTo(upright), Qt::KeepAspectRatio).expandedTo({1, 1});
  return uprightSize(reader) == reader.size() ? fitted : fitted.transposed();
}

bool isUsable(const QSize& size) {
  return !size.isEmpty() && qint64{size.width()} * size.height() <= mostPixels;
}

void prepare(QImageReader& reader) {
  reader.setAutoTransform(true);
  reader.setDecideFormatFromContent(true);
}

}  // namespace

QSize naturalSize(const QString& path) {
  QImageReader reader(path);
  prepare(reader);
  return isUsable(reader.size()) ? uprightSize(reader) : QSize();
}

QImage loadPicture(const QString& path, const QSize& limit, QSize* natural) {
  QImageReader reader(path);
  prepare(reader);
  if (!isUsable(reader.size())) return {};
  if (natural != nullptr) *natural = uprightSize(reader);
  if (!limit.isEmpty()) reader.setScaledSize(scaledSize(reader, limit));
  return reader.read();
}

PictureFrame::PictureFrame(QWidget* parent) : QFrame(parent) {
  setFrameShape(QFrame::NoFrame);
}

void PictureFrame::setPath(const QString& path) {
  if (path == path_ && showsPicture()) return;
  path_ = path;
  reload();
  // A frame without room tells by the file's header alone.
  emit loaded(showsPicture() || (size().isEmpty() && QImageReader(path_).canRead()));
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

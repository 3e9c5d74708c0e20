#include "desktop/pictures/archive_frame.h"

#include <QContextMenuEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QTextOption>
#include <cmath>

#include "desktop/layout.h"

namespace desktop {

namespace {

constexpr int restMilliseconds = 80;  // a window that is pulled larger asks once, at the end
constexpr double mostDecodedPixels = 32e6;
constexpr double tooSharp = 1.5;  // a picture much larger than shown is slow to draw and flickers
constexpr int roundingPixels = 2;

}  // namespace

ArchiveFrame::ArchiveFrame(QWidget* parent) : QFrame(parent) {
  start_.setSingleShot(true);
  connect(&start_, &QTimer::timeout, this, &ArchiveFrame::read);
  connect(&loader_, &PictureLoader::ready, this, &ArchiveFrame::take);
}

void ArchiveFrame::setPath(const QString& path) {
  loader_.cancel();
  start_.stop();
  path_ = path;
  image_ = {};
  natural_ = {};
  // The layout comes first, so that the size is known.
  if (!path_.isEmpty()) start_.start(0);
  update();
}

void ArchiveFrame::setPlace(const QRect& place) {
  if (place == place_) return;
  place_ = place;
  readSoon();
  update();
}

void ArchiveFrame::setWords(const QString& words) {
  words_ = words;
  setToolTip(words);
  update();
}

void ArchiveFrame::readSoon() {
  if (!image_.isNull() && !isSharpEnough()) start_.start(restMilliseconds);
}

void ArchiveFrame::read() {
  loader_.load(path_, wanted());
}

void ArchiveFrame::take(const ReadPicture& picture) {
  image_ = picture.image;
  natural_ = picture.natural;
  image_.isNull() ? emit failed(picture.fault.value_or(images::PictureFault::Damaged))
                  : emit shown(natural_);
  readSoon();
  update();
}

// In pixels of the screen, as far as memory allows.
QSize ArchiveFrame::wanted() const {
  const QSize room =
      (place_.isEmpty() ? contentsRect().size() : place_.size()) * devicePixelRatioF();
  const double pixels = double(room.width()) * room.height();
  return pixels <= mostDecodedPixels ? room : room * std::sqrt(mostDecodedPixels / pixels);
}

bool ArchiveFrame::isSharpEnough() const {
  const QSize room = wanted();
  const QSize best = natural_.scaled(room.boundedTo(natural_), Qt::KeepAspectRatio);
  return image_.width() + roundingPixels >= best.width() &&
         image_.width() <= best.width() * tooSharp + roundingPixels;
}

QRect ArchiveFrame::placeOfPicture() const {
  if (!place_.isEmpty()) return place_;
  const QRect room = contentsRect();
  const QSize fitted = image_.size().scaled(room.size(), Qt::KeepAspectRatio);
  return {room.x() + (room.width() - fitted.width()) / 2,
          room.y() + (room.height() - fitted.height()) / 2, fitted.width(), fitted.height()};
}

void ArchiveFrame::paintEvent(QPaintEvent* event) {
  QFrame::paintEvent(event);
  QPainter painter(this);
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  image_.isNull() ? drawWords(painter) : painter.drawImage(placeOfPicture(), image_);
}

void ArchiveFrame::drawWords(QPainter& painter) {
  painter.setPen(palette().color(path_.isEmpty() ? QPalette::PlaceholderText : QPalette::Text));
  const QRect room = contentsRect().adjusted(gap::small, gap::small, -gap::small, -gap::small);
  QTextOption wrapped(Qt::AlignCenter);
  wrapped.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
  painter.drawText(QRectF(room), words_, wrapped);
}

void ArchiveFrame::resizeEvent(QResizeEvent* event) {
  QFrame::resizeEvent(event);
  readSoon();
  emit resized(size());
}

void ArchiveFrame::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) emit clicked();
}

void ArchiveFrame::mouseDoubleClickEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) emit doubleClicked();
}

void ArchiveFrame::contextMenuEvent(QContextMenuEvent* event) {
  emit rightClicked(event->globalPos());
}

}  // namespace desktop

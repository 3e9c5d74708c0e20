// A widget that shows a picture file, or an empty frame.
#pragma once

#include <QFrame>
#include <QImage>

#include "platform/forms/label.h"

namespace desktop {

// Decodes the file no larger than it is shown. Missing, broken and absurdly large files leave the
// frame empty.
class PictureFrame : public QFrame {
  Q_OBJECT
 public:
  explicit PictureFrame(QWidget* parent);

  void setPath(const QString& path);
  // Where the picture stands in the frame; an empty rectangle fits it into the frame in its
  // proportions.
  void setPlace(const QRect& place);
  [[nodiscard]] bool showsPicture() const { return !image_.isNull(); }

 signals:
  // After every attempt to show another file.
  void loaded(bool shown);
  void resized(const QSize& size);
  void clicked();
  void doubleClicked();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;

 private:
  void reload();
  [[nodiscard]] QRect placeFor(const QSize& picture) const;

  QString path_;
  QRect place_;
  QSize natural_;
  QImage image_;
};

// The file decoded to at most `limit` pixels each way, upright; null when it is no picture.
[[nodiscard]] QImage loadPicture(const QString& path, const QSize& limit, QSize* natural = nullptr);

// The size of a picture file as it stands upright; empty when it is none, or absurdly large.
[[nodiscard]] QSize naturalSize(const QString& path);

}  // namespace desktop

// A widget that shows a picture file which is read in the background, or words in its place.
#pragma once

#include <QFrame>
#include <QTimer>

#include "desktop/pictures/picture_loader.h"

namespace desktop {

// The picture is decoded as large as it is shown, and again when it is shown larger; until then
// what is there is stretched.
class ArchiveFrame : public QFrame {
  Q_OBJECT
 public:
  explicit ArchiveFrame(QWidget* parent);

  // Reads the file, also when it is the same; an empty path shows nothing.
  void setPath(const QString& path);
  // Where the picture stands in the frame; an empty rectangle fits it in, in its proportions.
  void setPlace(const QRect& place);
  // What is said while there is no picture.
  void setWords(const QString& words);
  [[nodiscard]] bool showsPicture() const { return !image_.isNull(); }
  [[nodiscard]] bool isReading() const { return loader_.busy() || start_.isActive(); }

 signals:
  void shown(const QSize& natural);
  void failed(images::PictureFault fault);
  void resized(const QSize& size);
  void clicked();
  void doubleClicked();
  void rightClicked(const QPoint& global);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  [[nodiscard]] const QString& path() const { return path_; }

 private:
  void readSoon();
  void read();
  void take(const ReadPicture& picture);
  void drawWords(QPainter& painter);
  [[nodiscard]] QSize wanted() const;
  [[nodiscard]] bool isSharpEnough() const;
  [[nodiscard]] QRect placeOfPicture() const;

  PictureLoader loader_{this};
  QTimer start_;
  QString path_;
  QString words_;
  QRect place_;
  QSize natural_;
  QImage image_;
};

}  // namespace desktop

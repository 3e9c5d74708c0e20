#include "desktop/pictures/picture_reader.h"

#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QPixelFormat>

namespace desktop {

namespace {

using images::PictureFault;

constexpr qint64 mostPixels = 150'000'000;
constexpr int usualBits = 32;
constexpr int bitsPerByte = 8;
constexpr qint64 megabyte = 1024 * 1024;

// A file that can be stopped, and that knows whether more was asked of it than it has. It is read
// unbuffered: what is asked is what the decoder asks.
class WatchedFile : public QFile {
 public:
  WatchedFile(const QString& path, const std::function<bool()>& stopped)
      : QFile(path), stopped_(stopped) {}
  [[nodiscard]] bool endedEarly() const { return endedEarly_; }

 protected:
  qint64 readData(char* data, qint64 most) override {
    const bool stop = stopped_ && stopped_();
    endedEarly_ = endedEarly_ || stop || (most > 0 && pos() >= size());
    return stop ? -1 : QFile::readData(data, most);
  }

 private:
  const std::function<bool()>& stopped_;
  bool endedEarly_ = false;
};

bool isTurned(const QImageReader& reader) {
  return reader.transformation().testFlag(QImageIOHandler::TransformationRotate90);
}

std::optional<PictureFault> faultOf(const QFileInfo& file) {
  if (!file.exists()) return PictureFault::Missing;
  if (!file.isFile()) return PictureFault::Folder;
  if (!file.isReadable()) return PictureFault::Refused;
  if (file.size() == 0) return PictureFault::Empty;
  return std::nullopt;
}

// Only JPEG is decoded small; any other format is in memory whole before it is made smaller.
bool isTooLarge(const QImageReader& reader, const QSize& size) {
  const qint64 pixels = qint64{size.width()} * size.height();
  if (reader.format() == "jpeg") return pixels > mostPixels;
  const QImage::Format format = reader.imageFormat();
  const int bits = format == QImage::Format_Invalid
                       ? usualBits
                       : QImage::toPixelFormat(format).bitsPerPixel();
  return pixels > mostPixels ||
         pixels * bits / bitsPerByte > QImageReader::allocationLimit() * megabyte;
}

std::optional<PictureFault> faultOf(QImageReader& reader, const QSize& size) {
  if (!reader.canRead()) return PictureFault::NotAPicture;
  if (size.isEmpty()) return PictureFault::Damaged;
  if (isTooLarge(reader, size)) return PictureFault::TooLarge;
  return std::nullopt;
}

QSize scaledSize(const QSize& upright, const QSize& limit) {
  return upright.scaled(limit.boundedTo(upright), Qt::KeepAspectRatio).expandedTo({1, 1});
}

}  // namespace

ReadPicture readPicture(const QString& path, const QSize& limit,
                        const std::function<bool()>& stopped) {
  ReadPicture read{.image = {}, .natural = {}, .fault = faultOf(QFileInfo(path))};
  if (read.fault) return read;
  WatchedFile file(path, stopped);
  if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
    read.fault = PictureFault::Refused;
    return read;
  }
  QImageReader reader(&file);
  reader.setAutoTransform(true);
  reader.setDecideFormatFromContent(true);
  const QSize size = reader.size();
  read.fault = faultOf(reader, size);
  if (read.fault) return read;
  read.natural = isTurned(reader) ? size.transposed() : size;
  if (!limit.isEmpty()) {
    const QSize small = scaledSize(read.natural, limit);
    reader.setScaledSize(isTurned(reader) ? small.transposed() : small);
  }
  if (reader.read(&read.image) && !file.endedEarly()) return read;
  return {.image = {}, .natural = {}, .fault = PictureFault::Damaged};
}

}  // namespace desktop

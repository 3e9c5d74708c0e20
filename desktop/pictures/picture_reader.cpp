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

// A file that can be stopped, and that knows whether more was asked of it than it has: decoders
// show what there is of a file that was cut off. It is read unbuffered: what is asked is what the
// decoder asks.
class WatchedFile : public QFile {
 public:
  WatchedFile(const QString& path, const std::function<bool()>& stopped)
      : QFile(path), stopped_(stopped) {}
  [[nodiscard]] bool open() { return QFile::open(ReadOnly | Unbuffered); }
  // Some decoders look for the end before they begin.
  void forgetReads() { cutShort_ = askedBehindEnd_ = false; }
  // Whether the decoder of that format missed something. A bitmap is read line by line, any other
  // in chunks, of which the last one is short.
  [[nodiscard]] bool endedEarly(const QByteArray& format) const {
    return askedBehindEnd_ || (format == "bmp" && cutShort_);
  }

 protected:
  qint64 readData(char* data, qint64 most) override {
    const bool stop = stopped_ && stopped_();
    askedBehindEnd_ = askedBehindEnd_ || stop || (most > 0 && pos() >= size());
    const qint64 got = stop ? -1 : QFile::readData(data, most);
    cutShort_ = cutShort_ || got < most;
    return got;
  }

 private:
  const std::function<bool()>& stopped_;
  bool cutShort_ = false;
  bool askedBehindEnd_ = false;
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
  const int bits =
      format == QImage::Format_Invalid ? usualBits : QImage::toPixelFormat(format).bitsPerPixel();
  return pixels > mostPixels ||
         pixels * bits / bitsPerByte > QImageReader::allocationLimit() * megabyte;
}

std::optional<PictureFault> faultOf(QImageReader& reader) {
  if (!reader.canRead()) return PictureFault::NotAPicture;
  const QSize size = reader.size();
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
  if (!file.open()) {
    read.fault = PictureFault::Refused;
    return read;
  }
  QImageReader reader(&file);
  reader.setAutoTransform(true);
  reader.setDecideFormatFromContent(true);
  read.fault = faultOf(reader);
  if (read.fault) return read;
  read.natural = isTurned(reader) ? reader.size().transposed() : reader.size();
  if (!limit.isEmpty()) {
    const QSize small = scaledSize(read.natural, limit);
    reader.setScaledSize(isTurned(reader) ? small.transposed() : small);
  }
  const QByteArray format = reader.format();
  file.forgetReads();
  if (reader.read(&read.image) && !file.endedEarly(format)) return read;
  return {.image = {}, .natural = {}, .fault = PictureFault::Damaged};
}

}  // namespace desktop

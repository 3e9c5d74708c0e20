#include "desktop/pictures/picture_reader.h"

#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QPixelFormat>
#include <chrono>

namespace desktop {

namespace {

using images::PictureFault;

constexpr qint64 mostPixels = 150'000'000;
constexpr int usualBits = 32;
constexpr int bitsPerByte = 8;
constexpr qint64 megabyte = 1024 * 1024;

using Clock = std::chrono::steady_clock;
constexpr std::chrono::seconds longestReading{20};
constexpr qint64 largestFile = 256 * megabyte;

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
    const bool stop = Clock::now() > end_ || (stopped_ && stopped_());
    askedBehindEnd_ = askedBehindEnd_ || stop || (most > 0 && pos() >= size());
    const qint64 got = stop ? -1 : QFile::readData(data, most);
    cutShort_ = cutShort_ || got < most;
    return got;
  }

 private:
  const std::function<bool()>& stopped_;
  Clock::time_point end_ = Clock::now() + longestReading;
  bool cutShort_ = false;
  bool askedBehindEnd_ = false;
};

// By what a file begins with, whatever its name says. Other formats that the toolkit may have
// learned, such as drawings that name further files, are never decoded.
QByteArray formatOf(QFile& file) {
  struct Sign {
    QByteArrayView bytes;
    const char* format;
  };
  static constexpr Sign signs[] = {{"BM", "bmp"},
                                   {"\xFF\xD8\xFF", "jpeg"},
                                   {"\x89PNG\r\n\x1A\n", "png"},
                                   {"GIF8", "gif"},
                                   {QByteArrayView("\0\0\1\0", 4), "ico"},
                                   {QByteArrayView("\0\0\2\0", 4), "cur"}};
  constexpr qint64 longestSign = 8;
  const QByteArray begin = file.read(longestSign);
  file.seek(0);
  for (const Sign& sign : signs) {
    if (begin.startsWith(sign.bytes)) return sign.format;
  }
  return {};
}

bool isTurned(const QImageReader& reader) {
  return reader.transformation().testFlag(QImageIOHandler::TransformationRotate90);
}

std::optional<PictureFault> faultOf(const QFileInfo& file) {
  if (!file.exists() || !file.isNativePath()) return PictureFault::Missing;
  if (!file.isFile()) return PictureFault::Folder;
  if (!file.isReadable()) return PictureFault::Refused;
  if (file.size() == 0) return PictureFault::Empty;
  if (file.size() > largestFile) return PictureFault::TooLarge;
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
  if (reader.format().isEmpty() || !reader.canRead()) return PictureFault::NotAPicture;
  const QSize size = reader.size();
  if (size.isEmpty()) return PictureFault::Damaged;
  if (isTooLarge(reader, size)) return PictureFault::TooLarge;
  return std::nullopt;
}

void prepare(QImageReader& reader, QFile& file) {
  reader.setAutoDetectImageFormat(false);
  reader.setFormat(formatOf(file));
  reader.setDevice(&file);
  reader.setAutoTransform(true);
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
  QImageReader reader;
  prepare(reader, file);
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

bool isPicture(const QString& path) {
  if (faultOf(QFileInfo(path))) return false;
  const std::function<bool()> never;
  WatchedFile file(path, never);
  if (!file.open()) return false;
  QImageReader reader;
  prepare(reader, file);
  return !faultOf(reader);
}

}  // namespace desktop

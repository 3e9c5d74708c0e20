// The pictures of pages, read once for as long as they are drawn in one size.
#pragma once

#include <QImage>
#include <map>
#include <string>

namespace desktop {

// Scrolling draws a page many times, and every page of a document has the same letterhead.
class PagePictures {
 public:
  // The file, read no larger than `limit` pixels each way; null when it is no picture. Valid until
  // the file is asked for in another size.
  const QImage& of(const std::string& path, const QSize& limit);
  void clear() { read_.clear(); }

 private:
  struct Read {
    QSize limit;
    QImage image;
  };
  std::map<std::string, Read> read_;
};

}  // namespace desktop

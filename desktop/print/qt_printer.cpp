#include "desktop/print/qt_printer.h"

#include <QFileInfo>
#include <QPdfWriter>
#include <QPrinter>
#include <QPrinterInfo>
#include <QSaveFile>
#include <cmath>

#include "desktop/picture_frame.h"
#include "desktop/print/page_painter.h"
#include "desktop/text.h"

namespace desktop {

namespace {

constexpr int pictureDotsPerInch = 300;
// In pixels: twips of it are still far from the limits of an int.
constexpr int longestSide = 1'000'000;

platform::Status failed(const std::string& what, const QString& why) {
  return {platform::Fault::Other, what + ": " + utf8(why)};
}

QPageSize paperOf(const page::Size& size) {
  const auto points = [](int twips) { return static_cast<qreal>(twips) / page::twipsPerPoint; };
  return QPageSize(QSizeF(points(size.width), points(size.height)), QPageSize::Point, QString(),
                   QPageSize::FuzzyMatch);
}

}  // namespace

int QtMetrics::width(std::string_view text, const page::Font& font) const {
  return static_cast<int>(std::lround(fonts_.of(font).metrics.horizontalAdvance(qs(text))));
}

page::FontHeight QtMetrics::height(const page::Font& font) const {
  const QFontMetricsF& metrics = fonts_.of(font).metrics;
  return {.ascent = static_cast<int>(std::lround(metrics.ascent())),
          .line = static_cast<int>(std::lround(metrics.lineSpacing()))};
}

std::optional<page::Size> QtMetrics::pictureSize(std::string_view path) const {
  const QSize size = naturalSize(qs(path));
  if (size.isEmpty() || std::max(size.width(), size.height()) > longestSide) return std::nullopt;
  return page::Size{size.width() * page::twipsPerPixel, size.height() * page::twipsPerPixel};
}

std::vector<std::string> QtPrinter::printers() const {
  std::vector<std::string> names;
  const QString usual = QPrinterInfo::defaultPrinterName();
  if (!usual.isEmpty()) names.push_back(utf8(usual));
  for (const QString& name : QPrinterInfo::availablePrinterNames()) {
    if (name != usual) names.push_back(utf8(name));
  }
  return names;
}

platform::Status QtPrinter::print(const std::string& title, const page::Target& target,
                                  const page::Pages& pages) {
  return target.printer.empty() ? printFile(title, target.file, pages)
                                : printPaper(title, target.printer, pages);
}

// The file takes its place when it is whole: a full disk leaves what was there.
platform::Status QtPrinter::printFile(const std::string& title, const std::string& file,
                                      const page::Pages& pages) {
  // Only a file is replaced: to put one in the place of a device would harm the machine.
  const QFileInfo there(qs(file));
  if (there.exists() && !there.isFile())
    return {platform::Fault::Unsupported, file + ": this is not a file."};
  QSaveFile target(qs(file));
  if (!target.open(QIODevice::WriteOnly)) return failed(file, target.errorString());
  {
    QPdfWriter writer(&target);
    writer.setTitle(qs(title));
    writer.setCreator(QStringLiteral("Sanavel"));
    writer.setResolution(page::twipsPerInch);
    writer.setPageSize(paperOf(pages.size));
    writer.setPageMargins({});
    if (!draw(writer, pages)) return failed(file, target.errorString());
  }
  return target.commit() ? platform::Status() : failed(file, target.errorString());
}

platform::Status QtPrinter::printPaper(const std::string& title, const std::string& name,
                                       const page::Pages& pages) {
  const QPrinterInfo info = QPrinterInfo::printerInfo(qs(name));
  if (info.isNull()) return {platform::Fault::Missing, name + ": there is no such printer."};
  QPrinter printer(info, QPrinter::HighResolution);
  printer.setDocName(qs(title));
  printer.setFullPage(true);
  printer.setPageSize(paperOf(pages.size));
  const bool drawn = draw(printer, pages);
  if (!drawn || printer.printerState() == QPrinter::Error)
    return {platform::Fault::Other, name + ": the printer did not take the document."};
  return {};
}

bool QtPrinter::draw(QPagedPaintDevice& device, const page::Pages& pages) {
  QPainter painter;
  if (!painter.begin(&device)) return false;
  const double scale = static_cast<double>(device.logicalDpiX()) / page::twipsPerInch;
  painter.scale(scale, scale);
  PageParts parts;
  bool first = true;
  for (const page::Page& page : pages.pages) {
    if (!first && !device.newPage()) return false;
    first = false;
    paintPage(painter, page, parts, pictureDotsPerInch);
  }
  return painter.end();
}

}  // namespace desktop

// Printers of the system and PDF files, through the toolkit.
#pragma once

#include <functional>

#include "desktop/print/fonts.h"
#include "platform/page/printer.h"

class QPagedPaintDevice;

namespace desktop {

class QtMetrics : public page::Metrics {
 public:
  [[nodiscard]] int width(std::string_view text, const page::Font& font) const override;
  [[nodiscard]] page::FontHeight height(const page::Font& font) const override;
  [[nodiscard]] std::optional<page::Size> pictureSize(std::string_view path) const override;

 private:
  mutable PageFonts fonts_;
};

class QtPrinter : public page::Printer {
 public:
  [[nodiscard]] const page::Metrics& metrics() const override { return metrics_; }
  [[nodiscard]] std::vector<std::string> printers() const override;
  [[nodiscard]] platform::Status print(const std::string& title, const page::Target& target,
                                       const page::Pages& pages) override;

 private:
  [[nodiscard]] platform::Status printFile(const std::string& title, const std::string& file,
                                           const page::Pages& pages);
  [[nodiscard]] platform::Status printPaper(const std::string& title, const std::string& printer,
                                            const page::Pages& pages);
  // False when the device does not take the pages.
  [[nodiscard]] bool draw(QPagedPaintDevice& device, const page::Pages& pages);

  QtMetrics metrics_;
};

}  // namespace desktop

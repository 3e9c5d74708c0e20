// What is printed, as its preview shows it.
#pragma once

#include <memory>
#include <string>

#include "desktop/qt_host.h"
#include "documents/print_menu.h"

namespace desktop {

// Open from construction to destruction.
class SamplePreview {
 public:
  // The pages under the letterhead, with name, date and signature.
  SamplePreview(QtHost& host, shell::Station& istasyon, documents::PrintedPages& printed,
                const forms::Font& font);
  ~SamplePreview();

  [[nodiscard]] QWidget& window() const { return *host_.windowOf(*preview_); }
  // Into a PDF file.
  [[nodiscard]] platform::Status save(const std::string& file) const;

 private:
  QtHost& host_;
  shell::Station& istasyon_;
  page::Pages pages_;
  std::unique_ptr<forms::Form> preview_;
};

}  // namespace desktop

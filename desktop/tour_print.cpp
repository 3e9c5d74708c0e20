#include "desktop/tour_print.h"

#include "documents/frm_preview1.h"
#include "documents/frm_prewive.h"
#include "platform/page/printer.h"

namespace desktop {

namespace {

constexpr int everything = 9;

template <class Preview>
std::unique_ptr<forms::Form> previewOf(shell::Station& istasyon, const page::Pages& pages) {
  auto preview = std::make_unique<Preview>(istasyon);
  preview->sayfalariAl(pages);
  preview->Load();
  return preview;
}

}  // namespace

SamplePreview::SamplePreview(QtHost& host, shell::Station& istasyon,
                             documents::PrintedPages& printed, const forms::Font& font)
    : host_(host), istasyon_(istasyon) {
  pages_ = printed
               .sayfalar(istasyon, {.isim = printed.basilanIsim(),
                                    .tarih = printed.basilanTarih(),
                                    .sablon = everything,
                                    .imza = "Dr. Ayşe Demir",
                                    .yazitipi = font,
                                    .govde = {}})
               .value_or(page::Pages());
  preview_ = pages_.pages.size() > 1 ? previewOf<documents::FrmPreview1>(istasyon, pages_)
                                     : previewOf<documents::FrmPrewive>(istasyon, pages_);
  host_.show(*preview_);
}

SamplePreview::~SamplePreview() {
  host_.close(*preview_);
}

platform::Status SamplePreview::save(const std::string& file) const {
  return istasyon_.yazici->print(preview_->caption(), {.printer = {}, .file = file}, pages_);
}

}  // namespace desktop

#include "documents/print_job.h"

#include "documents/frm_preview1.h"
#include "documents/frm_prewive.h"
#include "documents/frm_printer.h"
#include "platform/page/printer.h"
#include "shell/fault_words.h"
#include "shell/phrases.h"

namespace documents {

namespace {

template <class Preview>
[[nodiscard]] bool show(shell::Station& istasyon, page::Pages pages) {
  istasyon.OnizlemeSonucu.clear();
  Preview preview(istasyon);
  preview.sayfalariAl(std::move(pages));
  preview.Load();
  istasyon.host.showModal(preview);
  return istasyon.OnizlemeSonucu == printAsked;
}

}  // namespace

bool yazdirilabilir(shell::Station& istasyon) {
  if (istasyon.yazici != nullptr) return true;
  istasyon.bilgi(phrase(istasyon, shell::Phrase::NoPrinter));
  return false;
}

void sayfalariYazdir(shell::Station& istasyon, const std::string& title, const page::Pages& pages) {
  FrmPrinter chooser(istasyon, title);
  chooser.Load();
  istasyon.host.showModal(chooser);
  if (!chooser.hedef()) return;
  const platform::Status printed = istasyon.yazici->print(title, *chooser.hedef(), pages);
  if (!printed) shell::hataSoyle(istasyon, printed);
}

bool sayfalariGoster(shell::Station& istasyon, page::Pages pages) {
  return pages.pages.size() > 1 ? show<FrmPreview1>(istasyon, std::move(pages))
                                : show<FrmPrewive>(istasyon, std::move(pages));
}

bool sihirbazSayfalariGoster(shell::Station& istasyon, page::Pages pages) {
  return show<FrmPreview1>(istasyon, std::move(pages));
}

}  // namespace documents

#include "documents/print_menu.h"

#include "documents/frm_pattern.h"
#include "documents/print_job.h"
#include "platform/text/number.h"
#include "shell/font_record.h"
#include "shell/record_screen.h"

namespace documents {

PrintMenu::PrintMenu(shell::Station& istasyon, PrintEntries entries, PrintedRecord& record,
                     int ayarKaydi)
    : lblsablonno(entries.mnuyazdır.form(), "lblsablonno"),
      istasyon_(istasyon),
      form_(entries.mnuyazdır.form()),
      record_(record),
      ayarKaydi_(ayarKaydi) {
  lblsablonno.setCaption("0");
  lblsablonno.setVisible(false);
  for (forms::MenuItem* entry : {&entries.mnuşablon, &entries.mnuonizleme, &entries.mnuyazdır})
    entry->setVisible(true);
  entries.mnuşablon.Click.connect([this] { sablonSec(); });
  entries.mnuonizleme.Click.connect([this] { oniz(); });
  entries.mnuyazdır.Click.connect([this] { Yazdır(); });
}

void PrintMenu::Setkayitlarioku() {
  const auto stored = shell::ayarKaydi(istasyon_, ayarKaydi_);
  if (!stored || stored->owner != form_.name()) return;
  form_.setFont(shell::fontOf(*stored));
  lblsablonno.setCaption(std::to_string(stored->templateNumber));
  imza_ = stored->signature;
}

platform::Status PrintMenu::setkayityaz() {
  auto stored = shell::ayarKaydi(istasyon_, ayarKaydi_);
  if (!stored) return stored.error();
  stored->owner = form_.name();
  shell::setFont(*stored, form_.font());
  stored->templateNumber = static_cast<std::int16_t>(text::Val(lblsablonno.caption()));
  stored->signature = imza_;
  return shell::ayarKaydiYaz(istasyon_, ayarKaydi_, *stored);
}

void PrintMenu::sablonSec() {
  istasyon_.SablonNo = static_cast<int>(text::Val(lblsablonno.caption()));
  istasyon_.SablonImzasi = imza_;
  FrmPattern dialog(istasyon_);
  dialog.Load();
  istasyon_.host.showModal(dialog);
  lblsablonno.setCaption(std::to_string(istasyon_.SablonNo));
  imza_ = istasyon_.SablonImzasi;
}

void PrintMenu::oniz() {
  if (yazdirilabilir(istasyon_) && sayfalariGoster(istasyon_, sayfa())) Yazdır();
}

void PrintMenu::Yazdır() {
  if (!yazdirilabilir(istasyon_)) return;
  sayfalariYazdir(istasyon_, shell::RecordScreen::sisim(record_.basilanIsim()), sayfa());
}

page::Pages PrintMenu::sayfa() {
  ReportText body(form_.font());
  record_.Yazılar(body);
  return raporSayfasi(istasyon_, {.isim = record_.basilanIsim(),
                                  .tarih = record_.basilanTarih(),
                                  .sablon = static_cast<int>(text::Val(lblsablonno.caption())),
                                  .imza = imza_,
                                  .yazitipi = form_.font(),
                                  .govde = body.document()});
}

}  // namespace documents

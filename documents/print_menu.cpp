#include "documents/print_menu.h"

#include "documents/frm_pattern.h"
#include "documents/print_job.h"
#include "platform/text/number.h"
#include "shell/font_record.h"
#include "shell/phrases.h"
#include "shell/record_screen.h"

namespace documents {

PrintMenu::PrintMenu(shell::Station& istasyon, PrintEntries entries, PrintedPages& printed,
                     int ayarKaydi)
    : lblsablonno(entries.mnuyazdır.form(), "lblsablonno"),
      istasyon_(istasyon),
      form_(entries.mnuyazdır.form()),
      printed_(printed),
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

// What was seen is what is printed.
void PrintMenu::oniz() {
  if (!yazdirilabilir(istasyon_)) return;
  const auto pages = sayfalar();
  if (pages && sayfalariGoster(istasyon_, *pages)) bas(*pages);
}

void PrintMenu::Yazdır() {
  if (!yazdirilabilir(istasyon_)) return;
  if (const auto pages = sayfalar()) bas(*pages);
}

void PrintMenu::bas(const page::Pages& pages) {
  const std::string name = shell::RecordScreen::sisim(printed_.basilanIsim());
  sayfalariYazdir(istasyon_, name.empty() ? form_.caption() : name, pages);
}

std::optional<page::Pages> PrintMenu::sayfalar() {
  return printed_.sayfalar(istasyon_, {.isim = printed_.basilanIsim(),
                                       .tarih = printed_.basilanTarih(),
                                       .sablon = static_cast<int>(text::Val(lblsablonno.caption())),
                                       .imza = imza_,
                                       .yazitipi = form_.font(),
                                       .govde = {}});
}

std::optional<page::Pages> PrintedRecord::sayfalar(shell::Station& istasyon, Report report) {
  ReportText body(report.yazitipi);
  Yazılar(body);
  report.govde = body.document();
  if (auto page = tamSayfa(istasyon, report)) return page;
  switch (istasyon.askAboutText(phrase(istasyon, shell::Phrase::ReportLong))) {
    case host::Answer::Yes:
      return raporSayfalari(istasyon, report);
    case host::Answer::No:
      return raporSayfasi(istasyon, report);
    default:
      return std::nullopt;
  }
}

}  // namespace documents

#include "documents/frm_wizard_drug.h"

#include "documents/print_job.h"
#include "shell/captions.h"
#include "shell/fault_words.h"
#include "shell/font_record.h"
#include "shell/letterhead.h"
#include "shell/menu_icons.h"
#include "shell/phrases.h"
#include "shell/record_screen.h"
#include "shell/text_lookup.h"

namespace documents {

namespace {

constexpr int usualPoints = 12;

LayoutItem itemAt(std::string_view key, ItemKind kind, double left, double top) {
  forms::Font font;
  font.size = usualPoints;
  return {.key = key,
          .kind = kind,
          .left = unit::fromMillimetres(left),
          .top = unit::fromMillimetres(top),
          .font = font};
}

// Until the user has laid out a page of his own; in millimetres.
PageLayout usualLayout() {
  return PageLayout(
      {itemAt("ikon", ItemKind::Picture, 15, 12), itemAt("baslik", ItemKind::Picture, 35, 12),
       itemAt("isim", ItemKind::Line, 20, 50), itemAt("Tarih", ItemKind::Line, 160, 50),
       itemAt("recete", ItemKind::Body, 20, 65)});
}

}  // namespace

FrmWizardDrug::FrmWizardDrug(shell::Station& station)
    : Form("frmwizarddrug"),
      yerlesim(station,
               {{&Imgicon, &ImgBaşlık, &imgisim, &imgtarih, &ImgMektup},
                GrdÖzellik,
                TxtGrid,
                LstGörüntüle},
               usualLayout()),
      istasyon(station),
      hastalar_(station, LstTüm) {
  txtisim.Change.connect([this] { PYazdır(); });
  LstTüm.ItemClick.connect(
      [this] { txtisim.setText(shell::RecordScreen::sisim(LstTüm.selectedKey())); });
  mnuonizleme.Click.connect([this] { Mektuponizle(); });
  butonizleme.Click.connect([this] { Mektuponizle(); });
  mnuyazdır.Click.connect([this] { Yazdır(); });
  ButYazdır.Click.connect([this] { Yazdır(); });
  mnucik.Click.connect([this] { istasyon.host.close(*this); });
  butcik.Click.connect([this] { istasyon.host.close(*this); });
}

void FrmWizardDrug::receteAl(std::string recete) {
  recete_ = std::move(recete);
  PYazdır();
}

void FrmWizardDrug::Load() {
  shell::basliklariyaz(istasyon, *this);
  shell::menuikon(*this);
  setCaption(shell::metinbul(istasyon, "recete") + " - " +
             phrase(istasyon, shell::Phrase::PrintWizard));
  Setkayitlarioku();
  yerlesim.Gridkontrolleri();
  txtisim.setText(shell::RecordScreen::sisim(istasyon.SeciliHasta));
  PYazdır();
  Listele();
}

void FrmWizardDrug::Unload() {
  yerlesim.bitir();
  setkayityaz();
}

void FrmWizardDrug::Setkayitlarioku() {
  yerlesim.Setkayitlarioku(shell::font_record::prescription);
}

void FrmWizardDrug::setkayityaz() {
  const platform::Status kept = yerlesim.setkayityaz(shell::font_record::prescription);
  if (!kept) shell::hataSoyle(istasyon, kept);
}

void FrmWizardDrug::Listele() {
  listed_ = 0;
  hastalar_.start([this] { listelendi(); });
}

// The patient on the card is the chosen one as soon as his row is there.
void FrmWizardDrug::listelendi() {
  const bool wanted = txtisim.text() == shell::RecordScreen::sisim(istasyon.SeciliHasta);
  for (std::size_t row = listed_; wanted && row < LstTüm.rowCount(); ++row) {
    if (LstTüm.selectedRow() < 0 && LstTüm.key(row) == istasyon.SeciliHasta)
      LstTüm.setSelectedRow(static_cast<int>(row));
  }
  listed_ = LstTüm.rowCount();
  LSayı.setCaption(std::to_string(listed_));
}

void FrmWizardDrug::PYazdır() {
  yerlesim.icerik({istasyon.dosya(shell::letterhead::icon),
                   istasyon.dosya(shell::letterhead::picture), txtisim.text(),
                   text::shortDate(istasyon.clock.today()), recete_});
}

void FrmWizardDrug::Mektuponizle() {
  if (!yazdirilabilir(istasyon)) return;
  if (sihirbazSayfalariGoster(istasyon, PMektupYazdır())) Yazdır();
}

void FrmWizardDrug::Yazdır() {
  if (yazdirilabilir(istasyon)) sayfalariYazdir(istasyon, txtisim.text(), PMektupYazdır());
}

}  // namespace documents

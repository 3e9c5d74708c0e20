#include "exam/frm_exam.h"

#include "exam/exam_fields.h"
#include "shell/captions.h"
#include "shell/doctors.h"
#include "shell/fees.h"
#include "shell/font_record.h"
#include "shell/list_completion.h"
#include "shell/text_lookup.h"

namespace exam {

namespace {

constexpr std::array maritalStates{"Bekar", "Evli", "bosanmis", "Dul"};
constexpr auto pageSetting = "TS";
constexpr std::array pictureControls{&FrmExam::txtp1, &FrmExam::txtp2, &FrmExam::txtp3,
                                     &FrmExam::txtp4, &FrmExam::txtp5, &FrmExam::txtp6,
                                     &FrmExam::txtmov};

}  // namespace

FrmExam::FrmExam(shell::Station& station)
    : DatedRecordScreen(station, "FrmExam", stores::kind::examination, "Lstmuayeneler"),
      calisma_(workspaceOf(station.BransNo)) {
  ekraniKur({"recete", "istem", "test", "operation", "fizikgelişme", "motmengelişme", "asi", "Gebe",
             "Lens", "glass", "angio", "echo", "efor", "resim", "film", "dokum"});
  bransaGore();
  menuleriBagla();
  alanlariHazirla();
}

void FrmExam::alanlariHazirla() {
  yazı.setVisible(false);
  for (forms::TextBox FrmExam::*field : pictureControls) {
    (this->*field).setVisible(false);
    (this->*field).Change.connect([this] { ResimVar(); });
  }
  shell::completeWhileTyping(comdoktor);
  txtücret.LostFocus.connect([this] { shell::ucretBicimle(txtücret); });
  txtücret.DblClick.connect([this] { hesapAc(); });
  TabStrip1.Click.connect([this] {
    sayfayiGoster();
    ilkAlan().setFocus();
  });
}

std::span<const shell::FieldRow> FrmExam::alanlar() const {
  return examFields();
}

int FrmExam::yaziKaydi() const {
  return shell::font_record::examination;
}

void FrmExam::Load() {
  std::vector<std::string> states;
  for (const char* key : maritalStates) states.push_back(metinbul(istasyon, key));
  ComMedeniDurum.setItems(std::move(states));
  shell::doktorlariYaz(istasyon, comdoktor);
  DatedRecordScreen::Load();
  ilkAlan().setFocus();
}

void FrmExam::hastaDegisti() {
  const std::string title = metinbul(istasyon, "Muayene");
  setCaption(lblisim.caption().empty() ? title : title + " (" + sisim(lblisim.caption()) + ")");
  uyariOku();
  DatedRecordScreen::hastaDegisti();
}

void FrmExam::basliklariYenile() {
  DatedRecordScreen::basliklariYenile();
  for (const SideCaption& row : sideCaptions()) {
    forms::Control& field = row.control(*this);
    field.setCaption(field.caption() + " " + metinbul(istasyon, row.sideKey));
  }
}

// --- The pages

// A speciality without a frame has nothing on the special page, and needs no tabs.
void FrmExam::bransaGore() {
  struct FramePanel {
    Frame frame;
    forms::Panel& panel;
  };
  for (const FramePanel& row : {FramePanel{Frame::Gynecology, FKado}, FramePanel{Frame::Eye, FGoz},
                                FramePanel{Frame::Ent, FKBB}, FramePanel{Frame::Heart, FKalp}}) {
    row.panel.setVisible(row.frame == calisma_.frame);
  }
  TabStrip1.setVisible(calisma_.frame != Frame::None);
  sayfayiGoster();
}

FrmExam::Page FrmExam::ondekiSayfa() const {
  return TabStrip1.selected() == "TSÖzel" ? Page::Special : Page::General;
}

void FrmExam::sayfaSec(Page page) {
  TabStrip1.select(page == Page::Special ? "TSÖzel" : "TSGenel");
}

void FrmExam::sayfayiGoster() {
  pgenel.setVisible(ondekiSayfa() == Page::General);
  pözel.setVisible(ondekiSayfa() == Page::Special);
}

forms::Control& FrmExam::ilkAlan() {
  if (ondekiSayfa() == Page::General) return txtşikayet;
  switch (calisma_.frame) {
    case Frame::Gynecology:
      return ComMedeniDurum;
    case Frame::Eye:
      return txtgörmesağ;
    case Frame::Ent:
      return txtoralkavite;
    case Frame::Heart:
      return txtekg;
    case Frame::None:
      break;
  }
  return txtşikayet;
}

void FrmExam::Ayaryaz() {
  DatedRecordScreen::Ayaryaz();
  istasyon.settings
      .set(shell::applicationName, istasyon.BransAdi, pageSetting,
           ondekiSayfa() == Page::Special ? "True" : "False")
      .ignore();
}

// The special page comes to the front only where it has something to show.
FrmExam::Page FrmExam::sonSayfa() const {
  const bool special =
      istasyon.settings.get(shell::applicationName, istasyon.BransAdi, pageSetting) == "True";
  return special && calisma_.frame != Frame::None ? Page::Special : Page::General;
}

}  // namespace exam

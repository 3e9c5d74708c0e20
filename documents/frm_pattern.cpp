#include "documents/frm_pattern.h"

#include <array>
#include <utility>

#include "documents/templates.h"
#include "platform/text/number.h"
#include "shell/captions.h"
#include "shell/fault_words.h"
#include "shell/font_record.h"
#include "shell/letterhead.h"
#include "shell/phrases.h"
#include "shell/text_fit.h"
#include "shell/text_lookup.h"

namespace documents {

namespace {

constexpr int sampleScale = 3;
constexpr std::size_t signatureLength = 50;
constexpr std::size_t fontNameLength = 50;

}  // namespace

void SamplePart::setTop(int top) {
  if (top == top_) return;
  top_ = top;
  notify(forms::Aspect::Range);
}

void SamplePart::setFont(const forms::Font& font) {
  if (font == font_) return;
  font_ = font;
  notify(forms::Aspect::Paint);
}

FrmPattern::FrmPattern(shell::Station& station) : Form("frmpattern"), istasyon(station) {
  txtimza.setMaxLength(signatureLength);
  List1.Click.connect([this] {
    lblsablonno.setCaption(std::to_string(List1.listIndex()));
    lblicerik.setCaption(List1.text());
  });
  lblsablonno.Change.connect([this] { sablonDegisti(); });
  txtimza.Change.connect([this] {
    imgimza.setCaption(txtimza.text().empty() ? phrase(istasyon, shell::Phrase::SampleSignature)
                                              : txtimza.text());
  });
  butfont.Click.connect([this] {
    const auto chosen = istasyon.host.chooseFont(imgimza.font());
    if (chosen) imzaFontu(*chosen);
  });
  buttamam.Click.connect([this] { tamam(); });
  Butİptal.Click.connect([this] { istasyon.host.close(*this); });
  ButYardım.Click.connect([this] {
    istasyon.bilgi(shell::metinbul(istasyon, "yardim") +
                   phrase(istasyon, shell::Phrase::NotInThisVersion));
  });
}

void FrmPattern::Load() {
  shell::basliklariyaz(istasyon, *this);
  ornekYaz();
  const auto stored = shell::ayarKaydi(istasyon, shell::font_record::signature);
  if (stored && stored->owner == name()) imzaFontu(shell::fontOf(*stored));
  txtimza.setText(istasyon.SablonImzasi);
  List1.clear();
  for (const Template& entry : templates()) List1.addItem(templateEntry(istasyon, entry));
  const bool known = std::cmp_less(istasyon.SablonNo, List1.count()) && istasyon.SablonNo >= 0;
  List1.setListIndex(known ? istasyon.SablonNo : 0);
}

void FrmPattern::ornekYaz() {
  Imgicon.setPath(istasyon.dosya(shell::letterhead::icon));
  ImgBaşlık.setCaption(phrase(istasyon, shell::Phrase::SampleHeading));
  imgisim.setCaption(shell::metinbul(istasyon, "isim") +
                     "\t: " + phrase(istasyon, shell::Phrase::SamplePatient));
  imgtarih.setCaption(text::shortDate(istasyon.clock.today()));
  imgmetin.setCaption(phrase(istasyon, shell::Phrase::SampleText));
  imgimza.setCaption(phrase(istasyon, shell::Phrase::SampleSignature));
}

void FrmPattern::sablonDegisti() {
  const Template& chosen = templateOf(static_cast<int>(text::Val(lblsablonno.caption())));
  Imgicon.setVisible(chosen.heading);
  ImgBaşlık.setVisible(chosen.heading);
  imgisim.setVisible(chosen.nameAndDate);
  imgtarih.setVisible(chosen.nameAndDate);
  imgimza.setVisible(chosen.signature);
  imgmetin.setTop(chosen.top / sampleScale);
}

void FrmPattern::imzaFontu(const forms::Font& font) {
  imgimza.setFont(font);
}

// A record that cannot be kept leaves the dialog open, so that nothing typed is lost.
void FrmPattern::tamam() {
  const std::string fontName = imgimza.font().name;
  const std::array texts{shell::FileText{"imza", txtimza.text(), signatureLength},
                         shell::FileText{"yazitipi", fontName, fontNameLength}};
  if (!shell::boyleKalsinMi(istasyon, texts, shell::Phrase::KeepTextSo)) return;
  istasyon.SablonNo = static_cast<int>(text::Val(lblsablonno.caption()));
  istasyon.SablonImzasi = files::keptText(txtimza.text(), signatureLength);
  files::SettingRecord row =
      shell::ayarKaydi(istasyon, shell::font_record::signature).value_or(files::SettingRecord());
  row.owner = name();
  row.templateNumber = static_cast<std::int16_t>(istasyon.SablonNo);
  row.signature = istasyon.SablonImzasi;
  shell::setFont(row, imgimza.font());
  const platform::Status kept = shell::ayarKaydiYaz(istasyon, shell::font_record::signature, row);
  if (!kept) return shell::hataSoyle(istasyon, kept);
  istasyon.host.close(*this);
}

}  // namespace documents

// The birth field and the age that follows from it.
#include "platform/text/number.h"
#include "platform/text/utf8.h"
#include "registry/frm_main.h"
#include "shell/age.h"
#include "shell/text_lookup.h"

namespace registry {

namespace {

constexpr long oldestAge = 150;

}  // namespace

// Shows the age behind its word; without a valid birth value just the word, and the age can be
// typed instead.
void FrmMain::yasGoster() {
  const std::string word = metinbul(istasyon, "yasi");
  if (TxtDTarihi.text().empty()) return txtyaşı.setCaption("");
  const auto age = shell::yasmetni(istasyon, text::trim(TxtDTarihi.text()), istasyon.clock.today());
  txtyaşı.setCaption(age ? word + " :  " + *age : word);
}

// Whoever goes on from the birth field comes to the age; whoever went to a field of his own choice
// stays there, and what he types next with him.
void FrmMain::yasSor() {
  Txtyaş.setVisible(true);
  const forms::Control* const now = activeControl();
  const bool goesOn = now == nullptr || now == &TxtDTarihi || now == &ComCinsiyet;
  if (goesOn) Txtyaş.setFocus();
}

void FrmMain::dogumBitti() {
  if (birthUnchecked_ || !hatalitarih()) return;
  writeBirthOut();
  yasGoster();
  const bool known =
      shell::yasmetni(istasyon, text::trim(TxtDTarihi.text()), istasyon.clock.today()).has_value();
  if (!known) return yasSor();
  Txtyaş.setText("");
  Txtyaş.setVisible(false);
}

// A date stands in the field as it will be read from the store: a short one would be taken for a
// year.
void FrmMain::writeBirthOut() {
  const std::string birth = text::trim(TxtDTarihi.text());
  if (shell::yilMi(birth)) return;
  if (const auto date = text::parseDate(birth, istasyon.clock.today()))
    TxtDTarihi.setText(text::shortDate(*date));
}

bool FrmMain::hatalitarih() {
  const std::string birth = text::trim(TxtDTarihi.text());
  const text::DateTime today = istasyon.clock.today();
  const auto date = shell::yilMi(birth) ? std::nullopt : text::parseDate(birth, today);
  const bool tooLate =
      date ? date->day > today.day : shell::kisaDogum(birth) && text::Val(birth) > today.year();
  if (!tooLate) return true;
  istasyon.bilgi(metinbul(istasyon, "msghatalitarih"));
  TxtDTarihi.setFocus();
  TxtDTarihi.selectAll();
  return false;
}

void FrmMain::yasBitti() {
  const auto age = text::wholeNumber(Txtyaş.text());
  if (age && *age >= 0 && *age <= oldestAge) {
    TxtDTarihi.setText(std::to_string(istasyon.clock.today().year() - *age));
    txtyaşı.setCaption(metinbul(istasyon, "yasi") + " :  " + std::to_string(*age));
    Txtyaş.setText("");
    Txtyaş.setVisible(false);
  } else if (Txtyaş.text().empty() && Txtyaş.visible()) {
    txtyaşı.setCaption("");
  }
}

}  // namespace registry

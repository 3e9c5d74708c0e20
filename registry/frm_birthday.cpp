#include "registry/frm_birthday.h"

#include "platform/text/number.h"
#include "platform/text/utf8.h"
#include "registry/name_search.h"
#include "shell/captions.h"
#include "shell/text_lookup.h"

namespace registry {

FrmBirthday::FrmBirthday(shell::Station& station) : Form("Frmbirthday"), istasyon(station) {
  butkapat.Click.connect([this] { istasyon.host.close(*this); });
}

void FrmBirthday::Load() {
  shell::basliklariyaz(istasyon, *this);
  Lvisim.setColumns({shell::metinbul(istasyon, "isim"), shell::metinbul(istasyon, "dogumtarihi")});
  const long ahead = text::wholeNumber(istasyon.ayar("remday", "0")).value_or(0);
  listele(text::addDays(istasyon.clock.today(), ahead));
}

// Names are always locked at opening, when this list shows.
void FrmBirthday::listele(const text::DateTime& day) {
  dao::Recordset& cards = istasyon.stores.personal.IDCard;
  if (cards.empty()) return;
  for (dao::Status moved = cards.MoveFirst(); moved && !cards.Eof(); moved = cards.MoveNext()) {
    const auto birth = text::parseIso(cards.Fields("Date of Birth").view());
    if (!birth || birth->month() != day.month() || birth->dayOfMonth() != day.dayOfMonth())
      continue;
    if (text::trimmed(cards.Fields("Key").view()) == hiddenMark) continue;
    Lvisim.addRow({.cells = {cards.Fields("Name").text(), text::shortDate(*birth)}});
  }
}

void dogumGunuHatirlat(shell::Station& istasyon) {
  if (!istasyon.acik("BDrem")) return;
  FrmBirthday reminder(istasyon);
  reminder.Load();
  if (reminder.Lvisim.rowCount() > 0) istasyon.host.showModal(reminder);
}

}  // namespace registry

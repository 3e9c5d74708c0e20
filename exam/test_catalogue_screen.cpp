#include "exam/test_catalogue_screen.h"

#include <array>

#include "exam/result_mark.h"
#include "shell/phrases.h"

namespace exam {

TestCatalogueScreen::TestCatalogueScreen(shell::Station& station, std::string_view name, Use use)
    : CatalogueScreen(station, name, "txteskitest"),
      Lsttest(*this, "Lsttest", forms::ListOrder::AsAdded, use.choice) {
  alanlariBagla();
  connectList(use.completion);
}

std::span<const shell::FieldRow> TestCatalogueScreen::alanlar() const {
  using shell::controlOf;
  using Screen = TestCatalogueScreen;
  static constexpr std::array<shell::FieldRow, 5> rows{{
      {controlOf<&Screen::txttest>, "Test", "Test"},
      {controlOf<&Screen::txtbirim>, "Unit", "Birim"},
      {controlOf<&Screen::txtmin>, "Min", "Min"},
      {controlOf<&Screen::txtmax>, "Max", "Max"},
      {controlOf<&Screen::txtbilgi>, "Information", "Bilgi"},
  }};
  return rows;
}

void TestCatalogueScreen::Load() {
  alanGenislikleri(veritabani(), "Tests");
  CatalogueScreen::Load();
  Testlistele();
  alanlaribosalt();
}

void TestCatalogueScreen::basliklariYenile() {
  CatalogueScreen::basliklariYenile();
  // The two ends of a range have no word in the vocabulary.
  txtmin.setCaption("Min");
  txtmax.setCaption("Max");
  Lsttest.setToolTip(phrase(istasyon, shell::Phrase::NoTests));
}

void TestCatalogueScreen::Testlistele() {
  listNames();
  sbDurum.setPanel(2, std::to_string(Lsttest.count()) + " " + Lsttest.caption());
}

void TestCatalogueScreen::store() {
  txtmin.setText(noktali(txtmin.text()));
  txtmax.setText(noktali(txtmax.text()));
  CatalogueScreen::store();
}

}  // namespace exam

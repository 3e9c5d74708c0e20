#include "exam/test_catalogue_screen.h"

#include <algorithm>
#include <array>

#include "exam/result_mark.h"
#include "platform/dao/prefix_search.h"
#include "platform/text/utf8.h"
#include "shell/phrases.h"

namespace exam {

TestCatalogueScreen::TestCatalogueScreen(shell::Station& station, std::string_view name)
    : NamedRecordScreen(station, name, "txteskitest") {
  alanlariBagla();
  Lsttest.Click.connect([this] { testSecildi(); });
  txttest.KeyUp.connect([this](forms::Key) { isimYazildi(); });
  txttest.LostFocus.connect([this] { isimBitti(); });
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
  NamedRecordScreen::Load();
  Testlistele();
  alanlaribosalt();
}

void TestCatalogueScreen::basliklariYenile() {
  NamedRecordScreen::basliklariYenile();
  // The two ends of a range have no word in the vocabulary.
  txtmin.setCaption("Min");
  txtmax.setCaption("Max");
  Lsttest.setToolTip(phrase(istasyon, shell::Phrase::NoTests));
}

void TestCatalogueScreen::Testlistele() {
  std::vector<forms::ListItem> names;
  for (tablo().MoveFirst().ignore(); !tablo().Eof(); tablo().MoveNext().ignore())
    names.push_back({tablo().Fields("Test").text()});
  sbDurum.setPanel(2, std::to_string(names.size()) + " " + Lsttest.caption());
  Lsttest.setItems(std::move(names));
  const auto at = std::ranges::find(Lsttest.items(), txteski.text(), &forms::ListItem::text);
  if (at != Lsttest.items().end()) satiriGoster(static_cast<int>(at - Lsttest.items().begin()));
}

void TestCatalogueScreen::Kaydet() {
  txtmin.setText(noktali(txtmin.text()));
  txtmax.setText(noktali(txtmax.text()));
  NamedRecordScreen::Kaydet();
}

void TestCatalogueScreen::satiriGoster(int row) {
  izliyor_ = true;
  Lsttest.setListIndex(row);
  izliyor_ = false;
}

void TestCatalogueScreen::testSecildi() {
  if (izliyor_) return;
  const std::string chosen = Lsttest.text();
  if (yalnizIsim() || kayitkontrol()) alanlaritasi(chosen);
}

// The list shows the first name that begins with what is typed.
void TestCatalogueScreen::isimYazildi() {
  const bool turkish = istasyon.turkce();
  const dao::Fold fold = turkish ? dao::Fold::Turkish : dao::Fold::General;
  const std::string typed = dao::folded(text::trim(txttest.text()), fold);
  const auto begins = [&](const forms::ListItem& item) {
    return dao::folded(item.text, fold).starts_with(typed);
  };
  const auto at = std::ranges::find_if(Lsttest.items(), begins);
  const bool found = !typed.empty() && at != Lsttest.items().end();
  satiriGoster(found ? static_cast<int>(at - Lsttest.items().begin()) : -1);
}

// A name that the catalogue has shows its test, unless something else was typed beside the name.
void TestCatalogueScreen::isimBitti() {
  const std::string typed = text::trim(txttest.text());
  if (!typed.empty() && yalnizIsim()) alanlaritasi(typed);
}

// What stands in the name field alone was typed to find a test.
bool TestCatalogueScreen::yalnizIsim() const {
  return txteski.text().empty() && txtbirim.text().empty() && txtmin.text().empty() &&
         txtmax.text().empty() && txtbilgi.text().empty();
}

}  // namespace exam

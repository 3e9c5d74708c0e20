#include "exam/test_catalogue_screen.h"

#include <algorithm>
#include <array>

#include "exam/result_mark.h"
#include "platform/text/fold.h"
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
  if (kayitkontrol()) alanlaritasi(chosen);
}

// The list shows the first name that begins with what is typed.
void TestCatalogueScreen::isimYazildi() {
  const std::string typed = txttest.text();
  const auto length = static_cast<std::ptrdiff_t>(text::length(typed));
  const auto begins = [&](const forms::ListItem& item) {
    return text::equalsNoCase(text::left(item.text, length), typed);
  };
  const auto at = std::ranges::find_if(Lsttest.items(), begins);
  if (!typed.empty() && at != Lsttest.items().end())
    satiriGoster(static_cast<int>(at - Lsttest.items().begin()));
}

// A name that the catalogue has brings its test onto the screen.
void TestCatalogueScreen::isimBitti() {
  const std::string typed = text::trim(txttest.text());
  if (typed.empty() || text::equalsNoCase(typed, txteski.text())) return;
  alanlaritasi(typed);
}

}  // namespace exam

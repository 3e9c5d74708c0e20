#include "shell/record_screen.h"

#include <gtest/gtest.h>

#include <array>

#include "platform/forms/text_control.h"
#include "shell/list_completion.h"
#include "shell/snapshot.h"
#include "tests/support/practice.h"

namespace {

// The smallest record screen: the financiers, keyed by a name.
class FrmSmall : public shell::RecordScreen {
 public:
  explicit FrmSmall(shell::Station& station) : RecordScreen(station, "FrmSmall") {
    alanlariBagla();
    alanGenislikleri(station.stores.personal.database, "Financier");
  }
  forms::TextBox txtad{*this, "txtad"};
  forms::TextBox txtadres{*this, "txtadres"};
  forms::TextBox txttarih{*this, "txttarih"};

  [[nodiscard]] std::span<const shell::FieldRow> alanlar() const override {
    static constexpr std::array<shell::FieldRow, 2> rows{{
        {.control = shell::controlOf<&FrmSmall::txtad>,
         .column = "financier",
         .captionKey = "isim"},
        {.control = shell::controlOf<&FrmSmall::txtadres>,
         .column = "address",
         .captionKey = "Adres",
         .cut = 5},
    }};
    return rows;
  }
  [[nodiscard]] dao::Recordset& tablo() override { return istasyon.stores.personal.Financier; }
  [[nodiscard]] std::string eskiAnahtar() const override { return key; }
  [[nodiscard]] std::string& yedek() override { return istasyon.AlanYedegi; }
  void Kaydet() override {
    ASSERT_TRUE(tablo().AddNew().ok());
    ASSERT_TRUE(Forumalanlaritasi().ok());
    ASSERT_TRUE(tablo().Update().ok());
    key = txtad.text();
    Eskialan();
  }
  void Sil() override {}
  void durumYaz(std::string) override {}
  void yukle() { alanlariYukle(); }
  std::string key;
};

struct Fixture : testing::Test {
  Fixture() {
    std::filesystem::create_directories(folder / "Data");
    EXPECT_TRUE(stores::OpenStores(desk.station.stores).ok());
    screen = std::make_unique<FrmSmall>(desk.station);
    screen->Eskialan();
  }
  support::TemporaryFolder folder;
  support::Desk desk{folder.path()};
  std::unique_ptr<FrmSmall> screen;
};

TEST_F(Fixture, AChangeEnablesSaveUntilItIsTakenBack) {
  EXPECT_FALSE(screen->mnukaydet.enabled());
  screen->txtad.setText("Vakıf");
  EXPECT_TRUE(screen->mnukaydet.enabled());
  EXPECT_TRUE(screen->tbToolBar.button("Save") == nullptr);
  EXPECT_TRUE(screen->mnuyeni.enabled());
  screen->txtad.setText("");
  EXPECT_FALSE(screen->mnukaydet.enabled());
  EXPECT_FALSE(screen->mnuyeni.enabled());
  screen->txttarih.setText("22.11.2026");  // the date alone is nothing on the screen
  EXPECT_FALSE(screen->mnuyeni.enabled());
}

TEST_F(Fixture, ACharacterThatMovesToTheNeighbourIsNoChange) {
  screen->txtad.setText("ab");
  screen->txtadres.setText("c");
  screen->Eskialan();
  screen->txtad.setText("a");
  screen->txtadres.setText("bc");
  EXPECT_FALSE(screen->mnukaydet.enabled());
}

TEST_F(Fixture, TheQuestionTellsNewFromStored) {
  EXPECT_TRUE(screen->kayitkontrol());  // nothing to save: nothing asked
  screen->txtad.setText("Vakıf");
  desk.host.expect("Kayıt yapılsın mı?", host::Answer::No);
  EXPECT_TRUE(screen->kayitkontrol());
  EXPECT_TRUE(screen->mnukaydet.enabled());
  desk.host.expect("Kayıt yapılsın mı?", host::Answer::Yes);
  EXPECT_TRUE(screen->kayitkontrol());
  EXPECT_FALSE(screen->mnukaydet.enabled());
  screen->txtadres.setText("Çankaya");
  desk.host.expect("Değişiklikler kaydedilsin mi?", host::Answer::No);
  EXPECT_TRUE(screen->kayitkontrol());
  EXPECT_EQ(desk.host.asked.back().buttons, host::Buttons::YesNo);
  EXPECT_EQ(desk.host.asked.back().icon, host::Icon::Question);
}

TEST_F(Fixture, FieldsAreCutTrimmedAndLoadedBack) {
  screen->txtad.setText("  Vakıf ");
  screen->txtadres.setText("Ağrı'da \"x\"");
  EXPECT_EQ(screen->txtadres.text(), "Ağrı'");
  screen->Kaydet();
  screen->alanlaribosalt();
  EXPECT_EQ(screen->txtad.text(), "");
  ASSERT_TRUE(screen->tablo().MoveFirst().ok());
  screen->yukle();
  EXPECT_EQ(screen->txtad.text(), "Vakıf");
  EXPECT_EQ(screen->txtadres.text(), "Ağrı'");
}

TEST_F(Fixture, TheGenericSnapshotTakesEveryTextAndTheDate) {
  screen->txtad.setText("a");
  screen->txtadres.setText("b");
  screen->txttarih.setText("1");
  alanyedekle(desk.station, *screen);
  EXPECT_EQ(desk.station.AlanYedegi, "ab11");
  EXPECT_FALSE(screen->mnukaydet.enabled());
}

TEST(Sisim, TakesOffTheMarksAtTheEndOnly) {
  EXPECT_EQ(shell::RecordScreen::sisim("Ayşe**"), "Ayşe");
  EXPECT_EQ(shell::RecordScreen::sisim("A*b"), "A*b");
  EXPECT_EQ(shell::RecordScreen::sisim("***"), "");
  EXPECT_EQ(shell::RecordScreen::sisim(""), "");
}

struct CompletionCase {
  const char* typed;
  int code;
  const char* text;
  std::size_t selected;
};

TEST(Completion, AppendsAndSelectsTheRestOfTheFirstRow) {
  const CompletionCase cases[] = {
      {"ank", 'K', "ankara", 3}, {"ANKA", 'A', "ANKAra", 2}, {"İz", 'Z', "İzmir", 3},
      {"bolu", 'U', "bolu", 0},  {"ank", 46, "ank", 0},      {"ank", 8, "ank", 0},
      {"ank", 37, "ank", 0},     {"x", 'X', "x", 0},
  };
  for (const CompletionCase& c : cases) {
    forms::Form form("f");
    forms::ComboBox combo(form, "comdogumyeri");
    combo.setItems({"Ankara", "İzmir", "Bolu", "Ankara Çankaya"});
    combo.setText(c.typed);
    shell::completeFromList(combo, {.code = c.code});
    EXPECT_EQ(combo.text(), c.text) << c.typed;
    EXPECT_EQ(combo.selLength(), c.selected) << c.typed;
  }
}

TEST(Completion, KeepsANewValueForTheSession) {
  forms::Form form("f");
  forms::ComboBox combo(form, "ComMeslek");
  combo.setItems({"Öğretmen"});
  combo.setText("öğretmen");  // another case is another row
  shell::keepTypedValue(combo);
  combo.setText("Öğretmen");
  shell::keepTypedValue(combo);
  EXPECT_EQ(combo.items(), (std::vector<std::string>{"Öğretmen", "öğretmen"}));
}

}  // namespace

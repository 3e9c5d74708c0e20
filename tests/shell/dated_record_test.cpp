#include "platform/text/number.h"
#include "tests/shell/record_fixture.h"

namespace {

using support::Records;

TEST_F(Records, ANewRecordIsDatedTodayAndNothingIsChangedYet) {
  EXPECT_EQ(screen->lblisim.caption(), "Ayşe Yıldız*");
  EXPECT_EQ(screen->lblhasta.caption().substr(0, 15), "Ayşe Yıldız ");
  EXPECT_EQ(screen->txttarih.text(), "22.11.2026");
  for (const forms::MenuItem* entry : {&screen->mnuyeni, &screen->mnukaydet, &screen->mnusil})
    EXPECT_FALSE(entry->enabled());
  screen->txttarih.setText("21.11.2026");
  EXPECT_TRUE(screen->mnuyeni.enabled());
}

TEST_F(Records, ASaveGivesTheNumberTheListAndTheLedgerRow) {
  save("1.3.2026", "baş ağrısı");
  EXPECT_EQ(screen->txtnumara.text(), "1");
  EXPECT_FALSE(screen->mnukaydet.enabled());
  EXPECT_TRUE(screen->mnusil.enabled());
  save("5.2.2025", "öksürük");
  save("1.3.2026", "ateş");
  EXPECT_EQ(dates(), (std::vector<std::string>{"05.02.2025", "01.03.2026", "01.03.2026"}));
  EXPECT_EQ(ledger(), "3: 2;1;3;");
  EXPECT_EQ(screen->liste.listIndex(), 2);
  // The record on the screen changes its day, and with it its place.
  screen->txttarih.setText("1.1.2024");
  screen->mnukaydet.press();
  EXPECT_EQ(ledger(), "3: 3;2;1;");
  EXPECT_EQ(screen->liste.listIndex(), 0);
  EXPECT_GT(desk.card.buttonsDrawn, 0);
}

TEST_F(Records, EveryKindOfFieldComesBackAsItWasStored) {
  screen->comdoktor.setText("Dr. Özgür Şahin");
  screen->txtücret.setText(" 12,5 ");
  screen->txtşikayet.setText("uzun\nmetin  ");
  screen->ComMedeniDurum.setListIndex(1);
  screen->ChkHT.setValue(true);
  screen->txtp1.setText("C:\\resim.jpg");
  screen->mnukaydet.press();
  auto other = desk.open();
  EXPECT_EQ(other->tbToolBar.button("resim")->image, "picture");
  other->liste.setListIndex(0);
  EXPECT_EQ(other->txtücret.text(), "12.50");
  EXPECT_EQ(other->txtşikayet.text(), "uzun\nmetin");
  EXPECT_EQ(other->ComMedeniDurum.text(), "Evli");
  EXPECT_TRUE(other->ChkHT.value());
  EXPECT_EQ(other->tbToolBar.button("resim")->image, "picturev");
  EXPECT_FALSE(other->mnukaydet.enabled());
  other->ChkHT.setValue(false);
  EXPECT_TRUE(other->mnukaydet.enabled());
  EXPECT_FALSE(desk.station.stores.clinical.Doctors.empty());
}

TEST_F(Records, FeesAreAmountsOrStayAsTyped) {
  const std::pair<const char*, const char*> cases[] = {
      {"250000", "250000.00"}, {"-", "-"}, {"1e9", "1000000000.00"}, {"1e300", "1e300"}, {"", ""}};
  for (const auto& [typed, stored] : cases) {
    save("22.11.2026", "x");
    screen->txtücret.setText(typed);
    if (screen->mnukaydet.enabled()) screen->mnukaydet.press();
    // What looks like old lira is asked about.
    if (std::string_view(typed) == "1e300") desk.host.expect("YTL", host::Answer::No);
    ASSERT_TRUE(screen->alanlaritasi(text::wholeNumber(screen->txtnumara.text()).value()));
    EXPECT_EQ(screen->txtücret.text(), stored);
  }
}

TEST_F(Records, ANewRecordCarriesOverFromTheLatestOneAndIsNotChanged) {
  save("1.1.2026", "ilk");
  screen->txtözgeçmiş.setText("astım");
  screen->mnukaydet.press();
  save("1.1.2020", "eski");
  screen->txtözgeçmiş.setText("yok");
  screen->mnukaydet.press();
  screen->mnuyeni.Click();
  EXPECT_EQ(screen->txtözgeçmiş.text(), "astım");
  EXPECT_EQ(screen->txtşikayet.text(), "");
  EXPECT_FALSE(screen->mnukaydet.enabled());
}

TEST_F(Records, AnotherDateAsksBeforeChangesAreLost) {
  save("1.1.2026", "bir");
  save("2.1.2026", "iki");
  screen->txtşikayet.setText("iki buçuk");
  desk.host.expect("Değişiklikler kaydedilsin mi?", host::Answer::Yes);
  screen->liste.setListIndex(0);
  EXPECT_EQ(screen->txtşikayet.text(), "bir");
  screen->liste.setListIndex(1);
  EXPECT_EQ(screen->txtşikayet.text(), "iki buçuk");
  screen->mnuyeni.Click();
  screen->txtşikayet.setText("yeni");
  desk.host.expect("Kayıt yapılsın mı?", host::Answer::No);
  screen->mnuyeni.Click();
  EXPECT_EQ(screen->txtşikayet.text(), "");
  EXPECT_EQ(screen->liste.count(), 2u);
}

TEST_F(Records, DeletingAsksWithTheDateAndTheLastOneTakesTheLedgerRowAlong) {
  save("1.1.2026", "bir");
  save("2.1.2026", "iki");
  desk.host.expect("02.01.2026", host::Answer::No);
  screen->mnusil.press();
  EXPECT_EQ(ledger(), "2: 1;2;");
  desk.host.expect("silmek", host::Answer::Yes);
  screen->mnusil.press();
  EXPECT_EQ(ledger(), "1: 1;");
  EXPECT_EQ(screen->txtnumara.text(), "");
  screen->liste.setListIndex(0);
  screen->Sil1();
  EXPECT_EQ(ledger(), "");
  EXPECT_TRUE(dates().empty());
  save("3.1.2026", "üç");
  EXPECT_EQ(screen->txtnumara.text(), "1");  // the table was empty again
}

TEST_F(Records, ARecordThatAnotherStationDeletedIsPassedOver) {
  save("1.1.2026", "bir");
  save("2.1.2026", "iki");
  support::RecordDesk second(folder.path());
  auto other = second.open();
  other->liste.setListIndex(0);
  other->Sil1();
  screen->liste.setListIndex(0);  // the row is still shown here
  EXPECT_EQ(screen->txtşikayet.text(), "iki");
  EXPECT_EQ(screen->liste.listIndex(), 1);
  other->liste.setListIndex(0);
  other->Sil1();
  screen->Sil();  // gone: no question, no message
  screen->txtşikayet.setText("iki yine");
  screen->mnukaydet.press();  // what was typed is not lost
  EXPECT_EQ(dates(), std::vector<std::string>{"02.01.2026"});
  EXPECT_EQ(screen->txtşikayet.text(), "iki yine");
}

// The highest number is given out again once its record is deleted.
TEST_F(Records, ANumberThatIsAnotherPatientsByNowIsNeitherShownNorWrittenNorDeleted) {
  save("1.1.2026", "bir");
  save("2.1.2026", "iki");
  support::RecordDesk second(folder.path());
  second.station.SeciliHasta = "Mehmet Can";
  auto& table = second.station.stores.clinical.PhysicalExam;
  ASSERT_TRUE(table.Seek("=", 2) && table.Delete());
  auto other = second.open();
  other->txtşikayet.setText("Mehmet'in");
  other->mnukaydet.press();
  ASSERT_EQ(other->txtnumara.text(), "2");
  screen->Sil();  // gone: no question
  screen->txtşikayet.setText("iki yine");
  screen->mnukaydet.press();
  EXPECT_EQ(screen->txtnumara.text(), "3");
  ASSERT_TRUE(stores::writeLedgerRow(desk.station.stores.clinical.Visit, "GenMed\\Ayşe Yıldız*",
                                     {.numbers = {1, 2}, .lastVisit = {}}));
  screen = desk.open();
  screen->liste.setListIndex(1);
  EXPECT_EQ(screen->txtşikayet.text(), "");
  ASSERT_TRUE(table.Seek("=", 2) && !table.NoMatch());
  EXPECT_EQ(table.Fields("Complain").text(), "Mehmet'in");
}

TEST_F(Records, TheLedgerIsTrusted) {
  save("1.1.2026", "bir");
  save("2.1.2026", "iki");
  auto& visit = desk.station.stores.clinical.Visit;
  stores::LedgerRow row{.numbers = {1, 77, 2}, .lastVisit = {}};
  ASSERT_TRUE(stores::writeLedgerRow(visit, "GenMed\\Ayşe Yıldız*", row));
  screen = desk.open();
  EXPECT_EQ(dates(), (std::vector<std::string>{"01.01.2026", "01.01.2026", "02.01.2026"}));
}

TEST_F(Records, AnotherSpecialityHasItsOwnDates) {
  save("1.1.2026", "genel");
  desk.station.BransNo = 2;
  desk.station.BransAdi = "Surgery";
  screen = desk.open();
  EXPECT_TRUE(dates().empty());
  save("2.1.2026", "cerrahi");
  EXPECT_EQ(dates().size(), 1u);
  EXPECT_EQ(ledger("Surgery\\Ayşe Yıldız*"), "1: 2;");
  EXPECT_EQ(ledger(), "1: 1;");
}

TEST_F(Records, ClosingStoresWithoutAQuestionAndAsksWhenThatIsRefused) {
  screen->txtşikayet.setText("yarım kalan");
  screen->width = 800;
  screen->height = 600;
  EXPECT_TRUE(screen->QueryUnload());
  screen->Unload();
  EXPECT_EQ(screen->txtnumara.text(), "1");
  auto again = desk.open();
  EXPECT_EQ(again->width, 800);
  again->txtşikayet.setText("saklanamayan");
  desk.station.stores.clinical.database.Close();
  desk.host.expect("yazılanlardan vazgeçilsin mi?", host::Answer::No);
  EXPECT_FALSE(again->QueryUnload());
  EXPECT_EQ(again->txtşikayet.text(), "saklanamayan");
  ASSERT_EQ(desk.host.errors.size(), 1U);
  EXPECT_EQ(desk.host.errors.front().fault(), dao::Fault::NoCurrent);
  desk.host.expect("yazılanlardan vazgeçilsin mi?", host::Answer::Yes);
  EXPECT_TRUE(again->QueryUnload());
}

struct DateCase {
  const char* birth;
  const char* typed;
  bool accepted;
};

TEST_F(Records, TheDateLiesBetweenBirthAndToday) {
  const DateCase cases[] = {
      {"", "22.11.2026", true},
      {"", "23.11.2026", false},
      {"", "dün", false},
      {"", "", false},
      {"1980", "31.12.1979", false},
      {"1980", "1.1.1980", true},
      {"15.6.1980", "14.6.1980", false},
      {"15.6.1980", "15.6.1980", true},
      {"bilinmiyor", "1.1.1900", true},
  };
  for (const DateCase& c : cases) {
    SCOPED_TRACE(std::string(c.birth) + " " + c.typed);
    desk.card.birth = c.birth;
    screen->txttarih.setText("01.05.2026");
    screen->focusMoved(&screen->txttarih);
    EXPECT_EQ(screen->txttarih.selLength(), 10u);
    screen->txttarih.setText(c.typed);
    if (!c.accepted) desk.host.expect("Hatalı tarih", host::Answer::Ok);
    screen->focusMoved(&screen->txtşikayet);
    EXPECT_EQ(screen->txttarih.text() == "01.05.2026", !c.accepted);
    EXPECT_EQ(screen->activeControl() == &screen->txttarih, !c.accepted);
    screen->focusMoved(nullptr);
  }
}

}  // namespace

#include <gtest/gtest.h>

#include "registry/card_fields.h"
#include "stores/value_list.h"
#include "tests/registry/card_fixture.h"

namespace {

using support::Card;
using support::CardDesk;
using support::TemporaryFolder;

using NewPatient = Card;

TEST_F(NewPatient, IsTypedSavedAndReadBack) {
  main.mnuyeni.Click();
  desk.typeName("  Ayşe Yıldız ");
  main.TxtDTarihi.setText("12.3.1991");
  main.ComCinsiyet.setText("k");
  main.ComKanGrubu.setText("A Rh(+)");
  main.comdogumyeri.setText("İzmir");
  main.txtnot.setText("Not'lar \"iki\"\nsatır\t\x01 ¬");
  main.txtdosyano.setText("2026/17");
  ASSERT_TRUE(main.mnukaydet.enabled());
  main.mnukaydet.press();
  EXPECT_FALSE(main.mnukaydet.enabled());
  EXPECT_TRUE(main.mnusil.enabled());
  EXPECT_EQ(desk.station.SeciliHasta, "Ayşe Yıldız");
  EXPECT_EQ(desk.column("Ayşe Yıldız", "Date of Birth"), "1991-03-12");
  EXPECT_EQ(desk.column("Ayşe Yıldız", "Year of Birth"), "");
  EXPECT_EQ(desk.column("Ayşe Yıldız", "Sex"), "0");
  EXPECT_EQ(stores::values(desk.station.stores.personal, "Place Of Birth"),
            std::vector<std::string>{"İzmir"});

  main.mnuyeni.Click();
  EXPECT_EQ(main.txtnot.text(), "");
  EXPECT_EQ(desk.station.SeciliHasta, "");
  desk.load("AYŞE yıldız");  // the store's order knows no case
  EXPECT_EQ(main.Txtİsim.text(), "Ayşe Yıldız");
  EXPECT_EQ(main.TxtDTarihi.text(), "12.03.1991");
  EXPECT_EQ(main.ComCinsiyet.listIndex(), 0);
  EXPECT_EQ(main.txtnot.text(), "Not'lar \"iki\"\nsatır\t\x01 ¬");
  EXPECT_EQ(main.txtdosyano.text(), "2026/17");
  EXPECT_EQ(main.txtyaşı.caption(), "Yaşı :  35");
  EXPECT_FALSE(main.mnukaydet.enabled());
}

TEST_F(NewPatient, CannotBeSavedWithoutNameAndBirth) {
  main.TxtDTarihi.setText("1990");
  EXPECT_FALSE(main.mnukaydet.enabled());
  main.Txtİsim.setText("   ");
  EXPECT_FALSE(main.mnukaydet.enabled());
  main.Txtİsim.setText("Ali");
  EXPECT_TRUE(main.mnukaydet.enabled());
  EXPECT_TRUE(main.mnumuayene1.enabled());
  EXPECT_TRUE(main.tbToolBar.button("muayene")->enabled);
  main.TxtDTarihi.setText("bilinmiyor");
  EXPECT_FALSE(main.mnukaydet.enabled());
  EXPECT_FALSE(main.mnumuayene1.enabled());
  EXPECT_TRUE(main.mnuyeni.enabled());
}

TEST_F(NewPatient, IsNobodyWhoseRecordsCouldBeOpened) {
  const auto offered = [&] {
    return main.mnumuayene1.enabled() || main.mnutest.enabled() ||
           main.mnumuayenetarihleri.enabled() || main.tbToolBar.button("muayene")->enabled ||
           main.tbToolBar.button("smok")->enabled;
  };
  EXPECT_FALSE(offered()) << "as the program comes up";
  desk.newPatient("Ali Can", "1980");
  EXPECT_TRUE(offered());
  main.mnuyeni.Click();
  EXPECT_FALSE(offered());
}

TEST_F(NewPatient, FillsEveryFieldOfTheCard) {
  main.mnuyeni.Click();
  desk.typeName("Tüm Alanlar");
  int number = 0;
  for (const shell::FieldRow& row : registry::cardFields()) {
    auto& field = dynamic_cast<forms::TextControl&>(row.control(main));
    const bool special = &field == &main.Txtİsim || &field == &main.TxtDTarihi ||
                         &field == &main.ComCinsiyet || &field == &main.txtkey;
    if (!special) field.setText("d" + std::to_string(++number));
  }
  main.TxtDTarihi.setText("1955");
  main.mnukaydet.press();
  const std::string saved = main.YeniAlanlar();
  main.mnuyeni.Click();
  desk.load("Tüm Alanlar");
  EXPECT_EQ(number, 26);
  EXPECT_EQ(main.YeniAlanlar(), saved);
}

TEST_F(NewPatient, LeavesNothingOfTheOneBefore) {
  desk.newPatient("Ali Can", "1980");
  main.txtdosyano.setText("77");
  main.mnukaydet.press();
  desk.newPatient("Veli Can", "1981");
  EXPECT_EQ(main.txtdosyano.text(), "");
  desk.load("Ali Can");
  EXPECT_EQ(main.txtdosyano.text(), "77");
  desk.load("Veli Can");
  EXPECT_EQ(main.txtdosyano.text(), "");
}

using StoredPatient = Card;

TEST_F(StoredPatient, AsksBeforeNewLosesAChange) {
  desk.newPatient("Ali Can", "1980");
  main.txtnot.setText("yeni not");
  desk.host.expect("Değişiklikler kaydedilsin mi?", host::Answer::No);
  main.mnuyeni.press();
  EXPECT_EQ(desk.column("Ali Can", "Notes"), "");
  desk.load("Ali Can");
  main.txtnot.setText("yeni not");
  desk.host.expect("Değişiklikler kaydedilsin mi?", host::Answer::Yes);
  main.mnuyeni.press();
  EXPECT_EQ(desk.column("Ali Can", "Notes"), "yeni not");
  EXPECT_EQ(desk.host.asked.back().title, main.caption());
}

TEST_F(StoredPatient, IsRenamedOnlyWithConsent) {
  desk.newPatient("Ali Can", "1980");
  desk.typeName("Ali Canan");
  main.txtnot.setText("x");
  desk.host.expect("Ali Can, Ali Canan olarak değiştirilsin mi?", host::Answer::No);
  main.mnukaydet.press();
  EXPECT_EQ(main.Txtİsim.text(), "Ali Can");
  EXPECT_EQ(desk.column("Ali Can", "Notes"), "x");
  desk.typeName("Ali Canan");
  desk.host.expect("olarak değiştirilsin mi?", host::Answer::Yes);
  main.mnukaydet.press();
  EXPECT_EQ(desk.stored(), std::vector<std::string>{"Ali Canan"});
  EXPECT_EQ(desk.station.SeciliHasta, "Ali Canan");
  // Another case of the letters is the same patient, in the case that is stored.
  desk.typeName("ali canan");
  EXPECT_EQ(main.Txtİsim.text(), "Ali Canan");
}

TEST_F(StoredPatient, IsDeletedAfterTheQuestion) {
  desk.newPatient("Ali Can", "1980");
  desk.newPatient("Veli Can", "1980");
  main.Txtİsim.setText(
      "Veli");  // another text in the name field: nothing is deleted, nothing is asked
  main.mnusil.press();
  desk.load("Veli Can");
  desk.host.expect("Veli CanKaydı silmek istiyor musunuz?.", host::Answer::No);
  main.mnusil.press();
  EXPECT_EQ(desk.stored().size(), 2U);
  desk.host.expect("Veli Can", host::Answer::Yes);
  main.mnusil.press();
  EXPECT_EQ(desk.stored(), std::vector<std::string>{"Ali Can"});
  EXPECT_EQ(main.Txtİsim.text(), "");
  EXPECT_FALSE(main.mnusil.enabled());
}

TEST_F(StoredPatient, BackAndForwardStepInTheOrderOfNames) {
  for (const char* name : {"Çeşme Ak", "Ali Can", "Ceyda Al"}) desk.newPatient(name, "1980");
  main.mnuyeni.Click();
  main.mnugeri.press();
  EXPECT_EQ(main.Txtİsim.text(), "Ceyda Al");
  main.mnugeri.press();
  EXPECT_EQ(main.Txtİsim.text(), "Çeşme Ak");
  main.txtnot.setText("adım");  // stepping away stores without a question
  main.mnugeri.press();
  EXPECT_EQ(main.Txtİsim.text(), "Ali Can");
  EXPECT_EQ(desk.column("Çeşme Ak", "Notes"), "adım");
  main.mnugeri.press();
  EXPECT_EQ(main.Txtİsim.text(), "Ali Can");
  EXPECT_FALSE(main.mnugeri.enabled());
  main.mnuileri.press();
  EXPECT_TRUE(main.mnugeri.enabled());
  main.mnuyeni.Click();
  main.mnuileri.press();
  EXPECT_EQ(main.Txtİsim.text(), "Ali Can");
}

TEST_F(StoredPatient, ShowsItsVisitsOnTheToolbar) {
  desk.newPatient("Ali Can", "1980");
  dao::Recordset& visit = desk.station.stores.clinical.Visit;
  ASSERT_TRUE(visit.AddNew().ok());
  ASSERT_TRUE(visit.Fields("Spname").Set("GenMed\\Ali Can").ok());
  ASSERT_TRUE(visit.Update().ok());
  desk.load("Ali Can");
  EXPECT_EQ(main.tbToolBar.button("muayene")->image, "muayenev");
  main.mnuyeni.Click();
  EXPECT_EQ(main.tbToolBar.button("muayene")->image, "muayene");
}

TEST_F(StoredPatient, ARowChosenFromAListIsAChange) {
  desk.newPatient("Ali Can", "1980");
  main.ComKanGrubu.setListIndex(2);
  EXPECT_TRUE(main.mnukaydet.enabled());
  EXPECT_FALSE(main.sbDurum.panels()[2].empty());
  main.ComKanGrubu.setText("");
  EXPECT_FALSE(main.mnukaydet.enabled());
  EXPECT_EQ(main.sbDurum.panels()[2], "");
}

// A card without a sex, as another program may have stored it, shows none.
TEST_F(StoredPatient, WithoutASexShowsNone) {
  dao::Recordset& cards = desk.station.stores.personal.IDCard;
  ASSERT_TRUE(cards.AddNew().ok());
  ASSERT_TRUE(cards.Fields("Name").Set("Ece Su").ok());
  ASSERT_TRUE(cards.Fields("Year of Birth").Set("1999").ok());
  ASSERT_TRUE(cards.Update().ok());
  desk.load("Ece Su");
  EXPECT_EQ(main.ComCinsiyet.text(), "");
  EXPECT_FALSE(main.mnukaydet.enabled());
}

// What another program stored stays as long as nobody chooses something else.
TEST_F(StoredPatient, KeepsASexThatTheListDoesNotHave) {
  desk.newPatient("Ece Su", "1999");
  dao::Recordset& cards = desk.station.stores.personal.IDCard;
  ASSERT_TRUE(cards.Seek("=", "Ece Su") && cards.Edit() && cards.Fields("Sex").Set("7") &&
              cards.Update());
  desk.load("Ece Su");
  main.txtnot.setText("not");
  main.mnukaydet.press();
  EXPECT_EQ(desk.column("Ece Su", "Sex"), "7");
  main.ComCinsiyet.setText("k");
  main.mnukaydet.press();
  EXPECT_EQ(desk.column("Ece Su", "Sex"), "0");
}

TEST_F(StoredPatient, IsNotChangedByASwitchOfTheLanguage) {
  desk.newPatient("Ali Can", "1980");
  main.ComCinsiyet.setText("E");
  main.mnukaydet.press();
  const auto speak = [&](const char* language) {
    desk.station.ayarYaz("Language", language);
    main.dilDegisti();
  };
  main.sbDurum.setPanel(3, "");
  speak("eng");
  EXPECT_EQ(main.ComCinsiyet.text(), "M");
  EXPECT_FALSE(main.mnukaydet.enabled());
  EXPECT_EQ(main.sbDurum.panels()[2], "");
  main.txtnot.setText("x");
  speak("tr");
  EXPECT_EQ(main.sbDurum.panels()[2], "değişti, kaydedilmedi");
  main.txtnot.setText("");
  EXPECT_FALSE(main.mnukaydet.enabled());
}

TEST_F(StoredPatient, ChosenAfterAnotherStationDeletedItLeavesTheCardAsItIs) {
  desk.newPatient("Veli Can", "1980");
  main.txtnot.setText("yarım");
  desk.station.SeciliHasta = "Kimse Yok";
  EXPECT_FALSE(main.hastaoku());
  EXPECT_EQ(desk.station.SeciliHasta, "Veli Can");
  EXPECT_EQ(main.txtnot.text(), "yarım");
  EXPECT_TRUE(main.mnukaydet.enabled());
}

TEST_F(StoredPatient, TabsShowOnePanelAndItsFirstField) {
  main.TabStrip1.select("TSAdres");
  EXPECT_TRUE(main.PAdres.visible());
  EXPECT_FALSE(main.PKişisel.visible());
  EXPECT_EQ(main.activeControl(), &main.ComHitap);
}

TEST(CardColours, FollowTheSex) {
  const TemporaryFolder folder;
  CardDesk desk(folder.path(), "Polyclinic", "eng");
  desk.main.ComCinsiyet.setText("f");
  EXPECT_EQ(desk.main.Panofoto.backColour(), 0xFFC0C0U);
  EXPECT_TRUE(desk.main.BKadınDoğum.enabled());
  desk.main.ComCinsiyet.setText("Man");
  EXPECT_EQ(desk.main.Panofoto.backColour(), 0xC0C0FFU);
  EXPECT_FALSE(desk.main.BKadınDoğum.enabled());
  desk.main.ComCinsiyet.setText("x");  // neither initial: the choice stays
  EXPECT_EQ(desk.main.ComCinsiyet.listIndex(), 1);
  EXPECT_EQ(desk.main.ComCinsiyet.text(), "M");
}

// The row itself, typed as it stands in the list, is acted on like any other way to choose it.
TEST(CardColours, FollowACapitalInitial) {
  struct Case {
    const char* language;
    const char* typed;
    unsigned colour;
    bool forWomen;
  };
  for (const Case& c : {Case{"tr", "E", 0xC0C0FFU, false}, Case{"tr", "K", 0xFFC0C0U, true},
                        Case{"eng", "M", 0xC0C0FFU, false}, Case{"eng", "F", 0xFFC0C0U, true}}) {
    SCOPED_TRACE(c.typed);
    const TemporaryFolder folder;
    CardDesk desk(folder.path(), "Polyclinic", c.language);
    desk.main.ComCinsiyet.setText(c.typed);
    EXPECT_EQ(desk.main.Panofoto.backColour(), c.colour);
    EXPECT_EQ(desk.main.BKadınDoğum.enabled(), c.forWomen);
    desk.main.ComCinsiyet.setText("ş");
    EXPECT_EQ(desk.main.ComCinsiyet.text(), c.typed) << "a stray letter changes nothing";
  }
}

TEST_F(Card, ShutDownAsksSavesAndKeepsTheWindow) {
  main.Txtİsim.setText("Son Hasta");
  main.TxtDTarihi.setText("1970");
  main.width = 900;
  main.windowState = forms::WindowState::Normal;
  desk.host.expect("Kayıt yapılsın mı?", host::Answer::Yes);
  main.mnucik.press();
  EXPECT_EQ(desk.column("Son Hasta", "Year of Birth"), "1970");
  EXPECT_EQ(desk.station.ayar("Main Width"), "900");
  EXPECT_EQ(desk.station.ayar("Main WindowState"), "0");
}

// Stands where a record screen would open.
struct RecordStandIn : forms::Form {
  explicit RecordStandIn(shell::Station&) : Form("FrmExam") {}
};

struct OpeningARecord : Card {
  OpeningARecord() {
    desk.screens.add("FrmExam", [](shell::Station& station) {
      return std::make_unique<RecordStandIn>(station);
    });
    desk.host.modal["FrmExam"] = [this](forms::Form&) { opened = desk.station.SeciliHasta; };
  }
  std::string opened;
};

TEST_F(OpeningARecord, ACardThatIsNotStoredIsSavedFirst) {
  main.mnuyeni.Click();
  desk.typeName("Ayşe Yıldız");
  main.TxtDTarihi.setText("1991");
  main.tbToolBar.press("muayene");
  EXPECT_EQ(opened, "Ayşe Yıldız");
  EXPECT_EQ(desk.column("Ayşe Yıldız", "Year of Birth"), "1991");
  main.txtnot.setText("alerjisi var");
  main.mnumuayene1.Click();
  EXPECT_EQ(desk.column("Ayşe Yıldız", "Notes"), "alerjisi var");
}

TEST_F(OpeningARecord, DoesNotHappenWhenTheCardWasRefused) {
  main.mnuyeni.Click();
  desk.typeName("Ayşe Yıldız");
  main.TxtDTarihi.setText("1991");
  desk.station.stores.personal.database.Close();
  main.tbToolBar.press("muayene");
  EXPECT_EQ(opened, "");
  EXPECT_TRUE(main.mnukaydet.enabled());
}

}  // namespace

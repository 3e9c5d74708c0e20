// Saving every card anew, and cards for pregnancies without one.
#include <gtest/gtest.h>

#include <algorithm>

#include "shell/frm_progress.h"
#include "stores/value_list.h"
#include "tests/registry/card_fixture.h"

namespace {

using support::Card;

using Names = std::vector<std::string>;

struct Repair : Card {
  Repair() {
    desk.host.modal["frmprogress"] = [this](forms::Form&) { desk.host.runTasks(); };
  }
  // A card as another program may have left it, past the rules of the fields.
  void store(std::string_view name, std::string_view field, std::string_view value,
             std::string_view year = "1980") {
    dao::Database& personal = desk.station.stores.personal.database;
    ASSERT_TRUE(personal.Execute("INSERT INTO IDCard([Name], [Year of Birth], [Sex], [" +
                                     std::string(field) + "]) VALUES(?, ?, '1', ?)",
                                 {name, year, value}));
  }
  void storeMany(int count) {
    auto all = desk.station.stores.personal.database.beginTransaction();
    ASSERT_TRUE(all);
    for (int i = 0; i < count; ++i) store("Hasta " + std::to_string(1000 + i), "Job", "Memur");
    ASSERT_TRUE(all->commit());
  }
};

TEST_F(Repair, RestoresTheListsAndCutsWhatIsTooLong) {
  store("Ali Can", "Relationship", std::string(30, 'y'));
  store("Ayşe Ak", "Profession", "Hemşire");
  store("Gizli Biri", "Key", "¬");
  desk.host.expect("Yeniden kaydedilen kart: 3", host::Answer::Ok);
  main.mnutamir.press();
  EXPECT_EQ(desk.column("Ali Can", "Relationship"), std::string(20, 'y'));
  EXPECT_EQ(desk.column("Gizli Biri", "Key"), "¬");
  EXPECT_EQ(desk.column("Gizli Biri", "Year of Birth"), "1980");
  const Names professions = stores::values(desk.station.stores.personal, "Profession");
  EXPECT_NE(std::ranges::find(professions, "Hemşire"), professions.end());
  EXPECT_EQ(main.ComMeslek.items(), professions);
  EXPECT_EQ(main.Txtİsim.text() + desk.station.SeciliHasta, "");
  EXPECT_FALSE(main.mnukaydet.enabled());
}

// One refused card in a batch costs nobody else the save; nothing that a card holds is lost.
TEST_F(Repair, PassesOverACardThatCannotBeSaved) {
  store("Ali Can", "Relationship", std::string(30, 'y'));
  store("Bozuk", "Notes", std::string(300, 'n'), "x1y");
  store("  Boşluk", "Job", "Memur");
  store("Zeki Su", "Relationship", std::string(30, 'z'));
  desk.host.expect("Yeniden kaydedilen kart: 2\nKaydedilemeyen kart: 2", host::Answer::Ok);
  main.mnutamir.press();
  EXPECT_EQ(desk.column("Ali Can", "Relationship"), std::string(20, 'y'));
  EXPECT_EQ(desk.column("Zeki Su", "Relationship"), std::string(20, 'z'));
  EXPECT_EQ(desk.column("Bozuk", "Year of Birth"), "x1y");
  EXPECT_EQ(desk.column("  Boşluk", "Job"), "Memur");
}

TEST_F(Repair, AsksAboutTheCardOnTheScreenFirst) {
  desk.newPatient("Ali Can", "1980");
  main.txtnot.setText("yarım");
  desk.host.expect("Değişiklikler kaydedilsin mi?", host::Answer::Yes);
  desk.host.expect("kart: 1", host::Answer::Ok);
  main.mnutamir.press();
  EXPECT_EQ(desk.column("Ali Can", "Notes"), "yarım");
}

TEST_F(Repair, StopsBetweenTwoBatches) {
  storeMany(300);
  desk.host.modal["frmprogress"] = [this](forms::Form& form) {
    auto& screen = static_cast<shell::FrmProgress&>(form);
    EXPECT_EQ(screen.PBdurum.maximum(), 300);
    desk.host.tasks.front()();
    desk.host.tasks.pop_front();
    EXPECT_EQ(screen.Lsayi.caption(), "128 / 300");
    EXPECT_EQ(main.Txtİsim.text(), "") << "no card shows while the windows draw";
    screen.butdurdur.press();
    desk.host.runTasks();
  };
  desk.host.expect("Yeniden kaydedilen kart: 128", host::Answer::Ok);
  main.mnutamir.press();
  desk.host.modal["frmprogress"] = [this](forms::Form&) { desk.host.runTasks(); };
  desk.host.expect("Yeniden kaydedilen kart: 300", host::Answer::Ok);
  main.mnutamir.press();
}

TEST_F(Repair, AddsACardForEveryPregnancyWithoutOne) {
  desk.newPatient("Ayşe Ak", "1991");
  dao::Recordset& gravid = desk.station.stores.clinical.Gravid;
  int number = 0;
  for (const char* name : {"Fatma Su", "ayşe ak", "Fatma Su", ""}) {
    ASSERT_TRUE(gravid.AddNew() && gravid.Fields("Count").Set(++number) &&
                gravid.Fields("Name").Set(name) && gravid.Update());
  }
  desk.host.expect("Eklenen kart: 1", host::Answer::Ok);
  main.mnugebekart.press();
  EXPECT_EQ(desk.stored(), (Names{"Ayşe Ak", "Fatma Su"}));
  EXPECT_EQ(desk.column("Fatma Su", "Year of Birth"), "1986");
  EXPECT_EQ(desk.column("Fatma Su", "Sex"), "0");
  EXPECT_EQ(desk.column("Fatma Su", "Notes"), "");
  EXPECT_EQ(desk.column("Ayşe Ak", "Year of Birth"), "1991");
  EXPECT_EQ(main.Txtİsim.text(), "Ayşe Ak") << "the card on the screen stays";
}

}  // namespace

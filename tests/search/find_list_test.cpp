// What the finder does with its list: pages, stopping, going to a patient.
#include "tests/search/find_fixture.h"

namespace {

using Names = std::vector<std::string>;

struct FindList : support::Finder {
  search::FrmFind finder{desk.station};
  FindList() { finder.Load(); }
};

TEST_F(FindList, FindNeedsAFilter) {
  EXPECT_FALSE(finder.butbul.enabled());
  finder.TxtFax.setText("1");
  EXPECT_TRUE(finder.butbul.enabled());
  finder.ComCinsiyet.setListIndex(1);
  finder.TxtFax.setText("");
  EXPECT_TRUE(finder.butbul.enabled());
  finder.ButTemizle.press();
  EXPECT_EQ(finder.FindAlanlar(), "");
  EXPECT_EQ(finder.ComCinsiyet.listIndex(), -1);
  EXPECT_FALSE(finder.butbul.enabled());
  finder.ComCinsiyet.setText("x");
  EXPECT_EQ(finder.ComCinsiyet.text(), "") << "no sex begins with it";
}

TEST_F(FindList, ACombosListCompletes) {
  finder.comgorev.setItems({"Memur", "Müdür"});
  finder.comgorev.setText("mü");
  finder.comgorev.KeyUp(forms::Key{.code = 255});
  EXPECT_EQ(finder.comgorev.text(), "müdür");
  finder.focusMoved(&finder.comgorev);
  finder.comgorev.setText("x");
  finder.focusMoved(&finder.txtnot);
  EXPECT_EQ(finder.comgorev.items().size(), 2u) << "a filter is no new value";
  finder.Listeleriyaz();
  EXPECT_EQ(finder.comgorev.text(), "x");
}

TEST_F(FindList, TheResultComesOverTheFiltersAndGoesAgain) {
  card("Ali");
  EXPECT_TRUE(finder.PFiltre.visible());
  EXPECT_FALSE(finder.Frame1.visible());
  finder.ButTümListe.press();
  EXPECT_FALSE(finder.PFiltre.visible());
  EXPECT_TRUE(finder.Frame1.visible());
  EXPECT_EQ(finder.activeControl(), &finder.BulList);
  EXPECT_EQ(finder.BulList.selectedKey(), "Ali") << "Enter opens the first one";
  finder.ButFiltre.press();
  EXPECT_TRUE(finder.PFiltre.visible());
  EXPECT_EQ(finder.activeControl(), &finder.Txtİsim);
  finder.txtnot.setText("nobody");
  finder.butbul.press();
  EXPECT_EQ(finder.LSayı.caption(), "0");
  EXPECT_FALSE(finder.ButGit.enabled());
  EXPECT_EQ(finder.BulList.toolTip(),
            "Tüm filtrelere uyan hasta yok. Geri dönüp bazı filtreleri boşaltınız.");
}

// What the wizards hand over: in their order, without those who are gone or hidden.
TEST_F(FindList, NamesBecomeRowsAsFarAsTheyHaveACard) {
  for (const char* name : {"İnci", "Inci", "Naz"}) card(name);
  card("Gizli", {{"Key", "¬"}});
  finder.ListFiltre.appendItems({"Naz", "nobody", "Gizli", "Inci"});
  finder.SonuçlarıListele();
  EXPECT_EQ(keys(finder.BulList), (Names{"Naz", "Inci"}));
  EXPECT_EQ(finder.LSayı.caption(), "2");
  EXPECT_EQ(finder.LDurum.caption(), "");
}

TEST_F(FindList, StopsInTheMiddleAndKeepsWhatItHas) {
  manyCards(2000);
  finder.dilimSuresi = std::chrono::milliseconds(0);
  const auto stopsAfterOneSlice = [&](auto stop) {
    finder.TümListe();
    ASSERT_EQ(desk.host.tasks.size(), 1u);
    stop();
    const std::size_t rows = finder.BulList.rowCount();
    EXPECT_GT(rows, 0u);
    EXPECT_LT(rows, 2000u);
    desk.host.runTasks();
    EXPECT_EQ(finder.BulList.rowCount(), rows);
    EXPECT_FALSE(finder.ButDur.visible());
  };
  stopsAfterOneSlice([&] { finder.ButDur.Click(); });
  EXPECT_EQ(finder.LDurum.caption(), "durduruldu");
  stopsAfterOneSlice([&] { finder.Txtİsim.setText(finder.Txtİsim.text() + "x"); });
  stopsAfterOneSlice([&] { finder.Unload(); });
  finder.TümListe();
  finder.TümListe();
  desk.host.runTasks();
  EXPECT_EQ(finder.BulList.rowCount(), 2000u) << "begun anew, not twice";
}

TEST_F(FindList, ProgressShowsOnlyWhenItTakesLong) {
  manyCards(100);
  for (int i = 0; i < 100; ++i) finder.ListFiltre.addItem("Hasta 0000");
  finder.dilimSuresi = std::chrono::milliseconds(0);
  finder.SonuçlarıListele();
  for (int slice = 0; slice < 20; ++slice) {
    const auto task = std::move(desk.host.tasks.front());
    desk.host.tasks.pop_front();
    task();
  }
  EXPECT_FALSE(finder.PBar.visible());
  for (int slice = 0; slice < 60; ++slice) {
    const auto task = std::move(desk.host.tasks.front());
    desk.host.tasks.pop_front();
    task();
  }
  EXPECT_TRUE(finder.PBar.visible() && finder.ButDur.visible());
  EXPECT_EQ(finder.PBar.maximum(), 100);
  EXPECT_EQ(finder.PBar.value(), 81);
  desk.host.runTasks();
  EXPECT_FALSE(finder.PBar.visible() || finder.ButDur.visible());
}

TEST_F(FindList, AWindowThatIsGoneIsNotWorkedFor) {
  manyCards(2000);
  {
    search::FrmFind gone(desk.station);
    gone.Load();
    gone.dilimSuresi = std::chrono::milliseconds(0);
    gone.TümListe();
    ASSERT_EQ(desk.host.tasks.size(), 1u);
  }
  desk.host.runTasks();
  EXPECT_TRUE(desk.host.tasks.empty()) << "the work does not go on";
  EXPECT_TRUE(desk.host.errors.empty());
}

TEST_F(FindList, TheChosenPatientComesOntoTheCard) {
  card("Ayşe*", {{"Year of Birth", "1980"}});
  card("Veli", {{"Year of Birth", "1970"}});
  finder.TümListe();
  finder.BulList.DblClick();
  EXPECT_EQ(desk.host.closed, Names{"FrmFind"});
  EXPECT_EQ(desk.main.Txtİsim.text(), "Ayşe*");
  EXPECT_EQ(desk.station.SeciliHasta, "Ayşe*");
  EXPECT_FALSE(desk.main.mnukaydet.enabled());
}

// As a choice in the card's own name list: asked about, and saved under its own name.
TEST_F(FindList, WhatWasChangedOnTheCardIsNotLostSilently) {
  desk.newPatient("Ali", "1990");
  card("Veli", {{"Year of Birth", "1970"}});
  const struct {
    host::Answer answer;
    const char* stored;
  } cases[]{{host::Answer::No, ""}, {host::Answer::Yes, "Değişti"}};
  for (const auto& c : cases) {
    desk.load("Ali");
    desk.main.txtnot.setText("Değişti");
    finder.TümListe();
    finder.BulList.setSelectedRow(1);
    desk.host.expect("Değişiklikler kaydedilsin mi?", c.answer);
    finder.ButGit.press();
    EXPECT_EQ(desk.main.Txtİsim.text(), "Veli");
    EXPECT_EQ(desk.column("Ali", "Notes"), c.stored);
  }
}

TEST_F(FindList, ACardThatWasDeletedMeanwhileIsSaidToBeGone) {
  card("Ali");
  finder.TümListe();
  dao::Recordset& cards = desk.station.stores.personal.IDCard;
  ASSERT_TRUE(cards.Seek("=", "Ali"));
  ASSERT_TRUE(cards.Delete());
  finder.ButGit.press();
  EXPECT_TRUE(desk.host.closed.empty());
  EXPECT_EQ(finder.LDurum.caption(), "Ali: bu kayıt başka bir istasyonda silinmiş");
}

// No way to a card drops names silently.
TEST_F(FindList, AStoreThatCannotBeReadIsSaidToBe) {
  card("Ali");
  finder.TümListe();
  finder.ListFiltre.appendItems({"Ali"});
  stores::CloseStores(desk.station.stores);
  const std::pair<const char*, std::function<void()>> ways[]{
      {"going", [&] { finder.ButGit.press(); }},
      {"names", [&] { finder.SonuçlarıListele(); }},
      {"listing", [&] { finder.TümListe(); }}};
  for (const auto& [way, act] : ways) {
    finder.LDurum.setCaption("");
    act();
    EXPECT_NE(finder.LDurum.caption(), "") << way;
    EXPECT_EQ(finder.LDurum.caption().find("başka bir istasyonda silinmiş"), std::string::npos)
        << way << ": " << finder.LDurum.caption();
    EXPECT_FALSE(finder.PBar.visible()) << way;
  }
  EXPECT_EQ(finder.BulList.rowCount(), 0u);
  EXPECT_TRUE(desk.host.closed.empty());
  EXPECT_TRUE(desk.host.tasks.empty());
}

TEST_F(FindList, TheMenuOfTheCardOpensIt) {
  desk.screens.add("FrmFind", [](shell::Station& station) {
    return std::make_unique<search::FrmFind>(station);
  });
  desk.host.modal["FrmFind"] = [](forms::Form&) {};
  desk.main.mnubul.press();
  desk.main.tbToolBar.press("Find");
  EXPECT_EQ(desk.host.shown, (Names{"FrmFind", "FrmFind"}));
}

}  // namespace

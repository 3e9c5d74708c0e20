// The finder as the wizards open it: a list of patients with an address.
#include "shell/address_picker.h"
#include "tests/search/find_fixture.h"

namespace {

using Names = std::vector<std::string>;

struct Picker : support::Finder {
  Picker() {
    desk.screens.add("FrmFind", [](shell::Station& station) {
      return std::make_unique<search::FrmFind>(station);
    });
    card("Ali", {{"Address1", "Bolu"}});
    card("Can", {{"Address4", "Ankara"}});
    card("Ece");
    card("Gizli", {{"Address1", "Van"}, {"Key", "¬"}});
  }
  Names pick(Names names, std::function<void(search::FrmFind&)> user) {
    desk.host.modal["FrmFind"] = [&](forms::Form& form) {
      user(dynamic_cast<search::FrmFind&>(form));
      desk.host.runTasks();
    };
    shell::adresSec(desk.station, names);
    EXPECT_EQ(desk.station.AdresListesi, nullptr);
    return names;
  }
};

TEST_F(Picker, TakesTheRowsThatHaveAnAddress) {
  const Names picked = pick({}, [&](search::FrmFind& finder) {
    EXPECT_FALSE(finder.Frame1.visible());
    finder.ButTümListe.press();
    EXPECT_EQ(keys(finder.BulList), (Names{"Ali", "Can", "Ece"}));
    EXPECT_FALSE(finder.ButGit.visible());
    finder.BulList.DblClick();
    EXPECT_TRUE(desk.host.closed.empty()) << "the patient on the card stays";
    finder.buttamam.press();
  });
  EXPECT_EQ(picked, (Names{"Ali", "Can"}));
  EXPECT_EQ(desk.host.closed, Names{"FrmFind"});
}

TEST_F(Picker, BeginsWithTheCallersListAndAddsToIt) {
  const Names picked = pick({"Can", "Gone"}, [&](search::FrmFind& finder) {
    EXPECT_EQ(keys(finder.BulList), Names{"Can"});
    finder.ButFiltre.press();
    finder.Txtİsim.setText("a");
    finder.butbul.press();
    finder.buttamam.press();
  });
  EXPECT_EQ(picked, (Names{"Can", "Gone", "Ali"}));
}

TEST_F(Picker, CancelLeavesTheListAsItIs) {
  EXPECT_EQ(pick({"Ece"}, [](search::FrmFind& finder) { finder.Butİptal.press(); }), Names{"Ece"});
  manyCards(50);
  const Names stopped = pick({}, [&](search::FrmFind& finder) {
    finder.TümListe();
    finder.dilimSuresi = std::chrono::milliseconds(0);
    finder.buttamam.press();
    finder.Butİptal.press();
  });
  EXPECT_TRUE(stopped.empty());
}

TEST_F(Picker, WhatCannotBeReadIsNotPickedInPart) {
  const Names picked = pick({}, [&](search::FrmFind& finder) {
    finder.TümListe();
    stores::CloseStores(desk.station.stores);
    finder.buttamam.press();
    EXPECT_NE(finder.LDurum.caption(), "");
    EXPECT_TRUE(desk.host.closed.empty()) << "the reason can be read";
  });
  EXPECT_TRUE(picked.empty());
}

TEST_F(Picker, IsForTheCallersOnly) {
  search::FrmFind finder(desk.station);
  finder.Load();
  finder.TümListe();
  EXPECT_FALSE(finder.buttamam.visible());
  EXPECT_TRUE(finder.ButGit.visible());
}

}  // namespace

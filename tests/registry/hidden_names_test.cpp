// Passwords of the card. Hiding patients: who is chosen, what is stored, and that no name slips
// out.
#include <gtest/gtest.h>

#include "registry/frm_key.h"
#include "tests/registry/card_fixture.h"

namespace {

using support::CardDesk;
using support::TemporaryFolder;

using Names = std::vector<std::string>;

struct HiddenNames : testing::Test {
  HiddenNames() {
    desk.screens.add("Frmkey", [](shell::Station& station) {
      return std::make_unique<registry::FrmKey>(station);
    });
    for (const char* name : {"Ali Can", "Ayşe Ak", "Ayşe Ay", "Zeki Su"})
      desk.newPatient(name, "1980");
  }
  void unlock() {
    desk.station.ayarYaz("namepass", "1");
    desk.host.modal["frmpass"] = [](forms::Form& form) {
      static_cast<forms::TextBox&>(*form.find("txtsifre")).setText("1");
      static_cast<forms::CommandButton&>(*form.find("buttamam")).press();
    };
    desk.main.tbToolBar.press("keyclose");
    ASSERT_TRUE(desk.main.tbToolBar.button("idpass")->visible);
  }
  // Opens the screen, lets it fill, and does something with it.
  void choose(const std::function<void(registry::FrmKey&)>& work) {
    desk.host.modal["Frmkey"] = [&](forms::Form& form) {
      desk.host.runTasks();
      work(static_cast<registry::FrmKey&>(form));
    };
    desk.main.tbToolBar.press("idpass");
  }
  void toggle(registry::FrmKey& screen, std::string_view name) {
    for (std::size_t row = 0; row < screen.Lstkey.count(); ++row) {
      const forms::ListItem& item = screen.Lstkey.items()[row];
      if (item.text == name) return screen.Lstkey.setSelected(row, !item.selected);
    }
    ADD_FAILURE() << "not listed: " << name;
  }
  void mark(std::string_view name, std::string_view key) {
    dao::Recordset& cards = desk.station.stores.personal.IDCard;
    ASSERT_TRUE(cards.Seek("=", name) && cards.Edit() && cards.Fields("Key").Set(key) &&
                cards.Update());
  }
  Names hidden() {
    Names names;
    for (const std::string& name : desk.stored()) {
      if (desk.column(name, "Key") == "¬") names.push_back(name);
    }
    return names;
  }

  TemporaryFolder folder;
  CardDesk desk{folder.path()};
};

TEST_F(HiddenNames, AreChosenInTheListAndStoredTogether) {
  unlock();
  choose([&](registry::FrmKey& screen) {
    Names listed;
    for (const forms::ListItem& item : screen.Lstkey.items()) listed.push_back(item.text);
    EXPECT_EQ(listed, desk.stored());
    toggle(screen, "Ayşe Ak");
    // What is chosen outlives a narrowed list.
    screen.txtara.setText("zek");
    desk.host.runTasks();
    ASSERT_EQ(screen.Lstkey.count(), 1U);
    toggle(screen, "Zeki Su");
    screen.txtara.setText("ay");
    desk.host.runTasks();
    EXPECT_TRUE(screen.Lstkey.items()[0].selected);
    EXPECT_EQ(screen.Lsayi.caption(), "hasta: 2   gizli: 1");
    screen.buttamam.press();
  });
  EXPECT_EQ(hidden(), (Names{"Ayşe Ak", "Zeki Su"}));
  EXPECT_EQ(desk.host.closed.back(), "Frmkey");
  choose([&](registry::FrmKey& screen) {
    toggle(screen, "Ayşe Ak");
    toggle(screen, "Ali Can");
    screen.Butİptal.press();
  });
  EXPECT_EQ(hidden(), (Names{"Ayşe Ak", "Zeki Su"}));
  mark("Ali Can", "x");  // says nothing to anybody
  choose([&](registry::FrmKey& screen) {
    toggle(screen, "Ayşe Ak");
    screen.buttamam.press();
  });
  EXPECT_EQ(hidden(), Names{"Zeki Su"});
  EXPECT_EQ(desk.column("Ali Can", "Key"), "");
}

TEST_F(HiddenNames, ThatAreRefusedSaySoAndChangeNothing) {
  unlock();
  auto other = dao::OpenDatabase(folder / "Data/Personal.mdb");
  ASSERT_TRUE(other);
  ASSERT_TRUE(other->Execute("CREATE UNIQUE INDEX one ON IDCard(Key) WHERE Key = '¬'"));
  choose([&](registry::FrmKey& screen) {
    toggle(screen, "Ali Can");
    toggle(screen, "Zeki Su");
    screen.buttamam.press();
    EXPECT_NE(desk.host.closed.back(), "Frmkey");
    ASSERT_EQ(desk.host.errors.size(), 1U);
    EXPECT_NE(desk.host.errors.front().text().find("saklanamadı"), std::string::npos);
  });
  EXPECT_EQ(hidden(), Names{});
}

// The patient on the card carries the mark along: a save behind must not undo the choice.
TEST_F(HiddenNames, StayHiddenWhenTheCardOnTheScreenIsSaved) {
  desk.load("Zeki Su");
  unlock();
  choose([&](registry::FrmKey& screen) {
    toggle(screen, "Zeki Su");
    screen.buttamam.press();
  });
  EXPECT_FALSE(desk.main.mnukaydet.enabled());
  desk.main.txtnot.setText("not");
  desk.main.mnukaydet.press();
  EXPECT_EQ(hidden(), Names{"Zeki Su"});
  desk.main.Txtİsim.setText("Z");
  desk.main.Txtİsim.KeyUp(forms::Key{.code = 'Z'});
  desk.tick();
  EXPECT_EQ(desk.listed(), Names{"Zeki Su"});
  desk.main.tbToolBar.press("keyopen");
  EXPECT_EQ(desk.listed(), Names{}) << "locking the names closes the list";
  desk.load("Zeki Su");
  EXPECT_EQ(desk.main.Txtİsim.text(), "");
  EXPECT_FALSE(desk.main.mnusil.enabled());
}

// What was typed on the card of a hidden patient is asked about before the names are locked.
TEST_F(HiddenNames, AreNotLockedOverTypedText) {
  mark("Zeki Su", "¬");
  unlock();
  desk.load("Zeki Su");
  desk.main.txtnot.setText("yarım");
  desk.host.expect("Değişiklikler kaydedilsin mi?", host::Answer::Cancel);
  desk.main.tbToolBar.press("keyopen");
  EXPECT_TRUE(desk.main.tbToolBar.button("keyopen")->visible);
  EXPECT_EQ(desk.main.txtnot.text(), "yarım");
  desk.host.expect("Değişiklikler kaydedilsin mi?", host::Answer::Yes);
  desk.main.tbToolBar.press("keyopen");
  EXPECT_FALSE(desk.main.tbToolBar.button("keyopen")->visible);
  EXPECT_EQ(desk.main.txtnot.text(), "");
  EXPECT_EQ(desk.column("Zeki Su", "Notes"), "yarım");
}

// Another station's card does not carry the mark that was given meanwhile.
TEST_F(HiddenNames, StayHiddenWhenAnotherStationSavesTheCard) {
  CardDesk other(folder.path());
  desk.main.mnuyeni.Click();
  other.load("Zeki Su");
  mark("Zeki Su", "¬");
  other.main.txtnot.setText("not");
  other.main.mnukaydet.press();
  EXPECT_EQ(desk.column("Zeki Su", "Notes"), "not");
  EXPECT_EQ(hidden(), Names{"Zeki Su"});
  mark("Zeki Su", "");
  other.load("Ali Can");
  other.main.txtkey.setText("¬");
  other.main.mnukaydet.press();
  EXPECT_EQ(hidden(), Names{"Ali Can"}) << "a card that changes it does";
}

TEST_F(HiddenNames, AreSteppedOverAndATableOfThemAloneEndsBothWays) {
  struct Case {
    Names hidden;
    std::string last;
    std::string first;
  };
  const std::vector<Case> cases{{{}, "Zeki Su", "Ali Can"},
                                {{"Zeki Su", "Ali Can"}, "Ayşe Ay", "Ayşe Ak"},
                                {{"Ali Can", "Ayşe Ak", "Ayşe Ay", "Zeki Su"}, "", ""}};
  for (const Case& each : cases) {
    for (const std::string& name : each.hidden) mark(name, "¬");
    for (const bool back : {true, false}) {
      desk.main.mnuyeni.Click();
      forms::MenuItem& entry = back ? desk.main.mnugeri : desk.main.mnuileri;
      entry.press();
      EXPECT_EQ(desk.main.Txtİsim.text(), back ? each.last : each.first);
      entry.press();
      for (int i = 0; i < 4; ++i) entry.Click();
      EXPECT_EQ(desk.main.Txtİsim.text(), back ? each.first : each.last);
      EXPECT_FALSE(entry.enabled());
    }
  }
}

TEST_F(HiddenNames, AccountsOpenOnlyForTheirPasswordWhenItIsAskedFor) {
  desk.station.ayarYaz("account", "1234");
  // This version has no such screen and says so, which tells that it would be opened.
  const auto opens = [&](const char* asked, const char* typed) {
    desk.station.ayarYaz("accpas", asked);
    desk.host.modal["frmpass"] = [typed](forms::Form& form) {
      static_cast<forms::TextBox&>(*form.find("txtsifre")).setText(typed);
      static_cast<forms::CommandButton&>(*form.find("buttamam")).press();
    };
    desk.host.asked.clear();
    desk.main.mnuhesaplar.press();
    return desk.host.asked.back().text.find("Hesaplar") != std::string::npos;
  };
  for (const auto& [asked, typed, opened] :
       {std::tuple{"0", "", true}, std::tuple{"1", "1234", true}, std::tuple{"1", "4321", false}}) {
    desk.host.expect(opened ? "Hesaplar" : "Hatalı Şifre", host::Answer::Ok);
    EXPECT_EQ(opens(asked, typed), opened) << asked << typed;
    EXPECT_EQ(desk.station.SifreSonucu, 0);
  }
}

}  // namespace

#include <gtest/gtest.h>

#include "tests/registry/card_fixture.h"

namespace {

using support::Card;
using support::CardDesk;
using support::TemporaryFolder;
using Names = std::vector<std::string>;

using NameField = Card;

TEST_F(NameField, ListsPrefixesAfterThePauseInTableOrder) {
  for (const char* name :
       {"Işıl Su", "İsmail Er", "ismet Ay", "Isa Gül", "Ismail Kar", "Şule Ay", "Sema Ay"}) {
    desk.newPatient(name, "1980");
  }
  struct Case {
    const char* typed;
    Names turkish;
    Names english;
  };
  const Case cases[] = {
      {"is", {"İsmail Er", "ismet Ay"}, {"Isa Gül", "Ismail Kar", "ismet Ay"}},
      {"ıs", {"Isa Gül", "Ismail Kar"}, {"Isa Gül", "Ismail Kar", "ismet Ay"}},
      {"IŞ", {"Işıl Su"}, {"Işıl Su"}},
      {"ş", {"Şule Ay"}, {"Şule Ay"}},
      {"s", {"Sema Ay"}, {"Sema Ay"}},
      {"Ay", {}, {}},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.typed);
    main.mnuyeni.Click();
    main.Txtİsim.setText(c.typed);
    desk.tick();
    EXPECT_TRUE(desk.listed().empty()) << "nothing before a key";
    main.Txtİsim.KeyUp(forms::Key{.code = 'S'});
    desk.tick();
    EXPECT_EQ(desk.listed(), c.turkish);
    EXPECT_EQ(main.Lstdat.visible(), !c.turkish.empty());
    EXPECT_EQ(main.idk.caption(), "6");
    main.datlistele();
    desk.host.runTasks();
    EXPECT_EQ(desk.listed(), c.english);
  }
}

TEST_F(NameField, AsksForRoomForAllRowsAndClosesWhenEmptied) {
  for (int i = 0; i < 8; ++i)
    desk.newPatient("Ahmet " + std::string(1, static_cast<char>('A' + i)), "1980");
  main.mnuyeni.Click();
  main.Txtİsim.setText("ah");
  main.Txtİsim.KeyUp(forms::Key{.code = 'H'});
  desk.tick();
  EXPECT_EQ(main.Lstdat.count(), 8U);
  EXPECT_EQ(main.Lstdat.visibleRows(), 8);
  main.Txtİsim.setText("");
  main.Txtİsim.KeyUp(forms::Key{.code = forms::key_code::Backspace});
  EXPECT_FALSE(main.Lstdat.visible());
  EXPECT_EQ(main.Lstdat.count(), 0U);
}

TEST_F(NameField, NamesakesAreToldApartBehindTheirNames) {
  const auto patient = [&](const char* name, const char* birth, const char* file) {
    main.mnuyeni.Click();
    main.Txtİsim.setText(name);
    main.TxtDTarihi.setText(birth);
    main.txtdosyano.setText(file);
    main.kayityap();
  };
  patient("Ali Can", "12.03.1991", "2026/114");
  patient("Ali Can Demir", "1955", "7");
  patient("Ali Can*", "1960", "");
  patient("Ali Kaya", "1970", "8");
  patient("Ali Kaya*", "1971", "9");
  dao::Recordset& cards = desk.station.stores.personal.IDCard;
  ASSERT_TRUE(cards.Seek("=", "Ali Kaya*") && cards.Edit());
  ASSERT_TRUE(cards.Fields("Key").Set("¬") && cards.Update());
  main.mnuyeni.Click();
  main.Txtİsim.setText("ali");
  main.datlisteleTUR();
  desk.host.runTasks();
  std::vector<std::string> notes;
  for (std::size_t row = 0; row < main.Lstdat.count(); ++row)
    notes.push_back(main.Lstdat.items()[row].text + "|" + main.Lstdat.note(row));
  // A hidden namesake shows nothing, not even that there is one.
  EXPECT_EQ(notes, (std::vector<std::string>{"Ali Can|1991 · 2026/114", "Ali Can Demir|",
                                             "Ali Can*|1960", "Ali Kaya|"}));
  main.Lstdat.setListIndex(2);
  EXPECT_EQ(main.TxtEskiİsim.text(), "Ali Can*");
}

TEST_F(NameField, AKeyThatLeavesTheTextAsksForNoList) {
  desk.newPatient("Ayşe Yıldız", "1991");
  main.Txtİsim.KeyUp(forms::Key{.code = 17, .control = true});  // Ctrl comes up after Ctrl+S
  desk.tick();
  EXPECT_FALSE(main.Lstdat.visible());
  EXPECT_EQ(main.idk.caption(), "6");
}

TEST_F(NameField, AChoiceLoadsThePatient) {
  desk.newPatient("Ayşe Yıldız", "1991");
  desk.newPatient("Ayşe Yılmaz", "1992");
  main.mnuyeni.Click();
  main.Txtİsim.setText("ayşe");
  main.Txtİsim.KeyUp(forms::Key{.code = 'E'});
  desk.tick();
  main.Lstdat.setListIndex(1);
  EXPECT_EQ(main.Txtİsim.text(), "Ayşe Yılmaz");
  EXPECT_EQ(main.TxtDTarihi.text(), "1992");
  EXPECT_FALSE(main.Lstdat.visible());
  EXPECT_FALSE(main.mnukaydet.enabled());
}

TEST_F(NameField, AChoiceDoesNotLoseWhatWasTypedBesideTheName) {
  desk.newPatient("Ayşe Yıldız", "1991");
  desk.newPatient("Mehmet Ak", "1950");
  main.txtnot.setText("önemli");
  main.Txtİsim.setText("ay");
  main.Txtİsim.KeyUp(forms::Key{.code = 'Y'});
  desk.tick();
  desk.host.expect("Değişiklikler kaydedilsin mi?", host::Answer::Yes);
  main.Lstdat.setListIndex(0);
  EXPECT_EQ(main.Txtİsim.text(), "Ayşe Yıldız");
  EXPECT_EQ(desk.column("Mehmet Ak", "Notes"), "önemli");
  // A name alone, typed to find somebody, is no change.
  main.Txtİsim.setText("me");
  main.Txtİsim.KeyUp(forms::Key{.code = 'E'});
  desk.tick();
  main.Lstdat.setListIndex(0);
  EXPECT_EQ(main.Txtİsim.text(), "Mehmet Ak");
}

TEST_F(NameField, TakesTheCaseOfTheOnlyListedName) {
  desk.newPatient("Ayşe Yıldız", "1991");
  main.mnuyeni.Click();
  desk.host.expect("Ayşe Yıldız önceden girildi", host::Answer::No);
  desk.typeName("ayşe yıldız");
  EXPECT_EQ(main.Txtİsim.text(), "Ayşe Yıldız");
  EXPECT_EQ(main.TxtDTarihi.text(), "1991");
}

using Namesakes = Card;

TEST_F(Namesakes, GetOneMarkMoreEach) {
  desk.newPatient("Ali Can", "1980");
  desk.host.expect("Ali Can önceden girildi", host::Answer::Yes);
  desk.newPatient("Ali Can", "1990");
  desk.host.expect("Ali Can önceden girildi", host::Answer::Yes);
  desk.host.expect("Ali Can* önceden girildi", host::Answer::Yes);
  desk.newPatient("Ali Can", "2000");
  EXPECT_EQ(desk.stored(), (Names{"Ali Can", "Ali Can*", "Ali Can**"}));
  desk.host.expect("Ali Can önceden girildi", host::Answer::Yes);
  desk.host.expect("Ali Can* önceden girildi", host::Answer::No);
  main.mnuyeni.Click();
  desk.typeName("Ali Can");
  EXPECT_EQ(main.Txtİsim.text(), "Ali Can*");
  EXPECT_EQ(main.TxtDTarihi.text(), "1990");
}

TEST_F(Namesakes, AreAskedForEvenWhenTheKeyboardSaves) {
  desk.newPatient("Ali Can", "1980");
  main.mnuyeni.Click();
  main.TxtDTarihi.setText("1999");
  main.focusMoved(&main.Txtİsim);
  main.Txtİsim.setText("Ali Can");
  desk.host.expect("önceden girildi", host::Answer::Yes);
  main.mnukaydet.press();
  EXPECT_EQ(desk.column("Ali Can", "Year of Birth"), "1980");
  EXPECT_EQ(desk.column("Ali Can*", "Year of Birth"), "1999");
}

TEST_F(Namesakes, AreAskedForWhenTheFocusLeavesByATab) {
  desk.newPatient("Ali Can", "1980");
  main.mnuyeni.Click();
  main.TxtDTarihi.setText("1999");
  main.Txtİsim.setFocus();
  main.Txtİsim.setText("Ali Can");
  desk.host.expect("önceden girildi", host::Answer::Yes);
  main.TabStrip1.select("TSNot");
  EXPECT_EQ(main.Txtİsim.text(), "Ali Can*");
}

TEST_F(Namesakes, ThatAnotherStationStoredMeanwhileAreNotOverwritten) {
  CardDesk other(folder.path());
  main.mnuyeni.Click();
  desk.typeName("Ali Can");
  main.TxtDTarihi.setText("1999");
  other.newPatient("Ali Can", "1950");
  desk.host.expect("önceden girildi", host::Answer::Yes);
  main.mnukaydet.press();
  EXPECT_EQ(desk.column("Ali Can", "Year of Birth"), "1950");
  EXPECT_EQ(desk.column("Ali Can*", "Year of Birth"), "1999");
}

// By case, too, and whatever else the list shows. One that only a Turkish reader takes for the same
// name is asked about in its stored spelling.
TEST_F(Namesakes, InOtherLettersAreAskedFor) {
  desk.newPatient("Ali Can", "1980");
  desk.newPatient("Ali Canan", "1985");
  const std::pair<const char*, const char*> cases[] = {
      {"ali can", "ali can"},  // the store finds it as it is
      {"ALİ CAN", "Ali Can"},
      {"aLİ Can", "Ali Can"},
  };
  for (const auto& [typed, asked] : cases) {
    SCOPED_TRACE(typed);
    desk.host.expect(asked + std::string(" önceden girildi"), host::Answer::No);
    main.mnuyeni.Click();
    desk.typeName(typed);
    EXPECT_EQ(main.TxtDTarihi.text(), "1980");
  }
  main.mnuyeni.Click();
  main.TxtDTarihi.setText("1990");
  main.focusMoved(&main.Txtİsim);
  main.Txtİsim.setText("ALİ CAN");
  desk.host.expect("Ali Can önceden girildi", host::Answer::Yes);
  main.mnukaydet.press();  // no list was looked at
  EXPECT_EQ(desk.stored(), (Names{"Ali Can", "Ali Can*", "Ali Canan"}));
  // The letters of one's own name may be changed.
  desk.host.expect("Ali Can, ALİ CAN olarak değiştirilsin mi?", host::Answer::Yes);
  desk.load("Ali Can");
  desk.typeName("ALİ CAN");
  main.mnukaydet.press();
  EXPECT_EQ(desk.column("ALİ CAN", "Year of Birth"), "1980");
}

TEST_F(Namesakes, LoadedInsteadAskAboutTheCardOnTheScreen) {
  desk.newPatient("Ali Can", "1980");
  desk.newPatient("Veli Can", "1970");
  main.txtnot.setText("önemli");
  desk.host.expect("önceden girildi", host::Answer::No);
  desk.host.expect("Değişiklikler kaydedilsin mi?", host::Answer::Yes);
  desk.typeName("Ali Can");
  EXPECT_EQ(main.TxtDTarihi.text(), "1980");
  EXPECT_EQ(desk.column("Veli Can", "Notes"), "önemli");
}

// The name of the card itself, reached by typing, is looked for like any other.
TEST_F(NameField, ListsWhatFitsTheNameThatWasOnTheCard) {
  for (const char* name : {"Alev Su", "Ali", "Ali Can"}) desk.newPatient(name, "1980");
  desk.load("Ali");
  const auto typed = [&](const char* text) {
    main.Txtİsim.setText(text);
    main.Txtİsim.KeyUp(forms::Key{.code = 'I'});
    desk.tick();
    return desk.listed();
  };
  main.focusMoved(&main.Txtİsim);
  EXPECT_EQ(typed("Al"), (Names{"Alev Su", "Ali", "Ali Can"}));
  EXPECT_EQ(typed("Ali"), (Names{"Ali", "Ali Can"}));
}

TEST_F(NameField, AListOfAnotherTextDoesNotChangeTheName) {
  desk.newPatient("Ali Can", "1980");
  main.mnuyeni.Click();
  main.focusMoved(&main.Txtİsim);
  main.Txtİsim.setText("Ali C");
  main.Txtİsim.KeyUp(forms::Key{.code = 'C'});
  desk.tick();
  main.Txtİsim.setText("Ali Cem");  // typed before the next pause
  main.focusMoved(&main.TxtDTarihi);
  EXPECT_EQ(main.Txtİsim.text(), "Ali Cem");
  desk.tick();
  EXPECT_FALSE(main.Lstdat.visible());
}

TEST_F(Namesakes, OfANameThatFillsItsFieldFindRoomForTheMark) {
  std::string longName;
  for (int i = 0; i < 40; ++i) longName += "ğ";
  desk.newPatient(longName + "xyz", "1980");  // cut to the field
  EXPECT_EQ(desk.stored(), Names{longName});
  for (int i = 0; i < 2; ++i) {
    for (int marks = 0; marks <= i; ++marks) desk.host.expect("önceden girildi", host::Answer::Yes);
    desk.newPatient(longName, "1990");
  }
  EXPECT_EQ(desk.stored().size(), 3U);
}

TEST(Gynecology, PresetsTheSex) {
  const TemporaryFolder folder;
  CardDesk desk(folder.path(), "Gynecology");
  desk.main.mnuyeni.Click();
  desk.typeName("Zeynep Su");
  EXPECT_EQ(desk.main.ComCinsiyet.listIndex(), 0);
  desk.main.Yeni();
  desk.main.ComCinsiyet.setListIndex(1);
  desk.typeName("Ali Can");
  EXPECT_EQ(desk.main.ComCinsiyet.listIndex(), 1);
}

TEST_F(Card, HiddenPatientsDoNotShowWhileNamesAreLocked) {
  for (const char* name : {"Ayla Ak", "Ayten Bal", "Aysu Can"}) desk.newPatient(name, "1980");
  desk.load("Aysu Can");
  main.txtkey.setText("¬");
  main.mnukaydet.press();
  EXPECT_EQ(main.Txtİsim.text(), "");  // loaded all the same, but without its name
  const auto listAy = [&] {
    main.mnuyeni.Click();
    main.Txtİsim.setText("ay");
    main.Txtİsim.KeyUp(forms::Key{.code = 'Y'});
    desk.tick();
    return desk.listed();
  };
  EXPECT_EQ(listAy(), (Names{"Ayla Ak", "Ayten Bal"}));
  main.mnuyeni.Click();
  main.mnuileri.press();
  main.mnuileri.press();
  EXPECT_EQ(main.Txtİsim.text(), "Ayten Bal");
  desk.station.ayarYaz("namepass", "1234");
  desk.host.modal["frmpass"] = [](forms::Form& form) {
    dynamic_cast<forms::TextBox*>(form.find("txtsifre"))->setText("1234");
    dynamic_cast<forms::CommandButton*>(form.find("buttamam"))->press();
  };
  main.tbToolBar.press("keyclose");
  EXPECT_TRUE(main.tbToolBar.button("keyopen")->visible);
  EXPECT_EQ(listAy(), (Names{"Ayla Ak", "Aysu Can", "Ayten Bal"}));
  main.tbToolBar.press("keyopen");
  EXPECT_EQ(listAy(), (Names{"Ayla Ak", "Ayten Bal"}));
}

}  // namespace

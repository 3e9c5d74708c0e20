#include <gtest/gtest.h>

#include "tests/registry/card_fixture.h"

namespace {

using BirthField = support::Card;

TEST_F(BirthField, StoresADateOrAYear) {
  struct Case {
    const char* name;
    const char* typed;
    const char* date;
    const char* year;
    const char* shown;
  };
  const Case cases[] = {
      {"Ali", "12.03.1991", "1991-03-12", "", "12.03.1991"},
      {"Veli", "1957", "", "1957", "1957"},
      {"Ayla", "1/2/99", "1999-02-01", "", "01.02.1999"},
      {"Can", "29.02.2024", "2024-02-29", "", "29.02.2024"},
      {"Ece", "31121975", "1975-12-31", "", "31.12.1975"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.typed);
    desk.newPatient(c.name, c.typed);
    EXPECT_EQ(desk.column(c.name, "Date of Birth"), c.date);
    EXPECT_EQ(desk.column(c.name, "Year of Birth"), c.year);
    desk.load(c.name);
    EXPECT_EQ(main.TxtDTarihi.text(), c.shown);
  }
  desk.load("Ali");
  main.TxtDTarihi.setText("1990");  // a year replaces the date
  main.mnukaydet.press();
  EXPECT_EQ(desk.column("Ali", "Date of Birth"), "");
  EXPECT_EQ(desk.column("Ali", "Year of Birth"), "1990");
}

TEST_F(BirthField, ShowsTheAgeOrOffersToTypeIt) {
  struct Case {
    const char* typed;
    const char* label;
    bool askAge;
  };
  const Case cases[] = {{"1990", "Yaşı :  36", false},
                        {"22.11.1996", "Yaşı :  30", false},
                        {"22.10.2024", "Yaşı :  2 Yaş 1 ay", false},
                        {"yok", "Yaşı", true},
                        {"", "", true},
                        {"31.31.1990", "Yaşı", true}};
  for (const Case& c : cases) {
    SCOPED_TRACE(c.typed);
    main.Yeni();
    main.TxtDTarihi.setText(c.typed);
    main.focusMoved(&main.TxtDTarihi);
    main.focusMoved(&main.ComCinsiyet);
    EXPECT_EQ(main.txtyaşı.caption(), c.label);
    EXPECT_EQ(main.Txtyaş.visible(), c.askAge);
    if (c.askAge) {
      EXPECT_EQ(main.activeControl(), &main.Txtyaş);
    }
  }
}

TEST_F(BirthField, GivesItsAgeBoxUpOnceADateIsThereAndPullsNobodyBack) {
  main.Yeni();
  main.TxtDTarihi.setText("31.04.1980");
  main.focusMoved(&main.TxtDTarihi);
  main.focusMoved(&main.TxtAnaAdı);
  EXPECT_TRUE(main.Txtyaş.visible());
  EXPECT_EQ(main.activeControl(), &main.TxtAnaAdı);
  main.focusMoved(&main.TxtDTarihi);
  main.TxtDTarihi.setText("1.4.80");
  main.focusMoved(&main.ComCinsiyet);
  EXPECT_EQ(main.TxtDTarihi.text(), "01.04.1980");
  EXPECT_FALSE(main.Txtyaş.visible());
  EXPECT_EQ(main.activeControl(), &main.ComCinsiyet);
}

TEST_F(BirthField, TakesTheYearFromATypedAge) {
  main.mnuyeni.Click();
  char32_t typed = U'-';
  main.Txtyaş.KeyPress(typed);
  EXPECT_EQ(typed, U'1');
  main.Txtyaş.setText("40");
  main.focusMoved(&main.Txtyaş);
  main.focusMoved(&main.ComCinsiyet);
  EXPECT_EQ(main.TxtDTarihi.text(), "1986");
  EXPECT_EQ(main.txtyaşı.caption(), "Yaşı :  40");
  EXPECT_FALSE(main.Txtyaş.visible());
}

TEST_F(BirthField, ThatNewWasPressedInAsksNoAge) {
  struct Case {
    const char* typed;
    const char* question;
    host::Answer answer;
  };
  const Case cases[] = {{"1980", nullptr, {}},
                        {"yok", "Sürdürülsün mü?", host::Answer::Yes},
                        {"1.1.2030", "Değişiklikler kaydedilsin mi?", host::Answer::No}};
  desk.newPatient("Ali Can", "1980");
  for (const Case& c : cases) {
    SCOPED_TRACE(c.typed);
    desk.load("Ali Can");
    main.TxtDTarihi.setFocus();
    main.TxtDTarihi.setText(c.typed);
    if (c.question != nullptr) desk.host.expect(c.question, c.answer);
    main.mnuyeni.press();
    EXPECT_EQ(main.activeControl(), &main.Txtİsim);
    EXPECT_FALSE(main.Txtyaş.visible());
    EXPECT_EQ(main.Txtİsim.text(), "");
  }
}

TEST_F(BirthField, OfTheFutureIsSentBack) {
  for (const char* typed : {"2027", "23.11.2026", "01.01.2030"}) {
    SCOPED_TRACE(typed);
    main.TxtDTarihi.setText(typed);
    desk.host.expect("Hatalı tarih bilgisi girildi.", host::Answer::Ok);
    EXPECT_FALSE(main.hatalitarih());
    EXPECT_EQ(main.activeControl(), &main.TxtDTarihi);
    EXPECT_EQ(desk.host.asked.back().icon, host::Icon::Information);
  }
  for (const char* typed : {"2026", "22.11.2026", "22.11.2026 23:00", "", "abc"}) {
    main.TxtDTarihi.setText(typed);
    EXPECT_TRUE(main.hatalitarih()) << typed;
  }
}

// Whichever way the card goes into the store, and with the cursor still in the field.
TEST_F(BirthField, OfTheFutureIsNeverStored) {
  constexpr auto wrong = "Hatalı tarih bilgisi girildi.";
  constexpr auto save = "Değişiklikler kaydedilsin mi?";
  struct Case {
    const char* typed;
    const char* question;  // before it, where there is one
    std::function<void()> way;
  };
  const Case cases[] = {{"1.1.2030", nullptr, [&] { main.mnukaydet.press(); }},
                        {"5.12", nullptr, [&] { main.mnukaydet.press(); }},
                        {"01012030", nullptr, [&] { main.mnugeri.press(); }},
                        {"1.1.2030", nullptr, [&] { main.mnuileri.press(); }},
                        {"1.1.2030", save, [&] { main.mnuyeni.press(); }},
                        {"1.1.2030", save, [&] { main.hastaSec("Zeki Su"); }},
                        {"1.1.2030", save, [&] { main.mnucik.press(); }},
                        {"1.1.2030", nullptr, [&] { main.mnumuayene1.press(); }}};
  desk.screens.add("FrmExam", [](shell::Station&) -> std::unique_ptr<forms::Form> {
    ADD_FAILURE() << "opened";
    return nullptr;
  });
  desk.newPatient("Zeki Su", "1970");
  desk.newPatient("Ali Can", "1980");
  main.TxtDTarihi.setFocus();
  for (const Case& c : cases) {
    SCOPED_TRACE(c.typed);
    main.TxtDTarihi.setText(c.typed);
    if (c.question != nullptr) desk.host.expect(c.question, host::Answer::Yes);
    desk.host.expect(wrong, host::Answer::Ok);
    c.way();
    EXPECT_EQ(desk.column("Ali Can", "Year of Birth"), "1980");
    EXPECT_EQ(main.TxtDTarihi.text(), c.typed);
    EXPECT_EQ(main.activeControl(), &main.TxtDTarihi);
  }
}

TEST_F(BirthField, TakesAnAgeThatCtrlSWasPressedIn) {
  main.mnuyeni.Click();
  desk.typeName("Ali Can");
  main.focusMoved(&main.ComCinsiyet);
  ASSERT_EQ(main.activeControl(), &main.Txtyaş);
  main.Txtyaş.setText("40");
  main.mnukaydet.Refused();
  EXPECT_EQ(desk.column("Ali Can", "Year of Birth"), "1986");
}

}  // namespace

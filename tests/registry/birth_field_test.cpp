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
    main.mnuyeni.Click();
    main.TxtDTarihi.setText(c.typed);
    main.focusMoved(&main.TxtDTarihi);
    main.focusMoved(&main.ComCinsiyet);
    EXPECT_EQ(main.txtyaşı.caption(), c.label);
    EXPECT_EQ(main.Txtyaş.visible(), c.askAge);
  }
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

TEST_F(BirthField, OfTheFutureIsSentBack) {
  for (const char* typed : {"2027", "23.11.2026", "01.01.2030"}) {
    SCOPED_TRACE(typed);
    main.TxtDTarihi.setText(typed);
    desk.host.expect("Hatalı tarih bilgisi girildi.", host::Answer::Ok);
    EXPECT_FALSE(main.hatalitarih());
    EXPECT_EQ(main.activeControl(), &main.TxtDTarihi);
    EXPECT_EQ(desk.host.asked.back().icon, host::Icon::Information);
  }
  for (const char* typed : {"2026", "22.11.2026", "", "abc"}) {
    main.TxtDTarihi.setText(typed);
    EXPECT_TRUE(main.hatalitarih()) << typed;
  }
}

}  // namespace

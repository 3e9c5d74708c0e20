#include "registry/frm_birthday.h"

#include <gtest/gtest.h>

#include "tests/registry/card_fixture.h"

namespace {

struct Birthdays : support::Card {
  std::vector<std::string> remind(const char* daysAhead) {
    desk.station.ayarYaz("remday", daysAhead);
    std::vector<std::string> names;
    desk.host.modal["Frmbirthday"] = [&](forms::Form& form) {
      const forms::ListView& list = dynamic_cast<registry::FrmBirthday&>(form).Lvisim;
      for (std::size_t row = 0; row < list.rowCount(); ++row) names.emplace_back(list.cell(row, 0));
    };
    registry::dogumGunuHatirlat(desk.station);
    return names;
  }
};

TEST_F(Birthdays, AreRemindedOfByMonthAndDay) {
  desk.newPatient("Bugün", "22.11.1980");
  desk.newPatient("Yarın", "23.11.2001");
  desk.newPatient("Artık", "29.02.2000");
  desk.newPatient("Yalnız Yıl", "1980");
  desk.newPatient("Gizli", "22.11.1985");
  desk.load("Gizli");
  main.txtkey.setText("¬");
  main.mnukaydet.press();
  EXPECT_TRUE(remind("0").empty());
  EXPECT_TRUE(desk.host.shown.empty()) << "the reminder is off";
  desk.station.ayarYaz("BDrem", "1");
  EXPECT_EQ(remind("0"), std::vector<std::string>{"Bugün"});
  EXPECT_EQ(remind("1"), std::vector<std::string>{"Yarın"});
  desk.clock.time = text::DateTime::of(2027, 2, 28);
  desk.host.shown.clear();
  EXPECT_TRUE(remind("1").empty());
  EXPECT_TRUE(desk.host.shown.empty()) << "an empty list does not show";
  desk.clock.time = text::DateTime::of(2028, 2, 24);
  EXPECT_EQ(remind("5"), std::vector<std::string>{"Artık"});
  desk.clock.time = text::DateTime::of(2030, 11, 22);
  EXPECT_EQ(remind("no number"), std::vector<std::string>{"Bugün"});
  desk.newPatient("Ocak", "02.01.1990");
  desk.clock.time = text::DateTime::of(2026, 12, 30);
  EXPECT_EQ(remind("3"), std::vector<std::string>{"Ocak"});
}

}  // namespace

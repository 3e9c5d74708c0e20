#include "shell/frm_pass.h"

#include <gtest/gtest.h>

#include "tests/support/practice.h"

namespace {

// Types the entries into the dialog one after the other, each with OK.
void enter(support::Desk& desk, std::vector<std::string> entries) {
  desk.host.modal["frmpass"] = [entries](forms::Form& form) {
    auto& dialog = dynamic_cast<shell::FrmPass&>(form);
    for (const std::string& entry : entries) {
      dialog.txtsifre.setText(entry);
      dialog.buttamam.press();
    }
  };
}

TEST(Password, FirstEntryIsTypedTwice) {
  const support::TemporaryFolder folder;
  support::Desk desk(folder.path());
  enter(desk, {"gizli", "gizli"});
  desk.host.expect("Şifrenizi yeniden giriniz.", host::Answer::Ok);
  EXPECT_TRUE(sifreSor(desk.station, shell::password::names));
  EXPECT_EQ(desk.station.ayar("namepass"), "gizli");
}

TEST(Password, ADifferentSecondEntryKeepsNone) {
  const support::TemporaryFolder folder;
  support::Desk desk(folder.path());
  enter(desk, {"gizli", "gizlice"});
  desk.host.expect("Şifrenizi yeniden giriniz.", host::Answer::Ok);
  desk.host.expect("Hatalı Şifre", host::Answer::Ok);
  EXPECT_FALSE(sifreSor(desk.station, shell::password::names));
  EXPECT_EQ(desk.station.ayar("namepass"), "");
  EXPECT_EQ(desk.host.asked.back().icon, host::Icon::Critical);
}

TEST(Password, HasOneTryAndAnEmptyEntryIsNone) {
  const support::TemporaryFolder folder;
  support::Desk desk(folder.path());
  desk.station.ayarYaz("account", "1234");
  enter(desk, {""});
  EXPECT_FALSE(sifreSor(desk.station, shell::password::accounts));
  enter(desk, {"4321"});
  desk.host.expect("Hatalı Şifre", host::Answer::Ok);
  EXPECT_FALSE(sifreSor(desk.station, shell::password::accounts));
  enter(desk, {"1234"});
  EXPECT_TRUE(sifreSor(desk.station, shell::password::accounts));
}

TEST(Password, IsChangedOnlyByWhoKnowsTheOldOne) {
  const support::TemporaryFolder folder;
  support::Desk desk(folder.path());
  desk.station.ayarYaz("openpass", "eski");
  desk.host.inputs = {"yanlış", "eski"};
  desk.host.modal["frmpass"] = [](forms::Form& form) {
    auto& dialog = dynamic_cast<shell::FrmPass&>(form);
    EXPECT_TRUE(dialog.ButŞifreDeğiştir.enabled());
    dialog.ButŞifreDeğiştir.press();
    dialog.ButŞifreDeğiştir.press();
    for (int i = 0; i < 2; ++i) {
      dialog.txtsifre.setText("yeni");
      dialog.buttamam.press();
    }
  };
  desk.host.expect("Hatalı Şifre", host::Answer::Ok);
  desk.host.expect("Şifrenizi yeniden giriniz.", host::Answer::Ok);
  EXPECT_TRUE(sifreSor(desk.station, shell::password::opening));
  EXPECT_EQ(desk.station.ayar("openpass"), "yeni");
}

}  // namespace

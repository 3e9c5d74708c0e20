#include "shell/frm_option.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>

#include "registry/frm_main.h"
#include "shell/letterhead.h"
#include "stores/value_list.h"
#include "tests/support/practice.h"

namespace {

struct Options : testing::Test {
  Options() {
    main.Load();
    options.Load();
  }
  support::TemporaryFolder folder;
  support::Desk desk{folder.path(), "IntMed"};
  registry::FrmMain main{desk.station};
  shell::FrmOption options{desk.station};
};

TEST_F(Options, SettingsAreStoredAsTheyStand) {
  options.txtbtime.setText("08:30");
  options.txtintapp.setText("");
  options.dghatirlat.setValue(true);
  options.Comgönce.setText("15");
  options.optkısıtlıaç.setValue(true);
  options.chsigarabrakma.setValue(true);
  options.AyarKaydet();
  EXPECT_EQ(desk.station.ayar("btime", "?"), "08:30");
  EXPECT_EQ(desk.station.ayar("intapp", "?"), "");
  EXPECT_EQ(desk.station.ayar("BDrem"), "1");
  EXPECT_EQ(desk.station.ayar("remday"), "15");
  EXPECT_EQ(desk.station.ayar("nopen"), "False");
  EXPECT_TRUE(main.mnusigarabp.visible());  // internal medicine alone offers the smoking clinic
  shell::FrmOption again(desk.station);
  again.Load();
  EXPECT_EQ(again.txtbtime.text(), "08:30");
  EXPECT_TRUE(again.dghatirlat.value());
  EXPECT_TRUE(again.optkısıtlıaç.value());
}

TEST_F(Options, TheLanguageSwitchReachesTheMainWindowAtOnce) {
  EXPECT_EQ(main.mnukaydet.caption(), "&Kaydet");
  options.OptGB.setValue(true);
  options.AyarKaydet();
  EXPECT_EQ(desk.station.ayar("Language"), "eng");
  EXPECT_EQ(main.mnukaydet.caption(), "&Save");
  EXPECT_EQ(main.caption(), "Internal Medicine");
  EXPECT_EQ(options.caption(), "Options");
  EXPECT_EQ(main.ComCinsiyet.items().front(), "F");
  EXPECT_FALSE(main.mnukaydet.enabled());
}

TEST_F(Options, AListIsEditedInItsTable) {
  desk.host.inputs = {"Hemşire", "Başhemşire"};
  options.ComMeslek.GotFocus();
  options.mnuekle.press();
  EXPECT_EQ(options.ComMeslek.text(), "Hemşire");
  options.mnudüzen.press();
  EXPECT_EQ(stores::values(desk.station.stores.personal, "Profession"),
            std::vector<std::string>{"Başhemşire"});
  options.ListKaydet();
  EXPECT_EQ(main.ComMeslek.items(), std::vector<std::string>{"Başhemşire"});
  desk.host.expect("Başhemşire", host::Answer::No);
  options.mnusil.press();
  EXPECT_EQ(options.ComMeslek.items().size(), 1U);
  desk.host.expect("Başhemşire", host::Answer::Yes);
  options.mnusil.press();
  EXPECT_TRUE(stores::values(desk.station.stores.personal, "Profession").empty());
  EXPECT_FALSE(options.mnusil.enabled());
}

TEST_F(Options, AValueThatIsTooLongIsRefusedWithAMessage) {
  desk.host.inputs = {std::string(41, 'x')};
  options.comdogumyeri.GotFocus();
  options.mnuekle.press();
  ASSERT_EQ(desk.host.errors.size(), 1U);
  EXPECT_NE(desk.host.errors.front().text().find("saklanamadı"), std::string::npos);
  EXPECT_TRUE(stores::values(desk.station.stores.personal, "Place Of Birth").empty());
}

TEST_F(Options, TheLetterheadIsKeptAsRichText) {
  options.rtfText.edit([](richtext::Editor& e) { e.insert("Dr. Şükrü Işık"); });
  options.rtfText.select(4, 5);
  options.tbToolBar.press("Bold");
  options.tbToolBar.press("Center");
  options.BaşlıkKaydet();
  shell::FrmOption again(desk.station);
  again.Load();
  EXPECT_EQ(again.rtfText.editor().text(), "Dr. Şükrü Işık");
  EXPECT_TRUE(again.rtfText.editor().document().formatAt(5).bold);
  EXPECT_FALSE(again.rtfText.editor().document().formatAt(0).bold);
  // A change is given up by the button alone.
  EXPECT_TRUE(again.QueryUnload());
  again.rtfText.edit([](richtext::Editor& e) { e.insert("Prof. "); });
  desk.host.expect("kaybolacak", host::Answer::No);
  EXPECT_FALSE(again.QueryUnload());
  again.Butİptal.press();
  EXPECT_EQ(desk.host.closed.back(), "FrmOption");
}

TEST_F(Options, AHostileLetterheadSaysSoAndIsLeftAlone) {
  const std::string bytes = "{\\rtf1" + std::string(100000, '{');
  std::ofstream(folder / "Data/Baslik.rtf") << bytes;
  shell::FrmOption again(desk.station);
  again.Load();
  EXPECT_EQ(desk.host.errors.size(), 1U);
  again.BaşlıkKaydet();
  std::ifstream file(folder / "Data/Baslik.rtf");
  EXPECT_EQ(std::string(std::istreambuf_iterator<char>(file), {}), bytes);
}

// A page's head never keeps the program busy.
TEST_F(Options, ALetterheadOfManyPiecesIsRefused) {
  std::string bytes = "{\\rtf1";
  for (int i = 0; i < 100'000; ++i) bytes += "\\b a\\b0 b";
  std::ofstream(folder / "Data/Baslik.rtf") << bytes;
  shell::baslikOkunurMu(desk.station);
  ASSERT_EQ(desk.host.errors.size(), 1U);
  EXPECT_EQ(desk.host.errors[0].fault(), platform::Fault::Damaged);
}

TEST_F(Options, ALetterheadThatCouldNotBeReadIsNotReplacedUnasked) {
  std::ofstream(folder / "Data/Baslik.rtf") << "{\\rtf1 Dr. Yıldız}";
  std::filesystem::resize_file(folder / "Data/Baslik.rtf", 100 << 20);
  shell::FrmOption again(desk.station);
  again.Load();
  ASSERT_EQ(desk.host.errors.size(), 1U);
  EXPECT_EQ(desk.host.errors[0].fault(), platform::Fault::TooLarge);
  again.rtfText.edit([](richtext::Editor& e) { e.insert("Prof. "); });
  desk.host.expect("kaybolur", host::Answer::No);
  again.buttamam.press();
  EXPECT_EQ(std::filesystem::file_size(folder / "Data/Baslik.rtf"), 100U << 20);
  EXPECT_TRUE(desk.host.closed.empty()) << "what was typed is still there";
  desk.host.expect("kaybolur", host::Answer::Yes);
  again.buttamam.press();
  EXPECT_LT(std::filesystem::file_size(folder / "Data/Baslik.rtf"), 1000U);
  EXPECT_EQ(desk.host.closed, std::vector<std::string>{"FrmOption"});
}

TEST_F(Options, AChosenPictureBecomesTheLetterheadsOwnCopy) {
  std::ofstream(folder / "logo.bmp") << "BM";
  desk.host.files = {folder / "logo.bmp"};
  options.butresimseç.press();
  options.BaşlıkKaydet();
  EXPECT_TRUE(std::filesystem::exists(folder / "Data/Baslik.bmp"));
  EXPECT_TRUE(desk.host.errors.empty());
}

TEST_F(Options, AnOpeningPasswordIsSetByTickingItsBox) {
  bool eaten = false;
  desk.host.modal["frmpass"] = [](forms::Form&) {};  // closed without an entry
  options.acilistasifresor.MouseDown(eaten);
  EXPECT_TRUE(eaten);
  EXPECT_FALSE(options.acilistasifresor.value());
  desk.host.modal["frmpass"] = [](forms::Form& form) {
    for (int entry = 0; entry < 2; ++entry) {
      dynamic_cast<forms::TextBox*>(form.find("txtsifre"))->setText("1234");
      dynamic_cast<forms::CommandButton*>(form.find("buttamam"))->press();
    }
  };
  desk.host.expect("Şifrenizi yeniden giriniz.", host::Answer::Ok);
  options.acilistasifresor.MouseDown(eaten);
  EXPECT_TRUE(options.acilistasifresor.value());
  EXPECT_EQ(desk.station.ayar("openpass"), "1234");
}

}  // namespace

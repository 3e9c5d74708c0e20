#include <fcntl.h>
#include <gtest/gtest.h>

#include <fstream>

#include "app/program_folder.h"
#include "app/start_up.h"
#include "platform/files/descriptor.h"
#include "shell/frm_option.h"
#include "shell/frm_pass.h"
#include "tests/registry/card_fixture.h"

namespace {

using support::CardDesk;
using support::TemporaryFolder;

TEST(Stations, SeeEachOthersPatientsAtOnce) {
  const TemporaryFolder folder;
  CardDesk one(folder.path());
  CardDesk two(folder.path(), "Surgery", "eng");
  one.newPatient("Ayşe Yıldız", "1991");
  two.main.Txtİsim.setText("Ayş");
  two.main.Txtİsim.KeyUp(forms::Key{.code = 'S'});
  two.tick();
  EXPECT_EQ(two.listed(), std::vector<std::string>{"Ayşe Yıldız"});
  one.main.mnuyeni.Click();
  two.load("Ayşe Yıldız");
  two.main.txtnot.setText("from two");
  two.main.mnukaydet.press();
  two.main.mnuyeni.Click();
  one.load("Ayşe Yıldız");
  EXPECT_EQ(one.main.txtnot.text(), "from two");
}

TEST(Stations, OfOneUserSeeEachOthersSettings) {
  const TemporaryFolder folder;
  CardDesk one(folder.path());
  CardDesk two(folder.path());
  for (CardDesk* desk : {&one, &two})
    desk->settings = settings::Settings(settings::openBackend(folder / "user/settings"));
  one.station.ayarYaz("dexam", "1");
  EXPECT_FALSE(two.station.acik("dexam"));
  for (int i = 0; i < 20; ++i) two.main.Timer1.Tick();
  EXPECT_TRUE(two.station.acik("dexam"));
}

// One of them has no place in the register.
TEST(Stations, ACardDeletedByAnotherIsStoredAnewWhenItIsSaved) {
  const TemporaryFolder folder;
  CardDesk one(folder.path());
  CardDesk two(folder.path());
  two.station.sicil.close();
  one.newPatient("Ayşe Yıldız", "1991");
  two.load("Ayşe Yıldız");
  one.host.expect("Ayşe Yıldız", host::Answer::Yes);
  one.main.mnusil.press();
  two.main.txtnot.setText("typed meanwhile");
  two.main.mnukaydet.press();
  EXPECT_EQ(one.column("Ayşe Yıldız", "Notes"), "typed meanwhile");
}

TEST(Stations, OpenTheRecordsThatWereLockedWhenTheyStarted) {
  const TemporaryFolder folder;
  CardDesk desk(folder.path());
  desk.newPatient("Ayşe Yıldız", "1991");
  stores::CloseStores(desk.station.stores);
  const auto soonTried = [&] {
    for (int i = 0; i < 200; ++i) desk.main.Timer1.Tick();
    return desk.station.stores.personal.database.isOpen();
  };
  {
    const std::filesystem::path store = folder / "Data/Personal.mdb";
    const auto file = files::Descriptor::openFile(store, O_RDWR).value();
    struct flock whole = {};
    whole.l_type = F_WRLCK;
    ASSERT_EQ(::fcntl(file.number(), F_OFD_SETLK, &whole), 0);
    EXPECT_FALSE(soonTried());
    EXPECT_TRUE(desk.station.stores.clinical.database.isOpen());
  }
  EXPECT_TRUE(soonTried());
  EXPECT_TRUE(desk.main.mnugeri.enabled());
}

struct StartUp : testing::Test {
  StartUp() { desk.station.ayarYaz("oppas", "1"); }
  TemporaryFolder folder;
  support::Desk desk{folder.path(), "Polyclinic"};
};

TEST_F(StartUp, ShowsSplashThenMainWindowWithGeneralMedicineChosen) {
  desk.station.ayarYaz("oppas", "0");
  app::Session session(desk.station);
  EXPECT_EQ(session.start(), app::Session::Outcome::Shown);
  EXPECT_EQ(desk.host.shown, (std::vector<std::string>{"Logo", "FrmMain"}));
  EXPECT_EQ(desk.host.closed, std::vector<std::string>{"Logo"});
  EXPECT_TRUE(session.main().BGenel.value());
  EXPECT_EQ(desk.station.BransNo, 20);
  EXPECT_EQ(desk.station.BransKodu, 285);
  EXPECT_TRUE(std::filesystem::is_directory(folder / "Documents/Diseases"));
  EXPECT_TRUE(std::filesystem::exists(folder / "Data/setting.dat"));
  EXPECT_EQ(desk.settings.get("Sanavel", "Polyclinic", "Path"), desk.station.UygYolu);
  EXPECT_FALSE(session.main().mnugeri.enabled());
}

TEST_F(StartUp, StaysClosedWithoutThePasswordWhenToldSo) {
  desk.station.ayarYaz("openpass", "1234");
  desk.station.ayarYaz("nopen", "True");
  desk.host.modal["frmpass"] = [](forms::Form&) {};
  app::Session session(desk.station);
  EXPECT_EQ(session.start(), app::Session::Outcome::Refused);
  EXPECT_EQ(desk.host.shown, (std::vector<std::string>{"Logo", "frmpass"}));
}

TEST_F(StartUp, OpensRestrictedOtherwise) {
  desk.station.ayarYaz("openpass", "1234");
  desk.host.modal["frmpass"] = [](forms::Form& form) {
    EXPECT_FALSE(form.find("ButŞifreDeğiştir")->visible());
  };
  app::Session session(desk.station);
  EXPECT_EQ(session.start(), app::Session::Outcome::Shown);
  EXPECT_FALSE(session.main().MnuSecenek.visible());
  EXPECT_FALSE(session.main().tbToolBar.button("muayene")->visible);
}

// The file of the settings goes while the program is closed; the folder keeps what was in it.
struct LostSettings : testing::Test {
  LostSettings() {
    read(desk);
    for (const auto& [key, value] :
         {std::pair{"oppas", "1"}, std::pair{"openpass", "1234"}, std::pair{"accpas", "1"},
          std::pair{"account", "1234"}, std::pair{"namepass", "1234"}, std::pair{"nopen", "True"}})
      desk.station.ayarYaz(key, value);
  }
  void read(support::Desk& each) const {
    each.settings = settings::Settings(settings::openBackend(file, shell::guardedSettings()));
    each.settings.refresh().ignore();
  }
  app::Session::Outcome startAgain() {
    read(desk);
    return app::Session(desk.station).start();
  }
  TemporaryFolder folder;
  std::string file = folder / "user/settings";
  support::Desk desk{folder.path()};
};

TEST_F(LostSettings, LeaveTheProgramClosedAndSayHowToGetIn) {
  for (const bool damaged : {false, true}) {
    std::filesystem::remove(file);
    if (damaged) std::ofstream(file) << std::string(3000, '\0');
    desk.host.expect(file + ".protected", host::Answer::Ok);
    EXPECT_EQ(startAgain(), app::Session::Outcome::Refused);
  }
  std::filesystem::remove(file + ".protected");
  EXPECT_EQ(startAgain(), app::Session::Outcome::Shown);
}

// The line alone: whoever knows the password is asked for it as ever.
TEST_F(LostSettings, DoNotTurnTheQuestionOff) {
  std::ofstream(file) << "settings 1\nSanavel\tMain\topenpass\t1234\nend\n";
  desk.host.modal["frmpass"] = [](forms::Form& form) {
    auto& dialog = dynamic_cast<shell::FrmPass&>(form);
    dialog.txtsifre.setText("1234");
    dialog.buttamam.press();
  };
  EXPECT_EQ(startAgain(), app::Session::Outcome::Shown);
  EXPECT_EQ(desk.station.ayar("oppas"), "1");
}

TEST_F(LostSettings, KeepAccountsAndHiddenNamesClosedInARunningProgram) {
  support::CardDesk card(folder.path());
  read(card);
  std::filesystem::remove(file);
  for (int i = 0; i < 20; ++i) card.main.Timer1.Tick();
  for (forms::MenuItem* entry : {&card.main.mnuhesaplar, &card.main.mnuShowHidden}) {
    card.host.expect(file + ".protected", host::Answer::Ok);
    entry->press();
  }
  EXPECT_TRUE(card.host.shown.empty());
  shell::FrmOption options(card.station);
  options.Load();
  options.AyarKaydet();
  EXPECT_EQ(card.station.ayar("oppas") + card.station.ayar("accpas"), "11");
  EXPECT_EQ(card.station.ayar("nopen"), "True");
}

TEST(ProgramFolder, IsTheNamedOneThenTheProgramsOwnThenTheUsers) {
  const TemporaryFolder folder;
  std::filesystem::create_directories(folder / "program/Data");
  const std::string program = folder / "program/Surgery";
  EXPECT_EQ(app::programFolder({program, "/named", "/env", "/user"}), "/named");
  EXPECT_EQ(app::programFolder({program, "", "/env", "/user"}), "/env");
  EXPECT_EQ(app::programFolder({program, "", "", "/user"}), folder / "program");
  EXPECT_EQ(app::programFolder({"/proc/nowhere/Surgery", "", "", "/user"}), "/user/Sanavel");
}

}  // namespace

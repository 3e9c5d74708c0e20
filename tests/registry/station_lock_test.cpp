// Cards of several stations: one patient is on one of them; crashes are noticed; maintenance wants
// to be alone.
#include <gtest/gtest.h>

#include "app/start_up.h"
#include "shell/patient_lock.h"
#include "stores/smoking_store.h"
#include "tests/registry/card_fixture.h"
#include "tests/stores/stores_fixture.h"

namespace {

using host::Answer;
using support::CardDesk;

constexpr auto busy = "Halen ağ üzerinde işlem görmektedir.";
constexpr auto crashed = "Önceki oturumdan hatalı çıkıldı.";

struct TwoCards : testing::Test {
  support::TemporaryFolder folder{stores::inMemory()};
  CardDesk one{folder.path()};
  CardDesk two{folder.path()};
};

TEST_F(TwoCards, ShowOnePatientOnlyOnce) {
  one.newPatient("Ayşe Yıldız", "1991");
  two.newPatient("Ali Can", "1980");
  EXPECT_EQ(one.main.Netsıra.caption(), "1");
  EXPECT_EQ(two.main.sbDurum.panels()[3], "istasyon 2");
  for (const char* typed : {"Ayşe Yıldız", "ayşe yıldız"}) {
    two.host.expect(std::string(typed) + " " + busy, Answer::Ok);
    two.load(typed);
    EXPECT_EQ(two.main.Txtİsim.text(), "Ali Can");
    EXPECT_EQ(two.station.SeciliHasta, "Ali Can");
  }
  EXPECT_TRUE(two.host.asked.back().text.ends_with("\n(istasyon 1)"));
  EXPECT_EQ(two.host.asked.back().icon, host::Icon::Information);
  EXPECT_EQ(two.host.asked.back().buttons, host::Buttons::Ok);
  one.main.mnuyeni.Click();
  two.load("Ayşe Yıldız");
  EXPECT_EQ(two.main.Txtİsim.text(), "Ayşe Yıldız");
  one.load("Ali Can");
  EXPECT_EQ(one.main.Txtİsim.text(), "Ali Can") << "the card that was left is free";
}

TEST_F(TwoCards, HoldARenamedPatientUnderTheNewName) {
  one.newPatient("Ayşe Yıldız", "1991");
  one.main.Txtİsim.setText("Ayşe Su");
  one.host.expect("Ayşe Yıldız, Ayşe Su", Answer::Yes);
  one.main.mnukaydet.press();
  two.host.expect(busy, Answer::Ok);
  two.load("Ayşe Su");
  one.host.expect("Ayşe Su", Answer::Yes);
  one.main.mnusil.press();
  two.newPatient("Ayşe Su", "1950");
  EXPECT_EQ(two.column("Ayşe Su", "Year of Birth"), "1950") << "deleted and free";
}

// The name was free when it was typed.
TEST_F(TwoCards, AreNotSavedUnderANameThatTheOtherHolds) {
  one.main.mnuyeni.Click();
  one.typeName("Ayşe Su");
  one.main.TxtDTarihi.setText("1991");
  two.newPatient("Ayşe Su", "1950");
  two.main.tablo().Seek("=", "Ayşe Su").ignore();
  two.main.tablo().Delete().ignore();
  one.main.mnukaydet.press();
  EXPECT_TRUE(one.main.mnukaydet.enabled());
  EXPECT_NE(one.main.sbDurum.panels()[2].find("Ayşe Su"), std::string::npos);
  EXPECT_TRUE(one.stored().empty());
}

TEST_F(TwoCards, StepOverAPatientThatTheOtherHolds) {
  for (const char* name : {"Ali Can", "Berk Su", "Can Su"}) one.newPatient(name, "1980");
  two.load("Berk Su");
  one.load("Ali Can");
  one.host.expect("Berk Su " + std::string(busy), Answer::Ok);
  one.main.mnuileri.press();
  EXPECT_EQ(one.main.Txtİsim.text(), "Can Su");
}

TEST_F(TwoCards, TellEachOtherOfAppointments) {
  EXPECT_FALSE(shell::appointmentsChanged(two.station));
  one.newPatient("Ali Can", "1980");
  shell::NotifyAppointmentChanged(one.station);
  two.newPatient("Berk Su", "1980");  // what the slot told is not lost with it
  EXPECT_FALSE(shell::appointmentsChanged(one.station));
  EXPECT_TRUE(shell::appointmentsChanged(two.station));
  EXPECT_FALSE(shell::appointmentsChanged(two.station));
}

TEST_F(TwoCards, KeepMaintenanceAwayFromTheStores) {
  const std::string before = stores::bytesOf(folder / stores::personalPath);
  two.host.expect("Dosyalara dokunulmadı", Answer::Ok);
  two.main.mnudosyabakimi.press();
  EXPECT_TRUE(stores::bytesOf(folder / stores::personalPath) == before);
  two.newPatient("Ali Can", "1980");
  EXPECT_EQ(one.stored(), std::vector<std::string>{"Ali Can"});
}

// A card with a folder and settings that outlive it; the window of maintenance runs its work.
struct OneFolder : testing::Test {
  struct Seat : support::Desk {
    Seat(const std::string& path, const std::string& user) : Desk(path) {
      settings = settings::Settings(settings::openBackend(user));
      station.ayarYaz("Language", "tr");
      host.modal["frmbakim"] = [this](forms::Form&) { host.runTasks(); };
    }
    void load() { main.emplace(station).Load(); }
    std::optional<registry::FrmMain> main;
  };
  [[nodiscard]] std::unique_ptr<Seat> seat() {
    return std::make_unique<Seat>(folder.path(), folder / "user/settings");
  }
  support::TemporaryFolder folder{stores::inMemory()};
};

TEST_F(OneFolder, TellsOfACrashOnceAndMaintainsTheStores) {
  for (int day = 0; day < 2; ++day) {
    const auto desk = seat();
    desk->load();
    EXPECT_EQ(desk->station.ayar("NS"), "1");
    if (day == 0) desk->main->Unload();
    EXPECT_EQ(std::filesystem::exists(folder / "Data/net.dat"), day == 1);
  }  // the second day ends without Unload
  stores::writeBytes(folder / "Data/NewFile.mdb", "left by a run that was killed");
  const auto next = seat();
  next->host.expect(crashed, Answer::Ok);
  next->host.expect("Personal.mdb: sağlam", Answer::Ok);
  next->load();
  EXPECT_EQ(next->host.asked.front().buttons, host::Buttons::Ok);
  EXPECT_EQ(next->station.ayar("NS"), "1");
  EXPECT_EQ(next->main->Netsıra.caption(), "1");
  EXPECT_FALSE(std::filesystem::exists(folder / "Data/NewFile.mdb"));
  const auto second = seat();  // a second station is no crash
  second->load();
  EXPECT_EQ(second->station.ayar("NS"), "2");
  second->main->Unload();
  next->main->Unload();
  EXPECT_EQ(next->station.ayar("NS"), "0");
  EXPECT_FALSE(std::filesystem::exists(folder / "Data/net.dat"));
}

TEST_F(OneFolder, TakesAnOrderlyEndDuringItsStartForNoCrash) {
  const auto first = seat();
  first->load();
  const auto second = seat();  // has read that one station runs
  first->main->Unload();
  second->load();
  EXPECT_TRUE(second->host.asked.empty());
  second->main->Unload();
}

TEST_F(OneFolder, GoesOnWithTheStoresThatMaintenanceMended) {
  support::CardDesk desk(folder.path());
  desk.newPatient("Ayşe Yıldız", "1991");
  dao::Recordset& financier = desk.station.stores.personal.Financier;
  ASSERT_TRUE(stores::add(financier, "financier", "beta"));
  std::string bytes = stores::bytesOf(folder / stores::personalPath);
  stores::writeBytes(folder / stores::personalPath, bytes.replace(bytes.rfind("beta"), 4, "zeta"));
  stores::CreateSmokingStore(desk.station.UygYolu).ignore();
  desk.host.modal["frmbakim"] = [&](forms::Form& form) {
    EXPECT_EQ(form.caption(), "Dosya Bakımı");
    EXPECT_EQ(form.find("Lmetin")->caption(), "Dosya bakımı yapılıyor");
    desk.host.runTasks();
    EXPECT_EQ(dynamic_cast<forms::ProgressBar*>(form.find("PBdurum"))->value(), 1000);
  };
  desk.host.expect("Personal.mdb: hasar bulundu ve giderildi", Answer::Ok);
  desk.main.mnudosyabakimi.press();
  for (const char* store : {"Sanavel.mdb: sağlam", "Smoke.mdb: sağlam"})
    EXPECT_NE(desk.host.asked.back().text.find(store), std::string::npos) << store;
  EXPECT_EQ(desk.main.Txtİsim.text(), "Ayşe Yıldız");
  desk.main.txtnot.setText("behind the maintenance");
  desk.main.mnukaydet.press();
  support::CardDesk other(folder.path());
  EXPECT_EQ(other.column("Ayşe Yıldız", "Notes"), "behind the maintenance");
}

TEST_F(OneFolder, StopsMaintenanceAtTheUsersWish) {
  support::CardDesk desk(folder.path());
  const std::string before = stores::bytesOf(folder / stores::personalPath);
  desk.host.modal["frmbakim"] = [&](forms::Form& form) {
    EXPECT_FALSE(form.QueryUnload()) << "the work closes the window when it is safe";
    desk.host.runTasks();
    EXPECT_TRUE(form.QueryUnload());
  };
  desk.main.mnudosyabakimi.press();
  EXPECT_TRUE(stores::bytesOf(folder / stores::personalPath) == before);
  desk.newPatient("Ali Can", "1980");
  EXPECT_EQ(desk.stored(), std::vector<std::string>{"Ali Can"});
}

// Another station is alone with the files; the user tries once more, then gives up.
TEST_F(OneFolder, IsNotOpenedWhileAnotherStationMaintainsIt) {
  std::filesystem::create_directory(folder / "Data");
  shell::StationRegister other;
  ASSERT_TRUE(other.open(folder.path() + "/"));
  support::Desk desk(folder.path());
  desk.host.expect("Başka bir istasyonda dosya bakımı", Answer::Ok);
  desk.host.expect("Başka bir istasyonda dosya bakımı", Answer::Cancel);
  app::Session session(desk.station);
  EXPECT_EQ(session.start(), app::Session::Outcome::Refused);
  EXPECT_FALSE(std::filesystem::exists(folder / stores::personalPath));
}

TEST_F(OneFolder, IsServedWithoutARegisterToo) {
  std::filesystem::create_directories(folder / "Data/net.dat");
  support::CardDesk desk(folder.path());
  EXPECT_NE(desk.main.sbDurum.panels()[3].find("tek başına"), std::string::npos);
  desk.newPatient("Ali Can", "1980");
  desk.load("Ali Can");
  EXPECT_EQ(desk.main.Txtİsim.text(), "Ali Can");
  desk.host.expect("bilinemiyor", Answer::Ok);
  desk.main.mnudosyabakimi.press();
  EXPECT_EQ(desk.station.ayar("NS"), "");
  desk.main.Unload();
}

TEST_F(OneFolder, GivesASlotToWhoeverStartedWithoutOneAsSoonAsItCan) {
  std::filesystem::create_directories(folder / "Data/net.dat");
  support::CardDesk late(folder.path());
  ASSERT_EQ(late.host.errors.size(), 1U);
  EXPECT_NE(late.host.errors[0].text().find("net.dat"), std::string::npos);
  late.newPatient("Ali Can", "1980");
  std::filesystem::remove(folder / "Data/net.dat");
  support::CardDesk other(folder.path());
  const auto wait = [&] {
    for (int tick = 0; tick < 200; ++tick) late.main.Timer1.Tick();
  };
  {
    const auto kept = other.station.sicil.lock();
    wait();
    EXPECT_NE(late.main.sbDurum.panels()[3].find("tek başına"), std::string::npos);
  }
  wait();
  EXPECT_EQ(late.main.sbDurum.panels()[3], "istasyon 2");
  other.host.expect(std::string("Ali Can ") + busy, Answer::Ok);
  other.load("Ali Can");
  late.main.Unload();
  EXPECT_EQ(late.station.ayar("NS"), "0");
}

// The record is not written over by the fonts of a station that could not read it.
TEST_F(OneFolder, ShowsItsFontsAsSoonAsTheyCanBeRead) {
  const std::string records = folder / "Data/setting.dat";
  {
    support::CardDesk desk(folder.path());
    desk.main.setFont({.name = "Serif", .size = 17});
    desk.main.Unload();
  }
  std::filesystem::rename(records, folder / "kept");
  std::filesystem::create_symlink("nowhere", records);
  support::CardDesk desk(folder.path());
  ASSERT_EQ(desk.host.errors.size(), 1U);
  EXPECT_NE(desk.host.errors[0].text().find("yazı tipleri"), std::string::npos);
  desk.main.Activate();
  std::filesystem::rename(folder / "kept", records);
  desk.main.Activate();
  EXPECT_EQ(desk.main.font().size, 17);
  desk.main.Unload();
}

}  // namespace

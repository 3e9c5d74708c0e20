// Stations that start, end, crash and want the same patient, as handles of one process and as
// processes of their own.
#include "shell/station_register.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <vector>

#include "tests/platform/files/child_process.h"
#include "tests/support/temporary_folder.h"

namespace {

using files::NetRecord;
using platform::Fault;
using shell::StationRegister;
using Company = shell::StationRegister::Company;

NetRecord showing(std::string_view name) {
  NetRecord record;
  record.used = 1;
  record.name = shell::slotName(name);
  return record;
}

// Takes the patient unless another station has; what a card does with the register.
bool take(StationRegister& stations, std::string_view name) {
  const auto guard = stations.lock();
  return guard && stations.isElsewhere(name) == false && stations.writeOwn(showing(name));
}

bool start(StationRegister& stations, const std::string& folder) {
  const auto company = stations.open(folder);
  const bool seated = company && stations.takeSlot();
  stations.letIn();
  return seated;
}

struct Register : testing::Test {
  Register() { std::filesystem::create_directory(folder / "Data"); }
  support::TemporaryFolder folder;
  std::string path = folder.path() + "/";
  std::string file = folder / "Data/net.dat";
};

TEST_F(Register, IsSharedAsTheStoresAre) {
  std::ofstream(folder / "Data/Personal.mdb") << "";
  constexpr auto shared = std::filesystem::perms(0660);
  std::filesystem::permissions(folder / "Data/Personal.mdb", shared);
  StationRegister one;
  ASSERT_TRUE(start(one, path));
  EXPECT_EQ(std::filesystem::status(file).permissions(), shared);
}

TEST_F(Register, GivesEachStationASlotAndTheLastOneDeletesIt) {
  StationRegister one;
  StationRegister two;
  StationRegister three;
  ASSERT_EQ(one.open(path), Company::Alone);
  one.letIn();
  EXPECT_FALSE(one.hasCompany());
  ASSERT_EQ(two.open(path), Company::Others) << "being asked keeps nobody out";
  EXPECT_TRUE(one.hasCompany());
  EXPECT_EQ(one.takeSlot(), 1);
  EXPECT_EQ(two.takeSlot(), 2);
  one.close();
  EXPECT_FALSE(two.hasCompany());
  EXPECT_TRUE(one.hasCompany()) << "without the register nobody can tell";
  EXPECT_TRUE(std::filesystem::exists(file));
  ASSERT_TRUE(start(three, path));
  EXPECT_EQ(three.slot(), 1);
  two.close();
  EXPECT_TRUE(std::filesystem::exists(file));
  three.close();
  EXPECT_FALSE(std::filesystem::exists(file));
}

TEST_F(Register, KeepsTheBytesOfASlot) {
  std::ofstream(file) << std::string(300, 'x');  // left by a crash
  StationRegister one;
  StationRegister two;
  ASSERT_TRUE(start(one, path) && start(two, path));
  ASSERT_TRUE(take(two, "Işıl Çağ"));
  ASSERT_TRUE(one.flagOthers());
  std::ifstream bytes(file, std::ios::binary);
  const std::string all(std::istreambuf_iterator<char>(bytes), {});
  ASSERT_EQ(all.size(), 256U);
  EXPECT_EQ(all.substr(128, 46),
            "I\xFE\xFDl \xC7"
            "a\xF0" +
                std::string(32, ' ') + std::string("\1\0\0\0\1\0", 6));
  EXPECT_EQ(one.own()->appointmentFlag, 0);
}

TEST_F(Register, HoldsOneNameAsOnePatient) {
  const struct {
    const char* held;
    const char* wanted;
    bool taken;
  } cases[] = {
      {"Ayşe Yıldız", "Ayşe Yıldız", true},
      {"Ayşe Yıldız", " Ayşe Yıldız ", true},
      {"Ayşe Yıldız", "Ayşe Yıldız*", false},
      {"Ayşe Yıldız", "", false},
      {"Иван Петров", "Иван Петров", true},
      {"Иван Петров", "Олег Петров", false},
      {"Abdurrahman Karaosmanoğlu Kocamustafapaşalıoğlu A",
       "Abdurrahman Karaosmanoğlu Kocamustafapaşalıoğlu B", false},
  };
  StationRegister one;
  StationRegister two;
  ASSERT_TRUE(start(one, path) && start(two, path));
  for (const auto& each : cases) {
    ASSERT_TRUE(one.writeOwn(showing(each.held)));
    EXPECT_EQ(two.isElsewhere(each.wanted), each.taken) << each.held << ", " << each.wanted;
    EXPECT_EQ(one.isElsewhere(each.held), false) << "a station does not lock itself out";
  }
}

TEST_F(Register, LetsAKilledStationsSlotAndPatientGoAtOnce) {
  Signal seated;
  ChildProcess other([&] {
    StationRegister stations;
    if (!start(stations, path) || !take(stations, "Ayşe Yıldız") || !seated.give()) return false;
    for (;;) ::pause();
  });
  ASSERT_TRUE(seated.await());
  StationRegister mine;
  ASSERT_TRUE(start(mine, path));
  EXPECT_EQ(mine.slot(), 2);
  EXPECT_FALSE(take(mine, "Ayşe Yıldız"));
  EXPECT_EQ(mine.tryAlone(), false);
  other.kill();
  EXPECT_TRUE(take(mine, "Ayşe Yıldız"));
  EXPECT_EQ(mine.tryAlone(), true);
  mine.letIn();
  StationRegister next;
  ASSERT_TRUE(start(next, path));
  EXPECT_EQ(next.slot(), 1);
}

// All start, and then reach for the patient, at the same moment.
TEST_F(Register, GivesOnePatientToOneOfManyStations) {
  constexpr int count = 6;
  std::vector<std::unique_ptr<ChildProcess>> stations;
  Signal seated;
  Signal go;
  Signal tried;
  Signal end;
  for (int i = 0; i < count; ++i) {
    stations.push_back(std::make_unique<ChildProcess>([&] {
      StationRegister mine;
      if (!start(mine, path) || !seated.give() || !go.await()) return false;
      const bool got = take(mine, "Ayşe Yıldız");
      return tried.give() && end.await() && got;
    }));
  }
  for (int i = 0; i < count; ++i) ASSERT_TRUE(seated.await());
  StationRegister seventh;
  ASSERT_TRUE(start(seventh, path));
  EXPECT_EQ(seventh.slot(), count + 1) << "no two of them share a slot";
  for (int i = 0; i < count; ++i) ASSERT_TRUE(go.give());
  for (int i = 0; i < count; ++i) ASSERT_TRUE(tried.await());
  EXPECT_FALSE(take(seventh, "Ayşe Yıldız"));
  for (int i = 0; i < count; ++i) ASSERT_TRUE(end.give());
  int holders = 0;
  for (const auto& station : stations) holders += station->succeeded() ? 1 : 0;
  EXPECT_EQ(holders, 1);
}

TEST_F(Register, KeepsOthersOutWhileOneIsAlone) {
  StationRegister one;
  StationRegister two;
  ASSERT_EQ(one.open(path), Company::Alone);
  const auto refused = two.open(path, std::chrono::milliseconds{0});
  ASSERT_FALSE(refused);
  EXPECT_EQ(refused.error().fault(), Fault::Busy);
  one.letIn();
  EXPECT_EQ(two.open(path, std::chrono::milliseconds{0}), Company::Others);
  EXPECT_EQ(two.tryAlone(), false);
}

TEST_F(Register, HasRoomForManyStations) {
  std::vector<StationRegister> stations(300);
  for (StationRegister& station : stations) ASSERT_TRUE(start(station, path));
  EXPECT_EQ(stations.back().slot(), 300);
  ASSERT_TRUE(take(stations.back(), "Ayşe Yıldız"));
  EXPECT_FALSE(take(stations.front(), "Ayşe Yıldız"));
}

TEST_F(Register, HasNoMoreSlotsThanItsFileCanHold) {
  StationRegister one;
  StationRegister two;
  ASSERT_TRUE(start(one, path) && start(two, path));
  std::filesystem::resize_file(file, std::uintmax_t{1} << 30U);
  EXPECT_EQ(one.isElsewhere("Ayşe Yıldız"), false);
  EXPECT_TRUE(one.flagOthers());
  ASSERT_TRUE(take(two, "Ayşe Yıldız"));
  EXPECT_EQ(one.whereElse("Ayşe Yıldız"), 2);
}

TEST_F(Register, LeavesALinkAndWhatItLeadsToAlone) {
  std::ofstream(folder / "mine") << "mine";
  std::filesystem::create_symlink(folder / "mine", file);
  StationRegister stations;
  EXPECT_EQ(stations.open(path).error().fault(), Fault::NotAFile);
  stations.close();
  EXPECT_TRUE(std::filesystem::is_symlink(file));
  EXPECT_EQ(std::filesystem::file_size(folder / "mine"), 4U);
}

TEST_F(Register, SaysWhyItCannotBeOpened) {
  std::filesystem::create_directory(file);
  StationRegister stations;
  EXPECT_FALSE(stations.open(path).error().text().empty());
  EXPECT_EQ(stations.open(folder / "no/").error().fault(), Fault::Missing);
  EXPECT_FALSE(stations.isOpen());
  EXPECT_FALSE(stations.takeSlot());
  stations.close();
}

}  // namespace

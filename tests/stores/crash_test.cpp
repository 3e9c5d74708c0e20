// Processes that end in the middle of their work, and disks that fill up.
#include "stores/value_list.h"
#include "tests/stores/crash_support.h"
#include "tests/stores/stores_fixture.h"

namespace stores {
namespace {

std::string patient(int number) {
  return "Çağrı Işık " + std::to_string(number);
}

dao::Status savePatient(Stores& stores, int number) {
  auto transaction = stores.personal.database.beginTransaction();
  if (!transaction) return transaction.error();
  if (dao::Status added = add(stores.personal.IDCard, "Name", patient(number)); !added)
    return added;
  const dao::Status listed =
      addValue(stores.personal, "Profession", "Meslek " + std::to_string(number));
  return listed ? transaction->commit() : listed;
}

// Saves patients until it is killed, and tells each number once its save has succeeded.
bool saveForEver(const std::string& folder, int first, Counter& saved) {
  Stores stores;
  stores.folder = folder + "/";
  if (!OpenStores(stores)) return false;
  for (int number = first;; ++number) {
    if (!savePatient(stores, number) || !saved.send(number)) return false;
  }
}

TEST(CrashTest, EverySaveThatSucceededOutlivesAKilledProcess) {
  const ProgramFolder folder;
  int next = 0;
  for (int round = 0; round < 20; ++round) {
    SCOPED_TRACE(round);
    Counter saved;
    int last = -1;
    {
      ChildProcess station([&] { return saveForEver(folder.path(), next, saved); });
      for (int seen = 0; seen <= round; ++seen) last = saved.receive();
      station.kill();
    }
    ASSERT_GE(last, next);
    last = saved.last(last);
    Stores stores = storesOf(folder);
    ASSERT_TRUE(OpenStores(stores));
    const dao::Status sound = stores.personal.database.integrityCheck();
    ASSERT_TRUE(sound) << sound.text();
    for (int number = 0; number <= last; ++number)
      ASSERT_TRUE(holds(stores.personal.IDCard, patient(number))) << number;
    // A save under way is there as a whole or not at all.
    const std::int64_t cards = stores.personal.IDCard.RecordCount();
    EXPECT_EQ(stores.personal.Profession.RecordCount(), cards);
    EXPECT_LE(cards, last + 2);
    next = static_cast<int>(cards);
  }
}

// Saves until there is no room; the number of the patients saved, or -1 when the fault is no full
// disk or the station cannot go on reading.
int saveUntilFull(const std::string& folder) {
  constexpr rlim_t room = 100'000;
  constexpr int far = 100'000;
  Stores stores;
  stores.folder = folder + "/";
  if (!OpenStores(stores)) return -1;
  limitFileSize(std::filesystem::file_size(folder + "/" + personalPath) + room);
  for (int number = 0; number < far; ++number) {
    const dao::Status saved = savePatient(stores, number);
    if (saved) continue;
    const bool full = saved.fault() == dao::Fault::DiskFull && !saved.text().empty();
    return full && holds(stores.personal.IDCard, patient(0)) ? number : -1;
  }
  return -1;
}

TEST(DiskFullTest, ASaveWithoutRoomSaysSoAndTheStoredPatientsStayWhole) {
  const ProgramFolder folder;
  Counter saved;
  ChildProcess station([&] { return saved.send(saveUntilFull(folder.path())); });
  const int count = saved.receive();
  EXPECT_TRUE(station.succeeded());
  ASSERT_GT(count, 100);
  Stores stores = storesOf(folder);
  ASSERT_TRUE(OpenStores(stores));
  EXPECT_TRUE(stores.personal.database.integrityCheck());
  EXPECT_EQ(stores.personal.IDCard.RecordCount(), count);
  EXPECT_EQ(stores.personal.Profession.RecordCount(), count);
  EXPECT_TRUE(savePatient(stores, count));
}

// A folder without room for even the first pages.
TEST(DiskFullTest, StoresThatFindNoRoomAreAFaultAndComeLater) {
  const ProgramFolder folder;
  ChildProcess station([&] {
    limitFileSize(10'000);
    Stores stores = storesOf(folder);
    const dao::Status opened = OpenStores(stores);
    return opened.fault() == dao::Fault::DiskFull && !opened.text().empty();
  });
  EXPECT_TRUE(station.succeeded());
  Stores stores = storesOf(folder);
  ASSERT_TRUE(OpenStores(stores));
  EXPECT_EQ(stores.personal.database.tables()->size(), 12u);
}

}  // namespace
}  // namespace stores

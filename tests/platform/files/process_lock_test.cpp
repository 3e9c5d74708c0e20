#include "platform/files/process_lock.h"

#include <gtest/gtest.h>

#include "platform/files/record_file.h"
#include "tests/platform/files/child_process.h"
#include "tests/platform/files/temporary_folder.h"

namespace {

using files::ProcessLock;
using platform::Fault;
using std::chrono::milliseconds;

TEST(ProcessLock, TellsTwoHandlesOfOneProcessApart) {
  const TemporaryFolder folder;
  auto one = ProcessLock::open(folder / "net.dat");
  ASSERT_TRUE(one);
  EXPECT_EQ(one->tryAlone(), true);
  EXPECT_TRUE(one->share());
  EXPECT_EQ(one->tryAlone(), true);
  EXPECT_TRUE(one->share());
  {
    auto two = ProcessLock::open(folder / "net.dat");
    ASSERT_TRUE(two);
    EXPECT_EQ(two->tryAlone(), false);
    EXPECT_TRUE(two->share());
    EXPECT_EQ(two->tryAlone(), false);
    EXPECT_EQ(one->tryAlone(), false);
  }
  EXPECT_EQ(one->tryAlone(), true);
}

TEST(ProcessLock, AFailedTryKeepsWhatWasHeld) {
  const TemporaryFolder folder;
  auto one = ProcessLock::open(folder / "net.dat");
  auto two = ProcessLock::open(folder / "net.dat");
  ASSERT_TRUE(one && two);
  EXPECT_TRUE(one->share());
  EXPECT_TRUE(two->share());
  EXPECT_EQ(one->tryAlone(), false);
  EXPECT_EQ(two->tryAlone(), false);
  one->release();
  EXPECT_EQ(two->tryAlone(), true);
}

TEST(ProcessLock, SharingWaitsForTheOneWhoIsAlone) {
  const TemporaryFolder folder;
  auto one = ProcessLock::open(folder / "net.dat");
  auto two = ProcessLock::open(folder / "net.dat");
  ASSERT_TRUE(one && two);
  EXPECT_EQ(one->tryAlone(), true);
  EXPECT_EQ(two->share(milliseconds{0}).fault(), Fault::Busy);
  EXPECT_TRUE(one->share());
  EXPECT_TRUE(two->share(milliseconds{0}));
}

TEST(ProcessLock, VanishesWithACrashedProcess) {
  const TemporaryFolder folder;
  const auto path = folder / "net.dat";
  Signal held;
  ChildProcess other([&] {
    auto lock = ProcessLock::open(path);
    if (!lock || !lock->share() || !held.give()) return false;
    for (;;) ::pause();
  });
  ASSERT_TRUE(held.await());
  auto mine = ProcessLock::open(path);
  ASSERT_TRUE(mine);
  EXPECT_EQ(mine->tryAlone(), false);
  EXPECT_TRUE(mine->share());
  other.kill();
  EXPECT_EQ(mine->tryAlone(), true);
}

TEST(ProcessLock, OfManyThatStartAtOnceOneIsAlone) {
  const TemporaryFolder folder;
  const auto path = folder / "net.dat";
  Signal tried;
  Signal go;
  const auto start = [&] {
    auto lock = ProcessLock::open(path);
    const bool alone = lock && lock->tryAlone() == true;
    return tried.give() && go.await() && alone;
  };
  ChildProcess processes[] = {ChildProcess(start), ChildProcess(start), ChildProcess(start)};
  for (int i = 0; i < 3; ++i) EXPECT_TRUE(tried.await());
  for (int i = 0; i < 3; ++i) EXPECT_TRUE(go.give());
  int alone = 0;
  for (ChildProcess& process : processes) alone += process.succeeded() ? 1 : 0;
  EXPECT_EQ(alone, 1);
}

TEST(ProcessLock, FollowsAFileThatWasDeletedMeanwhile) {
  const TemporaryFolder folder;
  auto early = ProcessLock::open(folder / "net.dat");
  ASSERT_TRUE(early);
  std::filesystem::remove(folder / "net.dat");
  EXPECT_TRUE(early->share());
  EXPECT_TRUE(std::filesystem::exists(folder / "net.dat"));
  auto late = ProcessLock::open(folder / "net.dat");
  ASSERT_TRUE(late);
  EXPECT_EQ(late->tryAlone(), false);
}

TEST(ProcessLock, DoesNotHinderRecordsAndTheirLocks) {
  const TemporaryFolder folder;
  auto lock = ProcessLock::open(folder / "net.dat");
  ASSERT_TRUE(lock);
  EXPECT_EQ(lock->tryAlone(), true);
  auto file = files::RecordFile::open(folder / "net.dat", 128);
  ASSERT_TRUE(file);
  EXPECT_TRUE(file->lockAll(milliseconds{0}));
  EXPECT_TRUE(file->put(1, files::RecordBuffer{128}));
}

TEST(ProcessLock, SaysWhyItCannotOpen) {
  const TemporaryFolder folder;
  EXPECT_EQ(ProcessLock::open(folder / "no/net.dat").error().fault(), Fault::Missing);
}

}  // namespace

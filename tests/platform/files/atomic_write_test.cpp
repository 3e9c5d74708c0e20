#include "platform/files/atomic_write.h"

#include <gtest/gtest.h>

#include "tests/platform/files/full_disk.h"
#include "tests/platform/files/temporary_folder.h"
#include "tests/support/ordinary_user.h"

namespace {

using platform::Fault;

long filesIn(const std::filesystem::path& folder) {
  return std::distance(std::filesystem::directory_iterator(folder), {});
}

TEST(AtomicWrite, CreatesAndReplaces) {
  const TemporaryFolder folder;
  const std::string large(300'000, 'x');
  for (const std::string& content : {std::string{"one"}, std::string{}, large}) {
    EXPECT_TRUE(files::writeAtomically(folder / "a", content));
    EXPECT_EQ(contentOf(folder / "a"), content);
  }
  EXPECT_EQ(filesIn(folder.path()), 1);
}

TEST(AtomicWrite, AReaderKeepsTheFileThatItOpened) {
  const TemporaryFolder folder;
  fill(folder / "a", "old");
  std::ifstream reader(folder / "a");
  EXPECT_TRUE(files::writeAtomically(folder / "a", "new"));
  std::string seen;
  reader >> seen;
  EXPECT_EQ(seen, "old");
}

TEST(AtomicWrite, KeepsPermissionsAndLinks) {
  const TemporaryFolder folder;
  fill(folder / "real", "old");
  std::filesystem::permissions(folder / "real", std::filesystem::perms{0640});
  std::filesystem::create_symlink("real", folder / "link");
  EXPECT_EQ(files::writeAtomically(folder / "link", "new").fault(), Fault::NotAFile);
  EXPECT_EQ(contentOf(folder / "real"), "old");
  EXPECT_TRUE(files::writeAtomically(folder / "link", "new", files::Links::Followed));
  EXPECT_TRUE(std::filesystem::is_symlink(folder / "link"));
  EXPECT_EQ(contentOf(folder / "real"), "new");
  EXPECT_EQ(std::filesystem::status(folder / "real").permissions(), std::filesystem::perms{0640});
}

TEST(AtomicWrite, AFullDiskLeavesTheOldFile) {
  const TemporaryFolder folder;
  fill(folder / "a", "old");
  platform::Status status;
  {
    const FullDisk full(100);
    status = files::writeAtomically(folder / "a", std::string(1000, 'x'));
  }
  EXPECT_EQ(status.fault(), Fault::DiskFull);
  EXPECT_EQ(contentOf(folder / "a"), "old");
  EXPECT_EQ(filesIn(folder.path()), 1);
}

TEST(AtomicWrite, SaysWhyItFails) {
  const TemporaryFolder folder;
  std::filesystem::create_directory(folder / "sub");
  fill(folder / "sub/x", "");
  EXPECT_EQ(files::writeAtomically(folder / "no/a", "x").fault(), Fault::Missing);
  EXPECT_FALSE(files::writeAtomically(folder / "sub", "x"));
  EXPECT_EQ(filesIn(folder.path()), 1);
  std::filesystem::permissions(folder.path(), std::filesystem::perms{0555});
  const support::OrdinaryUser user;
  EXPECT_EQ(files::writeAtomically(folder / "a", "x").fault(), Fault::ReadOnly);
}

}  // namespace

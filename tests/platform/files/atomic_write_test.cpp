#include "platform/files/atomic_write.h"

#include <gtest/gtest.h>
#include <sys/resource.h>

#include <csignal>

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
  EXPECT_TRUE(files::writeAtomically(folder / "link", "new"));
  EXPECT_TRUE(std::filesystem::is_symlink(folder / "link"));
  EXPECT_EQ(contentOf(folder / "real"), "new");
  EXPECT_EQ(std::filesystem::status(folder / "real").permissions(), std::filesystem::perms{0640});
}

// The file size limit stands for a full disk.
class FullDisk {
 public:
  explicit FullDisk(rlim_t bytes) {
    handler_ = std::signal(SIGXFSZ, SIG_IGN);
    ::getrlimit(RLIMIT_FSIZE, &before_);
    const rlimit limit{bytes, before_.rlim_max};
    ::setrlimit(RLIMIT_FSIZE, &limit);
  }
  ~FullDisk() {
    ::setrlimit(RLIMIT_FSIZE, &before_);
    std::signal(SIGXFSZ, handler_);
  }
  FullDisk(const FullDisk&) = delete;
  FullDisk& operator=(const FullDisk&) = delete;

 private:
  void (*handler_)(int);
  rlimit before_{};
};

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

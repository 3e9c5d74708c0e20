#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <functional>

#include "platform/files/atomic_write.h"
#include "platform/files/copy_file.h"
#include "platform/files/message_file.h"
#include "platform/files/name_list.h"
#include "platform/files/process_lock.h"
#include "platform/files/read_file.h"
#include "platform/files/record_file.h"
#include "platform/files/replace.h"
#include "tests/platform/files/temporary_folder.h"

namespace {

namespace fs = std::filesystem;
using files::Links;
using platform::Fault;

template <class T>
Fault faultOf(const platform::Result<T>& result) {
  return result ? Fault::None : result.error().fault();
}

// Whatever stands in the place of a file of the practice, what it leads to is as it was.
TEST(PlainFile, NothingBehindALinkIsTouched) {
  const std::function<Fault(const fs::path&)> ways[] = {
      [](const fs::path& at) { return faultOf(files::RecordFile::open(at, 4)); },
      [](const fs::path& at) { return faultOf(files::ProcessLock::open(at)); },
      [](const fs::path& at) { return files::addName(at, "Ayşe").fault(); },
      [](const fs::path& at) { return files::sendMessage(at, {}).fault(); },
      [](const fs::path& at) { return files::deleteAllMessages(at).fault(); },
      [](const fs::path& at) { return files::writeAtomically(at, "new").fault(); },
      [](const fs::path& at) { return files::copyFile(at, at.parent_path() / "copy").fault(); },
      [](const fs::path& at) { return faultOf(files::readFile(at, 100)); },
      [](const fs::path& at) {
        fill(at.parent_path() / "draft", "new");
        return files::replaceFile(at.parent_path() / "draft", at).fault();
      },
  };
  const std::function<void(const fs::path&)> places[] = {
      [](const fs::path& at) { fs::create_symlink(at.parent_path() / "mine", at); },
      [](const fs::path& at) { fs::create_symlink(at.parent_path() / "none", at); },
      [](const fs::path& at) { ASSERT_EQ(::mkfifo(at.c_str(), 0666), 0); },
      [](const fs::path& at) { fs::create_directory(at); },
  };
  for (const auto& way : ways) {
    for (const auto& place : places) {
      const TemporaryFolder folder;
      fill(folder / "mine", "mine");
      fs::permissions(folder / "mine", fs::perms{0600});
      place(folder / "a.dat");
      EXPECT_EQ(way(folder / "a.dat"), Fault::NotAFile);
      files::shareLike(folder / "a.dat", "/etc/passwd");
      EXPECT_EQ(contentOf(folder / "mine"), "mine");
      EXPECT_EQ(fs::status(folder / "mine").permissions(), fs::perms{0600});
      EXPECT_FALSE(fs::exists(folder / "none"));
    }
  }
}

TEST(PlainFile, IsReadWithinItsLimit) {
  const TemporaryFolder folder;
  fill(folder / "a", "12345");
  fs::create_symlink("a", folder / "link");
  EXPECT_EQ(files::readFile(folder / "a", 5), "12345");
  EXPECT_EQ(faultOf(files::readFile(folder / "a", 4)), Fault::TooLarge);
  EXPECT_EQ(faultOf(files::readFile(folder / "none", 4)), Fault::Missing);
  EXPECT_EQ(files::readFile(folder / "link", 5, Links::Followed), "12345");
  EXPECT_EQ(faultOf(files::readFile("/dev/zero", 5, Links::Followed)), Fault::NotAFile);
}

TEST(PlainFile, WhatIsWrittenHasTheRightsOfWhatItReplaces) {
  const TemporaryFolder folder;
  EXPECT_TRUE(files::writeAtomically(folder / "own", "x", Links::Refused, files::privateMode));
  EXPECT_EQ(fs::status(folder / "own").permissions(), fs::perms{0600});
  fs::permissions(folder / "own", fs::perms{0664});
  EXPECT_TRUE(files::writeAtomically(folder / "own", "y"));
  EXPECT_EQ(fs::status(folder / "own").permissions(), fs::perms{0664});
}

}  // namespace

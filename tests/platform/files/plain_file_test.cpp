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

// A file of that size costs neither time nor memory: it has holes.
TEST(PlainFile, BeyondAllThatAPracticeHasIsTooLargeAtOnce) {
  constexpr std::uintmax_t gigabyte = std::uintmax_t{1} << 30U;
  const std::function<Fault(const fs::path&)> ways[] = {
      [](const fs::path& at) { return faultOf(files::readMessages(at)); },
      [](const fs::path& at) { return files::sendMessage(at, {}).fault(); },
      [](const fs::path& at) { return files::deleteMessage(at, {}).fault(); },
      [](const fs::path& at) { return faultOf(files::readNames(at)); },
      [](const fs::path& at) { return files::addName(at, "Ayşe").fault(); },
      [](const fs::path& at) { return faultOf(files::readFile(at, files::megabyte)); },
  };
  const TemporaryFolder folder;
  fill(folder / "a", "");
  for (const auto& way : ways) {
    fs::resize_file(folder / "a", gigabyte);
    EXPECT_EQ(way(folder / "a"), Fault::TooLarge);
    EXPECT_EQ(fs::file_size(folder / "a"), gigabyte);
  }
  EXPECT_TRUE(files::deleteAllMessages(folder / "a")) << "the way out";
  EXPECT_EQ(fs::file_size(folder / "a"), 0U);
}

TEST(PlainFile, WithTheLastRecordThatThereIsRoomForIsRead) {
  const TemporaryFolder folder;
  fill(folder / "messages", std::string((files::mostMessages - 1) * 384, ' '));
  EXPECT_TRUE(files::sendMessage(folder / "messages", {}));
  EXPECT_EQ(files::sendMessage(folder / "messages", {}).fault(), Fault::TooLarge);
  EXPECT_EQ(files::readMessages(folder / "messages")->size(), std::size_t{files::mostMessages});
  fill(folder / "names", std::string((files::mostNames - 1) * 30, ' '));
  EXPECT_TRUE(files::addName(folder / "names", "Ayşe"));
  EXPECT_EQ(files::addName(folder / "names", "Ali").fault(), Fault::TooLarge);
  EXPECT_EQ(files::readNames(folder / "names"), std::vector<std::string>{"Ayşe"});
}

TEST(PlainFile, ThatHasTakenTheNameOfAnotherIsNotRemovedInItsPlace) {
  const TemporaryFolder folder;
  auto lock = files::ProcessLock::open(folder / "a");
  ASSERT_EQ(lock->tryAlone(), true);
  fs::remove(folder / "a");
  fill(folder / "a", "another");
  EXPECT_TRUE(lock->empty());
  lock->removeFile();
  EXPECT_EQ(contentOf(folder / "a"), "another");
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

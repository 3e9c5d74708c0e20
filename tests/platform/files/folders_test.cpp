#include "platform/files/folders.h"

#include <gtest/gtest.h>

#include "tests/platform/files/temporary_folder.h"
#include "tests/support/ordinary_user.h"

namespace {

TEST(Folders, JoinsStoredPaths) {
  const struct {
    std::string_view inner;
    std::string_view joined;
  } cases[] = {{"Data/Personal.mdb", "/p/Data/Personal.mdb"},
               {"Data\\Personal.mdb", "/p/Data/Personal.mdb"},
               {"\\Data\\Sub\\x", "/p/Data/Sub/x"},
               {"//Data", "/p/Data"},
               {"Documents\\Ağrı.rtf", "/p/Documents/Ağrı.rtf"}};
  for (const auto& c : cases) EXPECT_EQ(files::programPath("/p", c.inner), c.joined);
}

TEST(Folders, CreatesThemOnce) {
  const TemporaryFolder folder;
  EXPECT_TRUE(files::createFolders(folder / "Documents/Diseases"));
  EXPECT_TRUE(files::createFolders(folder / "Documents/Diseases"));
  EXPECT_TRUE(std::filesystem::is_directory(folder / "Documents/Diseases"));
  fill(folder / "file", "");
  EXPECT_FALSE(files::createFolders(folder / "file/below"));
}

TEST(Folders, TriesWhetherOneIsWritable) {
  const TemporaryFolder folder;
  EXPECT_TRUE(files::isWritable(folder.path()));
  EXPECT_TRUE(std::filesystem::is_empty(folder.path()));
  EXPECT_FALSE(files::isWritable(folder / "none"));
  std::filesystem::permissions(folder.path(), std::filesystem::perms{0555});
  const support::OrdinaryUser user;
  EXPECT_FALSE(files::isWritable(folder.path()));
}

}  // namespace

#include "platform/settings/file_backend.h"

#include <gtest/gtest.h>

#include "platform/settings/settings.h"
#include "tests/platform/files/child_process.h"
#include "tests/platform/files/temporary_folder.h"
#include "tests/support/ordinary_user.h"

namespace {

using platform::Fault;
using settings::FileBackend;
using settings::Settings;

Settings onFile(const std::filesystem::path& path) {
  return Settings{std::make_unique<FileBackend>(path)};
}

std::string valueIn(const std::filesystem::path& path, std::string_view key) {
  Settings settings = onFile(path);
  EXPECT_TRUE(settings.refresh());
  return std::string{settings.get("Sanavel", "Main", key, "none")};
}

TEST(FileBackend, KeepsSettingsBetweenRuns) {
  const TemporaryFolder folder;
  const auto path = folder / "settings";
  EXPECT_EQ(valueIn(path, "Language"), "none");
  EXPECT_FALSE(std::filesystem::exists(path));
  EXPECT_TRUE(onFile(path).set("Sanavel", "Main", "Language", "tr"));
  EXPECT_EQ(valueIn(path, "language"), "tr");
  EXPECT_TRUE(onFile(path).remove("Sanavel", "Main", "Language"));
  EXPECT_EQ(valueIn(path, "Language"), "none");
}

TEST(FileBackend, TwoStationsSeeEachOthersWrites) {
  const TemporaryFolder folder;
  Settings one = onFile(folder / "settings");
  Settings two = onFile(folder / "settings");
  EXPECT_TRUE(one.set("Sanavel", "Main", "a", "1"));
  EXPECT_TRUE(two.set("Sanavel", "Main", "b", "2"));
  EXPECT_EQ(two.get("Sanavel", "Main", "a"), "1");
  EXPECT_EQ(one.get("Sanavel", "Main", "b"), "");
  EXPECT_TRUE(one.refresh());
  EXPECT_EQ(one.get("Sanavel", "Main", "b"), "2");
  EXPECT_TRUE(one.remove("Sanavel", "Main", "a"));
  EXPECT_TRUE(two.refresh());
  EXPECT_EQ(two.get("Sanavel", "Main", "a", "gone"), "gone");
}

// Within one tick of the clock a replaced file may equal the old one in size, time and number.
TEST(FileBackend, NoticesAReplacementThatLooksTheSame) {
  const TemporaryFolder folder;
  const auto path = folder / "settings";
  const std::filesystem::file_time_type time{};
  for (char digit = '0'; digit <= '9'; ++digit) {
    fill(path, std::string{"settings 1\nSanavel\tMain\tNS\t"} + digit + "\nend\n");
    std::filesystem::last_write_time(path, time);
    FileBackend backend(path);
    EXPECT_TRUE(backend.load());
    std::filesystem::remove(path);
    fill(path, "settings 1\nSanavel\tMain\tNS\tx\nend\n");
    std::filesystem::last_write_time(path, time);
    EXPECT_TRUE(backend.isChanged()) << digit;
  }
}

TEST(FileBackend, ReadsAgainOnlyWhatHasChanged) {
  const TemporaryFolder folder;
  const auto path = folder / "settings";
  FileBackend backend(path);
  EXPECT_TRUE(backend.isChanged());
  EXPECT_TRUE(backend.load());
  EXPECT_FALSE(backend.isChanged());
  fill(path, "settings 1\nSanavel\tMain\tCurX\t5\nend\n");
  EXPECT_TRUE(backend.isChanged());
  EXPECT_EQ(backend.load()->size(), 1U);
  EXPECT_FALSE(backend.isChanged());
  std::filesystem::remove(path);
  EXPECT_TRUE(backend.isChanged());
  EXPECT_EQ(backend.load()->size(), 0U);
}

TEST(FileBackend, WritesNothingWhenNothingChanges) {
  const TemporaryFolder folder;
  const auto path = folder / "settings";
  Settings settings = onFile(path);
  EXPECT_TRUE(settings.set("Sanavel", "Main", "a", "1"));
  FileBackend observer(path);
  EXPECT_TRUE(observer.load());
  EXPECT_TRUE(settings.set("SANAVEL", "Main", "A", "1"));
  EXPECT_FALSE(observer.isChanged());
}

TEST(FileBackend, NoProcessLosesAnothersKeys) {
  const TemporaryFolder folder;
  const auto path = folder / "settings";
  const auto write = [&](const std::string& prefix) {
    Settings settings = onFile(path);
    bool ok = true;
    for (int i = 0; i < 40; ++i) {
      ok = ok && settings.set("Sanavel", "Main", prefix + std::to_string(i), prefix) &&
           settings.add("Sanavel", "Main", "NS", 1);
    }
    return ok;
  };
  ChildProcess one([&] { return write("one"); });
  ChildProcess two([&] { return write("two"); });
  EXPECT_TRUE(write("mine"));
  EXPECT_TRUE(one.succeeded());
  EXPECT_TRUE(two.succeeded());
  EXPECT_EQ(valueIn(path, "NS"), "120");
  EXPECT_EQ(FileBackend(path).load()->size(), 121U);
}

TEST(FileBackend, SetsADamagedFileAside) {
  const TemporaryFolder folder;
  const auto path = folder / "settings";
  fill(path, "settings 1\nSanavel\tMain\tLang");
  Settings settings = onFile(path);
  const auto status = settings.refresh();
  EXPECT_EQ(status.fault(), Fault::Damaged);
  EXPECT_NE(status.text().find("settings.damaged"), std::string::npos);
  EXPECT_EQ(contentOf(folder / "settings.damaged"), "settings 1\nSanavel\tMain\tLang");
  EXPECT_EQ(settings.get("Sanavel", "Main", "Language", "none"), "none");
  EXPECT_TRUE(settings.refresh());
  EXPECT_TRUE(settings.set("Sanavel", "Main", "Language", "tr"));
  EXPECT_EQ(valueIn(path, "Language"), "tr");
}

TEST(FileBackend, AWriteOverADamagedFileIsKeptAndSaysSo) {
  const TemporaryFolder folder;
  const auto path = folder / "settings";
  fill(path, "garbage");
  Settings settings = onFile(path);
  EXPECT_EQ(settings.set("Sanavel", "Main", "Language", "tr").fault(), Fault::Damaged);
  EXPECT_EQ(valueIn(path, "Language"), "tr");
  EXPECT_EQ(contentOf(folder / "settings.damaged"), "garbage");
  fill(path, "rubbish");
  EXPECT_EQ(settings.add("Sanavel", "Main", "NS", 1), 1);
  EXPECT_EQ(valueIn(path, "NS"), "1");
}

TEST(FileBackend, AWriteThatFailsChangesNothing) {
  const TemporaryFolder folder;
  const auto path = folder / "sub/settings";
  std::filesystem::create_directory(folder / "sub");
  Settings settings = onFile(path);
  EXPECT_TRUE(settings.set("Sanavel", "Main", "a", "1"));
  std::filesystem::rename(folder / "sub", folder / "moved");
  EXPECT_EQ(settings.set("Sanavel", "Main", "a", "2").fault(), Fault::Missing);
  EXPECT_FALSE(settings.add("Sanavel", "Main", "a", 1));
  EXPECT_EQ(settings.get("Sanavel", "Main", "a"), "1");
  EXPECT_EQ(valueIn(folder / "moved/settings", "a"), "1");
}

TEST(OpenBackend, CreatesTheFolder) {
  const TemporaryFolder folder;
  const auto path = folder / "config/sanavel/settings";
  EXPECT_TRUE(Settings{settings::openBackend(path)}.set("Sanavel", "Main", "a", "1"));
  EXPECT_EQ(valueIn(path, "a"), "1");
}

TEST(OpenBackend, FallsBackToMemory) {
  const TemporaryFolder folder;
  const auto path = folder / "settings";
  EXPECT_TRUE(onFile(path).set("Sanavel", "Main", "Language", "tr"));
  std::filesystem::permissions(folder.path(), std::filesystem::perms{0555});
  std::filesystem::permissions(path, std::filesystem::perms{0444});
  const std::string before = contentOf(path);
  {
    const support::OrdinaryUser user;
    Settings settings{settings::openBackend(path)};
    EXPECT_TRUE(settings.refresh());
    EXPECT_EQ(settings.get("Sanavel", "Main", "Language"), "tr");
    EXPECT_TRUE(settings.set("Sanavel", "Main", "Language", "eng"));
    EXPECT_EQ(settings.get("Sanavel", "Main", "Language"), "eng");
  }
  EXPECT_EQ(contentOf(path), before);
  EXPECT_TRUE(Settings{settings::openBackend({})}.set("Sanavel", "Main", "a", "1"));
}

}  // namespace

#include "platform/settings/file_backend.h"

#include <gtest/gtest.h>

#include <functional>

#include "platform/settings/settings.h"
#include "tests/platform/files/child_process.h"
#include "tests/platform/files/temporary_folder.h"
#include "tests/support/ordinary_user.h"

namespace {

using platform::Fault;
using settings::FileBackend;
using settings::Settings;

const std::vector<settings::Place> guarded{settings::Place{{"Sanavel", "Main", "openpass"}}};

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

TEST(FileBackend, UsesWhatCanBeReadAndKeepsAllThatThereWas) {
  const TemporaryFolder folder;
  const auto path = folder / "settings";
  const std::string torn = "settings 1\nSanavel\tMain\topenpass\t1234\nSanavel\tMain\tLang";
  fill(path, torn);
  Settings settings = onFile(path);
  const auto status = settings.refresh();
  EXPECT_EQ(status.fault(), Fault::Damaged);
  EXPECT_NE(status.text().find("settings.damaged"), std::string::npos);
  EXPECT_EQ(settings.get("Sanavel", "Main", "openpass"), "1234");
  EXPECT_EQ(contentOf(folder / "settings.damaged"), torn);
  EXPECT_TRUE(settings.refresh()) << "told once";
  EXPECT_EQ(valueIn(path, "openpass"), "1234");
  fill(path, "rubbish");
  EXPECT_EQ(settings.set("Sanavel", "Main", "Language", "tr").fault(), Fault::Damaged);
  EXPECT_EQ(valueIn(path, "Language"), "tr") << "a write over it is kept";
  EXPECT_EQ(contentOf(folder / "settings.damaged2"), "rubbish");
  fill(path, "garbage");
  EXPECT_EQ(settings.add("Sanavel", "Main", "NS", 1), 1);
  EXPECT_EQ(valueIn(path, "NS"), "1");
  EXPECT_EQ(contentOf(folder / "settings.damaged"), torn) << "the first one is not written over";
}

TEST(FileBackend, PutsAFileOfAnySizeAsideUnread) {
  const TemporaryFolder folder;
  const auto path = folder / "settings";
  fill(path, "settings 1\n");
  std::filesystem::resize_file(path, std::uintmax_t{1} << 30U);
  Settings settings = onFile(path);
  EXPECT_EQ(settings.refresh().fault(), Fault::Damaged);
  EXPECT_TRUE(settings.set("Sanavel", "Main", "a", "1"));
  EXPECT_EQ(valueIn(path, "a"), "1");
  EXPECT_EQ(std::filesystem::file_size(folder / "settings.damaged"), std::uintmax_t{1} << 30U);
  EXPECT_EQ(settings.set("Sanavel", "Main", "b", std::string(FileBackend::largest, 'x')).fault(),
            Fault::TooLarge);
  EXPECT_EQ(valueIn(path, "a"), "1");
}

TEST(FileBackend, IsForItsUserAlone) {
  namespace fs = std::filesystem;
  const TemporaryFolder folder;
  const auto path = folder / "settings";
  fill(path, "settings 1\nSanavel\tMain\ta\t1\n");  // cut
  fs::permissions(path, fs::perms{0644});
  Settings settings{settings::openBackend(path, guarded)};
  EXPECT_EQ(settings.refresh().fault(), Fault::Damaged);
  EXPECT_TRUE(settings.set("Sanavel", "Main", "openpass", "1234"));
  for (const char* suffix : {"", ".lock", ".damaged", ".protected"}) {
    EXPECT_EQ(fs::status(folder / ("settings" + std::string(suffix))).permissions(),
              fs::perms{0600})
        << suffix;
  }
}

TEST(FileBackend, FollowsALinkThatItsUserPutThere) {
  namespace fs = std::filesystem;
  const TemporaryFolder folder;
  fs::create_directory(folder / "dotfiles");
  fill(folder / "dotfiles/kept", "settings 1\nSanavel\tMain\ta\t1\nodd\nend\n");
  fs::create_symlink("dotfiles/kept", folder / "settings");
  Settings settings = onFile(folder / "settings");
  EXPECT_EQ(settings.refresh().fault(), Fault::Damaged);
  EXPECT_TRUE(settings.set("Sanavel", "Main", "b", "2"));
  EXPECT_TRUE(fs::is_symlink(folder / "settings"));
  EXPECT_EQ(valueIn(folder / "dotfiles/kept", "b"), "2");
  EXPECT_EQ(valueIn(folder / "dotfiles/kept", "a"), "1");
}

// What was locked is held when its file is lost, and only then.
TEST(FileBackend, RemembersWhatItsUserLocked) {
  const auto at = [](const TemporaryFolder& folder) {
    Settings settings{settings::openBackend(folder / "settings", guarded)};
    settings.refresh().ignore();
    return settings;
  };
  const auto lost = [](const Settings& settings) {
    return settings.isLost("Sanavel", "Main", "OpenPass");
  };
  using Step = std::function<void(const TemporaryFolder&)>;
  const Step set = [&](const TemporaryFolder& folder) {
    EXPECT_TRUE(at(folder).set("Sanavel", "Main", "openpass", "1234"));
    EXPECT_FALSE(contentOf(folder / "settings.protected").contains("1234"));
  };
  const Step turnOff = [&](const TemporaryFolder& folder) {
    EXPECT_TRUE(at(folder).set("Sanavel", "Main", "openpass", "0"));
  };
  const Step remove = [&](const TemporaryFolder& folder) {
    EXPECT_TRUE(at(folder).remove("Sanavel", "Main", "openpass"));
  };
  const Step other = [&](const TemporaryFolder& folder) {
    (void)at(folder).set("Sanavel", "Main", "a", "1");
  };
  const Step lose = [](const TemporaryFolder& folder) {
    std::filesystem::remove(folder / "settings");
  };
  const Step damage = [](const TemporaryFolder& folder) { fill(folder / "settings", "x"); };
  const Step pardon = [](const TemporaryFolder& folder) {
    std::filesystem::remove(folder / "settings.protected");
  };
  const Step hide = [](const TemporaryFolder& folder) {
    std::filesystem::remove(folder / "settings.protected");
    std::filesystem::create_directory(folder / "settings.protected");
  };
  const struct {
    std::vector<Step> steps;
    bool isLost;
  } cases[] = {
      {{set}, false},
      {{lose}, false},
      {{set, lose}, true},
      {{set, damage}, true},
      {{set, lose, other, other}, true},
      {{set, damage, other}, true},
      {{set, remove, lose}, false},
      {{set, turnOff, lose}, false},
      {{set, lose, set}, false},
      {{set, lose, other, turnOff, lose}, false},
      {{set, lose, pardon}, false},
      {{set, lose, hide}, true},
      {{set, pardon, other, other, lose}, true},
  };
  for (const auto& c : cases) {
    const TemporaryFolder folder;
    for (const Step& step : c.steps) step(folder);
    EXPECT_EQ(lost(at(folder)), c.isLost) << &c - cases;
  }
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

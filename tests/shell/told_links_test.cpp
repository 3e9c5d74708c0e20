#include "shell/told_links.h"

#include <gtest/gtest.h>

#include <array>
#include <filesystem>

#include "tests/support/practice.h"

namespace {

namespace fs = std::filesystem;

struct ToldLinks : testing::Test {
  ToldLinks() {
    for (const char* each : {"here", "there", "plain"}) fs::create_directory(folder / each);
    fs::create_directory_symlink(folder / "here", link);
  }
  void leadTo(const std::string& target) {
    fs::remove(link);
    fs::create_directory_symlink(target, link);
  }
  support::TemporaryFolder folder;
  std::string link = folder / "link";
  std::array<std::string, 3> paths{link + "/", folder / "plain", folder / "missing"};
  support::Desk desk{folder.path()};
};

TEST_F(ToldLinks, AreToldOncePerTarget) {
  desk.host.expect(link + " → " + (folder / "here"), host::Answer::Ok);
  tellLinks(desk.station, paths);
  tellLinks(desk.station, paths);
  EXPECT_EQ(desk.host.asked.size(), 1U);
  leadTo(folder / "there");
  desk.host.expect(folder / "there", host::Answer::Ok);
  tellLinks(desk.station, paths);
  leadTo(folder / "here");
  EXPECT_EQ(untoldLinks(desk.station, paths).size(), 1U) << "what was true once may be a surprise";
}

TEST_F(ToldLinks, WithAnyNameAreToldOnceAndNeverMoreThanCanBeRemembered) {
  for (int i = 0; i < 60; ++i) {
    leadTo(folder.path() + "/a\tb\n" + std::to_string(i));
    const auto fresh = untoldLinks(desk.station, paths);
    ASSERT_EQ(fresh.size(), 1U);
    rememberTold(desk.station, fresh);
    EXPECT_TRUE(untoldLinks(desk.station, paths).empty());
    paths[0] = link = folder.path() + "/link" + std::to_string(i);
  }
  EXPECT_LT(desk.station.ayar("told links").size(), 10000U);
}

}  // namespace

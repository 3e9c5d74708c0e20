#include "shell/text_lookup.h"

#include <gtest/gtest.h>

#include "tests/support/practice.h"

namespace {

TEST(TextLookup, FollowsTheSettingWhileTheProgramRuns) {
  const support::TemporaryFolder folder;
  support::Desk desk(folder.path());
  EXPECT_EQ(metinbul(desk.station, "ichastaliklari"), "İç Hastalıkları");
  EXPECT_EQ(desk.station.Dil, "tr");
  desk.station.ayarYaz("Language", "eng");
  EXPECT_EQ(metinbul(desk.station, "ichastaliklari"), "Internal Medicine");
  EXPECT_EQ(desk.station.Dil, "eng");
  desk.station.ayarYaz("Language", "de");  // anything but "tr" is English
  EXPECT_EQ(metinbul(desk.station, "Cerrahi"), "General Surgery");
}

TEST(TextLookup, ChoosesTheLanguageOfTheDeskOnce) {
  const support::TemporaryFolder folder;
  support::Desk desk(folder.path(), "General Medicine", "");
  ASSERT_TRUE(desk.station.ayar("Language").empty());
  EXPECT_FALSE(metinbul(desk.station, "isim").empty());
  EXPECT_EQ(desk.station.ayar("Language").size(), 2U);
}

// A first start on a desk whose settings cannot be written.
TEST(TextLookup, GoesOnWhenTheChoiceCannotBeKept) {
  struct Refusing : settings::MemoryBackend {
    platform::Result<settings::Values> update(const settings::Change&) override {
      return std::unexpected(platform::Status(platform::Fault::ReadOnly, "read-only"));
    }
  };
  const support::TemporaryFolder folder;
  support::Desk desk(folder.path());
  settings::Settings refusing(std::make_unique<Refusing>());
  shell::Station station({desk.host, desk.clock, refusing, desk.screens}, folder.path(), "Surgery");
  EXPECT_FALSE(metinbul(station, "isim").empty());
  EXPECT_EQ(station.Dil.size(), 2U);
  EXPECT_TRUE(desk.host.errors.empty());
}

TEST(TextLookup, LeavesUnknownKeysAsTheyStand) {
  const support::TemporaryFolder folder;
  support::Desk desk(folder.path());
  EXPECT_EQ(metinbul(desk.station, "ay"), "ay");
  EXPECT_EQ(metinbul(desk.station, ""), "");
  EXPECT_EQ(metinbul(desk.station, "toplam"), "TOPLAM");
}

TEST(TextLookup, LineBreaksBecomeOneCharacterForTheWindow) {
  EXPECT_EQ(shell::oneLineBreak("a\n\rb\n\rc\nd"), "a\nb\nc\nd");
}

}  // namespace

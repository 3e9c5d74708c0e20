#include "shell/captions.h"

#include <gtest/gtest.h>

#include <set>

#include "platform/forms/label.h"
#include "platform/forms/menu.h"
#include "shell/caption_rows.h"
#include "shell/text_lookup.h"
#include "shell/vocabulary/vocabulary.h"
#include "tests/support/practice.h"

namespace {

TEST(Captions, UseKeysThatTheVocabularyHas) {
  const auto known = [](std::string_view key) {
    return shell::turkcemetin(key).has_value() || shell::ingilizcemetin(key).has_value();
  };
  for (const shell::CaptionRow& row : shell::captionRows()) EXPECT_TRUE(known(row.key)) << row.key;
  for (const shell::KeyedCaption& row : shell::toolTipRows())
    EXPECT_TRUE(known(row.textKey)) << row.textKey;
  for (const shell::KeyedCaption& row : shell::tabRows())
    EXPECT_TRUE(known(row.textKey)) << row.textKey;
}

TEST(Captions, NameEveryControlOnce) {
  std::set<std::pair<std::string_view, std::string_view>> seen;
  for (const shell::CaptionRow& row : shell::captionRows()) {
    EXPECT_TRUE(seen.insert({row.form, row.control}).second) << row.control;
  }
}

TEST(Captions, PassOverWhatTheFormLacks) {
  const support::TemporaryFolder folder;
  support::Desk desk(folder.path());
  forms::Form form("frmpass");
  forms::MenuItem entry(form, "mnukaydet");
  forms::Label stranger(form, "Lyabanci");
  basliklariyaz(desk.station, form);
  EXPECT_EQ(entry.caption(), "&Kaydet");
  EXPECT_EQ(form.caption(), "Şifre");
  EXPECT_EQ(stranger.caption(), "");
}

}  // namespace

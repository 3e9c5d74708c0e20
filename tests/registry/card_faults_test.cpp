// What goes wrong at a desk: broken stores, full disks, odd texts. The program stays up and says
// so.
#include <gtest/gtest.h>

#include <fstream>

#include "tests/registry/card_fixture.h"

namespace {

using support::Card;
using support::CardDesk;
using support::TemporaryFolder;

struct Opening : testing::TestWithParam<std::string> {};

TEST_P(Opening, OfAStoreThatIsNoneSaysSoAndLeavesItAlone) {
  const TemporaryFolder folder;
  std::filesystem::create_directories(folder / "Data");
  const std::string path = folder / "Data/Personal.mdb";
  std::ofstream(path, std::ios::binary) << GetParam();
  CardDesk desk(folder.path());
  ASSERT_EQ(desk.host.errors.size(), 1U);
  EXPECT_NE(desk.host.errors.front().text().find("Personal.mdb"), std::string::npos);
  desk.main.mnuyeni.Click();
  desk.typeName("Ali Can");
  desk.main.TxtDTarihi.setText("1980");
  desk.main.mnukaydet.press();
  EXPECT_TRUE(desk.main.mnukaydet.enabled()) << "what was typed is still to be saved";
  EXPECT_NE(desk.main.sbDurum.panels()[2].find("kaydedilemedi"), std::string::npos);
  desk.main.mnugeri.Click();
  EXPECT_EQ(desk.main.Txtİsim.text(), "Ali Can") << "a refused save is not stepped away from";
  for (int i = 0; i < 2; ++i) desk.host.expect("Kayıt yapılsın mı?", host::Answer::Yes);
  desk.main.mnuyeni.Click();
  EXPECT_FALSE(desk.main.QueryUnload());
  EXPECT_EQ(desk.main.Txtİsim.text(), "Ali Can");
  desk.main.mnusil.Click();
  std::ifstream file(path, std::ios::binary);
  EXPECT_EQ(std::string(std::istreambuf_iterator<char>(file), {}), GetParam());
}

INSTANTIATE_TEST_SUITE_P(Store, Opening,
                         testing::Values(std::string(4096, '\x5a'), "short",
                                         std::string("SQLite format 3\0rest", 20)));

TEST(Opening, OfAFolderThatCannotBeMadeSaysSo) {
  const TemporaryFolder folder;
  std::ofstream(folder / "file") << "no folder";
  CardDesk desk(folder / "file");
  ASSERT_FALSE(desk.host.errors.empty());
  EXPECT_FALSE(desk.host.errors.front().text().empty());
  desk.tick();
}

// Nobody is to write a whole card before he learns that it cannot be kept.
TEST(Opening, OfStoresThatCannotBeWrittenSaysSoAtOnceAndAtTheSave) {
  const TemporaryFolder folder;
  { CardDesk(folder.path()).newPatient("Ali Can", "1980"); }
  for (const char* store : {"Data/Personal.mdb", "Data/Sanavel.mdb"})
    std::filesystem::permissions(folder / store, std::filesystem::perms(0444));
  CardDesk desk(folder.path());
  ASSERT_EQ(desk.host.errors.size(), 1U);
  EXPECT_NE(desk.host.errors.front().text().find("değiştirilemiyor"), std::string::npos);
  EXPECT_EQ(desk.stored(), std::vector<std::string>{"Ali Can"});
  desk.newPatient("Ayşe Su", "1990");
  ASSERT_EQ(desk.host.errors.size(), 2U);
  EXPECT_EQ(desk.host.errors.back().fault(), dao::Fault::ReadOnly);
  EXPECT_TRUE(desk.main.mnukaydet.enabled());
  EXPECT_EQ(desk.main.Txtİsim.text(), "Ayşe Su");
}

TEST(Opening, OfAnEmptyFileIsANewStore) {
  const TemporaryFolder folder;
  std::filesystem::create_directories(folder / "Data");
  std::ofstream(folder / "Data/Personal.mdb").flush();
  CardDesk desk(folder.path());
  EXPECT_TRUE(desk.host.errors.empty());
  desk.newPatient("Ali Can", "1980");
  EXPECT_EQ(desk.stored(), std::vector<std::string>{"Ali Can"});
}

TEST_F(Card, OddTextsComeBackAsTheyWere) {
  const std::string odd[] = {
      "'; DROP TABLE IDCard; --", "a\"b'c", "tab\tand\x02control", "emoji 😀 ß", "% _ * ? #",
      std::string("nul\0byte", 8)};
  int number = 0;
  for (const std::string& text : odd) {
    const std::string name = "Hasta " + std::to_string(number++);
    desk.newPatient(name, "1980");
    for (forms::TextBox* field : {&main.txtnot, &main.TxtAdres1, &main.TxtKimlikNo})
      field->setText(text);
    main.mnukaydet.press();
    main.mnuyeni.Click();
    desk.load(name);
    EXPECT_EQ(main.txtnot.text(), text);
    EXPECT_EQ(main.TxtAdres1.text(), text);
  }
  main.mnuyeni.Click();
  desk.newPatient("O'Neil \"Ş\" *", "1980");
  desk.load("O'Neil \"Ş\" *");
  EXPECT_EQ(main.TxtEskiİsim.text(), "O'Neil \"Ş\" *");
}

TEST_F(Card, AValueWiderThanItsListStaysOnTheCard) {
  desk.newPatient("Ali Can", "1980");
  const std::string company(70, 'k');
  main.ComKurum.setText(company);
  main.mnukaydet.press();
  EXPECT_EQ(desk.column("Ali Can", "Company"), company);
  EXPECT_FALSE(main.mnukaydet.enabled());
}

}  // namespace

#include "shell/font_record.h"

#include <gtest/gtest.h>

#include <fstream>

#include "tests/support/practice.h"

namespace {

const forms::Font arial{.name = "Arial",
                        .size = 14,
                        .bold = true,
                        .italic = false,
                        .underline = true,
                        .strikethrough = false,
                        .colour = 0x102030};

struct OpenDesk : support::Desk {
  explicit OpenDesk(const std::string& folder) : Desk(folder) {
    std::filesystem::create_directories(folder + "/Data");
    EXPECT_TRUE(stores::OpenStores(station.stores).ok());
  }
};

TEST(FontRecord, ComesBackToTheFormThatWroteIt) {
  const support::TemporaryFolder folder;
  OpenDesk desk(folder.path());
  forms::Form exam("FrmExam");
  exam.setFont(arial);
  ASSERT_TRUE(setkayityaz(desk.station, exam, 9).ok());
  forms::Form again("FrmExam");
  Setkayitlarioku(desk.station, again, 9);
  EXPECT_EQ(again.font(), arial);
}

TEST(FontRecord, OfAnotherFormIsNotApplied) {
  const support::TemporaryFolder folder;
  OpenDesk desk(folder.path());
  forms::Form report("FrmRad");
  report.setFont(arial);
  ASSERT_TRUE(setkayityaz(desk.station, report, 9).ok());
  forms::Form exam("FrmExam");
  Setkayitlarioku(desk.station, exam, 9);
  EXPECT_EQ(exam.font(), forms::Font());
  Setkayitlarioku(desk.station, exam, 400);  // beyond the end
  EXPECT_EQ(exam.font(), forms::Font());
}

TEST(FontRecord, ThatIsNoneIsPassedOver) {
  const support::TemporaryFolder folder;
  std::filesystem::create_directories(folder / "Data");
  std::ofstream(folder / "Data/setting.dat") << std::string(1000, '\xff');
  OpenDesk desk(folder.path());
  forms::Form exam("FrmExam");
  for (const int record : {1, 2, 3, 4, 5}) Setkayitlarioku(desk.station, exam, record);
  EXPECT_EQ(exam.font(), forms::Font());
}

}  // namespace

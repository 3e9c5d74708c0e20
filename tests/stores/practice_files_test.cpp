// The pictures and papers of a practice in its backup.
#include "stores/practice_files.h"

#include <algorithm>

#include "stores/backup.h"
#include "stores/restore_drill.h"
#include "tests/stores/stores_fixture.h"

namespace stores {
namespace {

namespace fs = std::filesystem;
using Names = std::vector<std::string>;

Names namesOf(const std::vector<PracticeFile>& files) {
  Names names;
  for (const PracticeFile& file : files) names.push_back(file.name.string());
  std::ranges::sort(names);
  return names;
}

class PracticeFilesTest : public StoresTest {
 protected:
  void SetUp() override {
    open();
    for (const char* name : {"Documents/Simples", "Image/2026", "Backup", "elsewhere"})
      fs::create_directories(folder_ / name);
    write("Data/Baslik.rtf", "{\\rtf1 Dr. Ayşe}");
    write("Data/List.dat", std::string(30, ' '));
    write("Documents/Simples/eko.rtf", "{\\rtf1 Eko}");
    write("Image/2026/röntgen.jpg", std::string(200'000, '\xff'));
    write("elsewhere/private.txt", "not of the practice");
  }
  void write(const char* name, const std::string& content) { writeBytes(folder_ / name, content); }
  // As if the file had been changed that much later; nobody waits for the clock.
  void age(const char* name, std::chrono::hours by) {
    fs::last_write_time(folder_ / name, fs::last_write_time(folder_ / name) + by);
  }
  FileCopies copies() {
    FileCopies done;
    EXPECT_TRUE(backUpFiles(folder_.path(), backup_, done));
    return done;
  }

  std::string backup_ = folder_ / "Backup";
  const Names all_{"Data/Baslik.rtf", "Data/List.dat", "Data/setting.dat",
                   "Documents/Simples/eko.rtf", "Image/2026/röntgen.jpg"};
};

TEST_F(PracticeFilesTest, AreCopiedOnceAndAgainWhenTheyChange) {
  EXPECT_EQ(copies().copied, 5);
  EXPECT_EQ(namesOf(practiceFiles(folder_ / "Backup/Files")), all_);
  EXPECT_EQ(bytesOf(folder_ / "Backup/Files/Image/2026/röntgen.jpg"), std::string(200'000, '\xff'));
  EXPECT_EQ(copies().copied, 0) << "nothing has changed";
  write("Documents/Simples/eko.rtf", "{\\rtf1 Başka}");
  write("Data/List.dat", std::string(30, 'x'));
  age("Data/List.dat", std::chrono::hours{-1000});  // put back from elsewhere
  EXPECT_EQ(copies().copied, 2);
  EXPECT_EQ(bytesOf(folder_ / "Backup/Files/Documents/Simples/eko.rtf"), "{\\rtf1 Başka}");
  fs::remove(folder_ / "Data/Baslik.rtf");
  copies();
  EXPECT_EQ(namesOf(practiceFiles(folder_ / "Backup/Files")), all_) << "nothing is taken out";
}

TEST_F(PracticeFilesTest, LinksLeadNobodyOutOfThePractice) {
  fs::create_directory_symlink(folder_ / "elsewhere", folder_ / "Image/out");
  fs::create_symlink(folder_ / "elsewhere/private.txt", folder_ / "Documents/out.txt");
  backup_ = folder_ / "Image/Backup";  // not into itself
  copies();
  EXPECT_EQ(copies().copied, 0);
  EXPECT_EQ(namesOf(practiceFiles(backup_ + "/Files")), all_);
  fs::remove_all(backup_ + "/Files/Image");
  fs::create_directory_symlink(folder_ / "elsewhere", backup_ + "/Files/Image");
  const FileCopies refused = copies();
  EXPECT_EQ(refused.failed, 1);
  EXPECT_EQ(refused.fault.fault(), dao::Fault::Unsupported);
  EXPECT_FALSE(fs::exists(folder_ / "elsewhere/2026"));
}

TEST_F(PracticeFilesTest, OneThatCannotBeCopiedDoesNotHoldUpTheOthersAndStoppingKeepsWhatIsThere) {
  fs::create_directories(folder_ / "Backup/Files/Documents/Simples/eko.rtf/in the way");
  const FileCopies done = copies();
  EXPECT_EQ(done.copied, 4);
  EXPECT_EQ(done.failed, 1);
  EXPECT_FALSE(done.fault.ok());
  fs::remove_all(folder_ / "Backup/Files");
  FileCopies begun;
  std::int64_t last = 0;
  const auto untilHalf = [&](std::int64_t bytes, std::int64_t total) {
    EXPECT_GE(bytes, last);
    return (last = bytes) < total / 2;
  };
  EXPECT_FALSE(backUpFiles(folder_.path(), backup_, begun, untilHalf));
  EXPECT_FALSE(fs::exists(folder_ / "Backup/Files/Image/2026/röntgen.jpg")) << "half a picture";
  EXPECT_FALSE(fs::exists(folder_ / "Backup/Files/Image/2026/röntgen.jpg.part"));
  EXPECT_EQ(begun.copied + copies().copied, 5) << "the next one goes on";
}

TEST_F(PracticeFilesTest, AreTheSameOlderOrNewerElsewhere) {
  copies();
  fs::remove(folder_ / "Data/Baslik.rtf");
  age("Documents/Simples/eko.rtf", std::chrono::hours{1});
  age("Image/2026/röntgen.jpg", std::chrono::hours{-1});
  const auto found =
      compareFiles(practiceFiles(folder_ / "Backup/Files"), fs::path(folder_.path()));
  EXPECT_EQ(namesOf(found.missing), Names{"Data/Baslik.rtf"});
  EXPECT_EQ(namesOf(found.newer), Names{"Documents/Simples/eko.rtf"});
  EXPECT_EQ(namesOf(found.older), Names{"Image/2026/röntgen.jpg"});
  FileCopies back;
  ASSERT_TRUE(copyFiles(folder_ / "Backup/Files", folder_.path(), found.missing, back));
  EXPECT_EQ(bytesOf(folder_ / "Data/Baslik.rtf"), "{\\rtf1 Dr. Ayşe}");
}

TEST_F(PracticeFilesTest, PicturesOfRecordsElsewhereAreCountedOnce) {
  dao::Recordset& exams = stores_.clinical.PhysicalExam;
  for (int number = 1; number <= 2; ++number)
    ASSERT_TRUE(exams.AddNew() && exams.Fields("Count").Set(number) &&
                exams.Fields("Picture1").Set(folder_ / "Image/2026/röntgen.jpg") &&
                exams.Fields("Picture2").Set("/media/stick/a.jpg") &&
                exams.Fields("Mov").Set(folder_ / "Image/../elsewhere/b.avi") && exams.Update());
  EXPECT_EQ(picturesElsewhere(folder_.path()).value_or(-1), 2);
}

TEST_F(PracticeFilesTest, TheDrillTellsTheirNumber) {
  ASSERT_TRUE(backUp(folder_.path(), backup_, storeKinds));
  copies();
  EXPECT_EQ(restoreDrill(backup_, folder_.path())->files, 5);
}

}  // namespace
}  // namespace stores

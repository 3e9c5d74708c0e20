// The pictures and papers of a practice in its backup.
#include "stores/practice_files.h"

#include <algorithm>
#include <chrono>
#include <tuple>

#include "stores/backup.h"
#include "stores/file_list.h"
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

  // Files, damaged, missing.
  using Numbers = std::tuple<std::int64_t, std::int64_t, std::int64_t>;
  Numbers drilled() {
    const FileCheck check = restoreDrill(backup_, folder_.path())->files;
    return {check.files, check.damaged, check.missing};
  }

  std::string backup_ = folder_ / "Backup";
  const std::string list_ = folder_ / "Backup/Files/checksums.txt";
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
  ASSERT_TRUE(restoreFiles(backup_, folder_.path(), found.missing, back));
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

TEST_F(PracticeFilesTest, TheDrillTellsHowManyAreDamagedOrMissing) {
  ASSERT_TRUE(backUp(folder_.path(), backup_, storeKinds));
  copies();
  EXPECT_EQ(drilled(), Numbers(5, 0, 0));
  write("Backup/Files/Data/Baslik.rtf", "{\\rtf1 brokenXX}");  // as long as it was
  write("Backup/Files/Data/List.dat", "cut off");
  fs::remove(folder_ / "Backup/Files/Documents/Simples/eko.rtf");
  EXPECT_EQ(drilled(), Numbers(4, 2, 1));
  int blocks = 0;
  EXPECT_FALSE(checkFiles(backup_, [&](auto, auto) { return ++blocks < 1; }));
  EXPECT_EQ(blocks, 1) << "stopped";
  fs::remove(list_);
  EXPECT_EQ(drilled(), Numbers(4, 0, 0)) << "of a backup without the list they are counted";
}

TEST_F(PracticeFilesTest, ADamagedCopyIsMadeAnewAndNeverRestored) {
  copies();
  const auto keepTime = fs::last_write_time(folder_ / "Backup/Files/Data/Baslik.rtf");
  write("Backup/Files/Data/Baslik.rtf", "{\\rtf1 brokenXX}");
  // Within what counts as the same time.
  fs::last_write_time(folder_ / "Backup/Files/Data/Baslik.rtf",
                      keepTime + std::chrono::milliseconds{500});
  fs::last_write_time(folder_ / "Backup/Files/Data/List.dat",
                      fs::last_write_time(folder_ / "Data/List.dat") + std::chrono::seconds{1});
  FileCopies back;
  fs::remove(folder_ / "Data/Baslik.rtf");
  ASSERT_TRUE(restoreFiles(backup_, folder_.path(), practiceFiles(folder_ / "Backup/Files"), back));
  EXPECT_EQ(back.copied, 4);
  EXPECT_EQ(back.failed, 1);
  EXPECT_EQ(back.fault.fault(), dao::Fault::Damaged);
  EXPECT_FALSE(fs::exists(folder_ / "Data/Baslik.rtf"));
  write("Data/Baslik.rtf", "{\\rtf1 Dr. Ayşe}");
  fs::last_write_time(folder_ / "Data/Baslik.rtf", keepTime);
  EXPECT_EQ(copies().copied, 1) << "the untouched and the sound stay";
  EXPECT_EQ(bytesOf(folder_ / "Backup/Files/Data/Baslik.rtf"), "{\\rtf1 Dr. Ayşe}");
  EXPECT_EQ(checkFiles(backup_)->damaged, 0);
}

// Neither a stopped backup nor one that was killed makes a sound file look damaged.
TEST_F(PracticeFilesTest, ABrokenOffBackupListsWhatIsThere) {
  copies();
  write("Data/Baslik.rtf", "{\\rtf1 Dr. Ayşe Yılmaz}");
  write("Image/2026/röntgen.jpg", std::string(3'000'000, '\xfe'));
  const auto meanwhile = [&](std::int64_t done, std::int64_t) {
    EXPECT_EQ(bytesOf(list_).find("Baslik"), std::string::npos) << "it is being replaced";
    return done < 1'000'000;
  };
  FileCopies begun;
  EXPECT_FALSE(backUpFiles(folder_.path(), backup_, begun, meanwhile));
  EXPECT_EQ(begun.copied, 1);
  EXPECT_EQ(checkFiles(backup_)->damaged + checkFiles(backup_)->missing, 0);
  EXPECT_NE(bytesOf(list_).find(" Image/2026/röntgen.jpg\n"), std::string::npos) << "the old one";
  EXPECT_EQ(copies().copied, 1);
}

TEST_F(PracticeFilesTest, LinesOfTheListThatAreNoneArePassedOver) {
  copies();
  const std::string sound = bytesOf(list_);
  const std::string sum = "00000000000000aa ";
  for (const std::string& line :
       {sum + "1 1 /etc/passwd", sum + "1 1 Image/../../private.txt", sum + "-1 1 Image/a",
        sum + "99999999999999999999 1 Image/a", "f" + sum + "1 1 Image/a", sum + "1 1 ",
        sum + "1 Image/a", std::string("words"), sum + "1 1 " + std::string(5000, 'a')}) {
    writeBytes(list_, line + "\n" + sound + sum + "1 1 Image/cut");
    EXPECT_EQ(readFileList(folder_ / "Backup/Files").size(), 5U) << line.substr(0, 60);
  }
  write("Backup/Files/checksums.txt", sound);
  fs::resize_file(list_, std::uintmax_t{1} << 30U);  // takes no room on the disk
  EXPECT_EQ(checkFiles(backup_)->files, 5);
  fs::remove(list_);
  fs::create_symlink(folder_ / "elsewhere/private.txt", list_);
  EXPECT_EQ(copies().copied, 5) << "what no list tells of is not trusted";
  EXPECT_EQ(bytesOf(folder_ / "elsewhere/private.txt"), "not of the practice");
}

}  // namespace
}  // namespace stores

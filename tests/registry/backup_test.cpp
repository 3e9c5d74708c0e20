// The backup screen, the backup at exit and the restore, as the user meets them.
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <functional>

#include "shell/backup.h"
#include "shell/frm_option.h"
#include "shell/frm_save.h"
#include "shell/restore.h"
#include "shell/store_check.h"
#include "stores/backup.h"
#include "stores/contents.h"
#include "stores/smoking_store.h"
#include "tests/registry/card_fixture.h"

namespace {

namespace fs = std::filesystem;
using support::Card;

struct Backup : Card {
  Backup() {
    desk.host.modal["frmprogress"] = [this](forms::Form&) { desk.host.runTasks(); };
    desk.station.ayarYaz("BackUp", folder / "Copies");
    fs::create_directory(folder / "Copies");
  }
  void save(std::string_view name) { desk.newPatient(name, "1980"); }
  [[nodiscard]] std::int64_t cards() { return desk.station.stores.personal.IDCard.RecordCount(); }
  [[nodiscard]] bool has(const char* file) const { return fs::exists(folder / file); }
};

TEST_F(Backup, TheFirstOneAtExitMakesItsFolderAndRemembersIt) {
  ASSERT_TRUE(stores::CreateSmokingStore(desk.station.UygYolu));
  desk.station.ayarYaz("BackUp", "");
  EXPECT_TRUE(main.QueryUnload());
  EXPECT_FALSE(has("Backup")) << "nobody asked for it";
  desk.station.ayarYaz("closebackup", "1");
  EXPECT_TRUE(main.QueryUnload());
  EXPECT_EQ(desk.station.ayar("BackUp"), desk.station.dosya("Backup/"));
  EXPECT_TRUE(has("Backup/Personal.mdb") && has("Backup/Sanavel.mdb") && has("Backup/Smoke.mdb"));
  desk.station.ayarYaz("BackUp", folder / "pulled out");
  EXPECT_TRUE(main.QueryUnload());
  EXPECT_EQ(desk.station.ayar("BackUp"), desk.station.dosya("Backup/"));
}

// A file stands where the copy is to go: the reason is told, and the answer decides; the question
// about the card comes all the same.
TEST_F(Backup, AFailureAtExitIsToldAndAsksBeforeTheSaveQuestion) {
  desk.station.ayarYaz("closebackup", "1");
  fs::create_directories(folder / "Copies/Personal.mdb/in the way");
  main.Txtİsim.setText("Ayşe Ak");
  main.TxtDTarihi.setText("1980");
  desk.host.expect("Program yedek almadan kapatılsın mı?", host::Answer::No);
  EXPECT_FALSE(main.QueryUnload());
  desk.host.expect("Yedek alınamadı", host::Answer::Yes);
  desk.host.expect("Kayıt yapılsın mı?", host::Answer::Yes);
  EXPECT_TRUE(main.QueryUnload());
  EXPECT_EQ(cards(), 1);
}

TEST_F(Backup, TheScreenBacksUpIntoTheOpenFolderButNeverIntoTheStores) {
  shell::FrmSave screen(desk.station);
  screen.Load();
  EXPECT_EQ(screen.LDizin.caption(), folder / "Copies");
  EXPECT_EQ(screen.LDosyalar.caption(), "Personal.mdb\nSanavel.mdb");
  EXPECT_EQ(screen.Lsonyedek.caption(), "henüz yok");
  screen.ButYedekle.press();
  EXPECT_TRUE(has("Copies/Personal.mdb") && has("Copies/Sanavel.mdb"));
  EXPECT_NE(screen.Lsonyedek.caption().find("Sanavel.mdb"), std::string::npos);
  fs::create_directory_symlink(folder / "Data", folder / "link");
  for (const char* data : {"Data", "Copies/../Data", "link"}) {
    ASSERT_TRUE(screen.klasoreGec(folder / data));
    EXPECT_FALSE(screen.ButYedekle.enabled()) << data;
  }
  screen.tbToolBar.press("dosyaon");
  EXPECT_TRUE(screen.ButYedekle.enabled());
  screen.Dir1.setListIndex(0);
  screen.Dir1.DblClick();
  screen.buttamam.press();
  EXPECT_EQ(desk.station.ayar("BackUp"), folder / "Copies/");
}

// A store that was emptied, replaced, damaged, taken away or shrunken is no new practice.
TEST_F(Backup, AStartOffersTheBackupOfAStoreThatLostItsRecords) {
  for (const char* name : {"Ayşe Ak", "Burak Ak", "Ceren Ak"}) save(name);
  ASSERT_TRUE(shell::yedekle(desk.station, folder / "Copies"));
  const fs::path store = folder / "Data/Personal.mdb";
  const fs::path sound = folder / "sound";
  stores::CloseStores(desk.station.stores);
  fs::copy_file(store, sound);
  const auto keptFiles = [&] {
    return std::ranges::count_if(fs::directory_iterator(store.parent_path()),
                                 [](const auto& at) { return at.path().extension() == ".kept"; });
  };
  const std::pair<const char*, std::function<void()>> cases[] = {
      {"Personal.mdb boş", [&] { std::ofstream(store, std::ios::trunc); }},
      {"Personal.mdb boş",
       [&] {
         fs::copy_file(folder / "Data/Sanavel.mdb", store, fs::copy_options::overwrite_existing);
       }},
      {"Personal.mdb bozuk", [&] { std::ofstream(store) << std::string(9000, 'x'); }},
      {"Personal.mdb yerinde yok", [&] { fs::remove(store); }},
      {"Personal.mdb dosyasında 0 kayıt var; yedeğinde 3", [&] {
         auto database = dao::OpenDatabase(store).value();
         ASSERT_TRUE(database.Execute("DELETE FROM IDCard"));
       }}};
  for (const auto& [said, spoil] : cases) {
    SCOPED_TRACE(said);
    for (const auto answer : {host::Answer::No, host::Answer::Yes}) {
      fs::copy_file(sound, store, fs::copy_options::overwrite_existing);
      spoil();
      const auto before = keptFiles();
      desk.station.ayarYaz("Fewer Personal.mdb", "");
      desk.host.expect(said, host::Answer::Ok);
      shell::depolariDenetle(desk.station, false);
      EXPECT_EQ(keptFiles(), before) << "others are here: nothing is touched";
      desk.host.expect(said, answer);
      const bool useless = std::string_view(said) == "Personal.mdb boş";
      const bool kept = answer == host::Answer::Yes ? fs::exists(store) : useless;
      if (kept) desk.host.expect("adıyla saklandı", host::Answer::Ok);
      shell::depolariDenetle(desk.station, true);
      EXPECT_EQ(keptFiles(), before + (kept ? 1 : 0));
      if (answer == host::Answer::No) continue;
      shell::depolariDenetle(desk.station, true);  // nothing is left to ask
      ASSERT_TRUE(stores::OpenStores(desk.station.stores));
      EXPECT_EQ(cards(), 3);
      stores::CloseStores(desk.station.stores);
    }
  }
  shell::depolariDenetle(desk.station, true);
  // A first start, and one without a backup.
  fs::remove_all(folder / "Copies");
  fs::remove(store);
  shell::depolariDenetle(desk.station, true);
}

TEST_F(Backup, OneThatHoldsMoreIsReplacedOnlyWhenTheUserSaysSo) {
  for (const char* name : {"Ayşe Ak", "Burak Ak"}) save(name);
  desk.station.ayarYaz("closebackup", "1");
  EXPECT_TRUE(main.QueryUnload());
  ASSERT_TRUE(desk.station.stores.personal.database.Execute("DELETE FROM IDCard"));
  desk.host.expect("Personal.mdb dosyasında 0 kayıt var; yerine yazılacak yedekte 2",
                   host::Answer::No);
  EXPECT_TRUE(main.QueryUnload());
  const auto held = [&](const fs::path& backup) {
    return stores::contentsOf(backup).at("Personal.mdb");
  };
  EXPECT_EQ(held(folder / "Copies"), 2);
  EXPECT_EQ(std::ranges::count_if(fs::directory_iterator(folder / "Copies"),
                                  [](const auto& at) { return at.is_directory(); }),
            2)
      << "the new one and the files lie beside it";
  desk.host.expect("Personal.mdb dosyasında 0", host::Answer::Yes);
  EXPECT_TRUE(main.QueryUnload());
  EXPECT_EQ(held(folder / "Copies"), 0);
  EXPECT_EQ(held(folder / "Copies/Backup 1"), 2);
}

TEST_F(Backup, TakesPicturesAndPapersAlongAndTellsWhatStaysOut) {
  fs::create_directory(folder / "Image");
  std::ofstream(folder / "Image/a.jpg") << "picture";
  auto& exams = desk.station.stores.clinical.PhysicalExam;
  ASSERT_TRUE(exams.AddNew() && exams.Fields("Count").Set(1) &&
              exams.Fields("Picture1").Set("/media/stick/b.jpg") && exams.Update());
  shell::FrmSave screen(desk.station);
  screen.Load();
  EXPECT_EQ(screen.buttamam.caption(), "Kapat");
  desk.host.expect("1 resim Image ve Documents klasörlerinin dışında", host::Answer::Ok);
  screen.ButYedekle.press();
  EXPECT_TRUE(has("Copies/Files/Image/a.jpg"));
  EXPECT_NE(screen.Lsonyedek.caption().find("Resimler ve belgeler: "), std::string::npos);
  fs::remove(folder / "Copies/Files/Image/a.jpg");
  fs::create_directories(folder / "Copies/Files/Image/a.jpg/in the way");
  desk.station.ayarYaz("closebackup", "1");
  desk.host.expect("1 resim veya belge kopyalanamadı", host::Answer::No);
  EXPECT_FALSE(main.QueryUnload());
}

TEST_F(Backup, FoldersAreMadeAndOnlyEmptyOnesRemoved) {
  shell::FrmSave screen(desk.station);
  screen.Load();
  desk.host.inputs = {"Yeni"};
  screen.tbToolBar.press("dosyaac");
  EXPECT_EQ(screen.LDizin.caption(), folder / "Copies/Yeni");
  for (const char* name : {"../elsewhere", "/elsewhere", ".."}) {
    desk.host.inputs = {name};
    desk.host.expect("yapılamıyor", host::Answer::Ok);
    screen.tbToolBar.press("dosyaac");
  }
  EXPECT_FALSE(has("Copies/elsewhere"));
  desk.host.expect("Yeni silinsin mi?", host::Answer::No);
  screen.tbToolBar.press("delete");
  EXPECT_TRUE(has("Copies/Yeni"));
  std::ofstream(folder / "Copies/Yeni/file") << "x";
  desk.host.expect("Yeni silinsin mi?", host::Answer::Yes);
  desk.host.expect("boş olmadığı", host::Answer::Ok);
  screen.tbToolBar.press("delete");
  fs::remove(folder / "Copies/Yeni/file");
  desk.host.expect("Yeni silinsin mi?", host::Answer::Yes);
  screen.tbToolBar.press("delete");
  EXPECT_FALSE(has("Copies/Yeni"));
  EXPECT_EQ(screen.LDizin.caption(), folder / "Copies");
}

TEST_F(Backup, APlaceThatIsNotReadySaysSoAndTheRootIsOpenedInstead) {
  shell::FrmSave screen(desk.station);
  screen.Load();
  screen.Drive1.addItem(folder / "pulled out");
  desk.host.expect("Erişilemez", host::Answer::Ok);
  screen.Drive1.setText(folder / "pulled out");
  screen.Drive1.setListIndex(static_cast<int>(screen.Drive1.items().size()) - 1);
  screen.Drive1_Change();
  EXPECT_EQ(screen.LDizin.caption(), "/");
}

struct Restore : Backup {
  Restore() {
    EXPECT_TRUE(stores::CreateSmokingStore(desk.station.UygYolu));
    save("Ayşe Ak");
    EXPECT_TRUE(stores::backUp(desk.station.UygYolu, folder / "Copies", stores::storeKinds));
    save("Burak Öz");
    std::ofstream(folder / "Data/Smoke.mdb") << "";
  }
  void answer(host::Answer personal, host::Answer clinical) {
    desk.host.expect("'Personal.mdb' ", personal);
    desk.host.expect("'Sanavel.mdb' ", clinical);
  }
  [[nodiscard]] bool smokingIsBack() {
    return stores::checkCopy(folder / "Data/Smoke.mdb", stores::smokingKind).ok();
  }
};

TEST_F(Restore, BringsTheStoresBackAndEmptiesTheCard) {
  answer(host::Answer::Yes, host::Answer::Yes);
  main.mnugeriyukle.press();
  EXPECT_EQ(cards(), 1);
  EXPECT_TRUE(smokingIsBack());
  EXPECT_EQ(main.Txtİsim.text() + desk.station.SeciliHasta, "");
  EXPECT_FALSE(main.mnukaydet.enabled());
  EXPECT_TRUE(desk.host.errors.empty());
  for (const auto& entry : fs::directory_iterator(folder / "Data"))
    EXPECT_NE(entry.path().extension(), ".old");
  const std::string& question = desk.host.asked.front().text;
  EXPECT_EQ(std::ranges::count(question, '\n'), 3) << question;
}

TEST_F(Restore, BringsPicturesBackAndAsksBeforeItReplacesNewerOnes) {
  fs::create_directories(folder / "Copies/Files/Image");
  fs::create_directory(folder / "Image");
  const auto write = [&](const std::string& name, const char* content, int hours) {
    std::ofstream(folder / name.c_str()) << content;
    fs::last_write_time(folder / name.c_str(),
                        fs::file_time_type::clock::now() + std::chrono::hours{hours});
  };
  for (const char* name : {"a", "b", "c"})
    write(std::string("Copies/Files/Image/") + name, "backup", 0);
  write("Image/b", "older", -9);
  write("Image/c", "newer", 9);
  const auto contents = [&] {
    std::string all;
    for (const char* name : {"Image/a", "Image/b", "Image/c"}) {
      std::ifstream file(folder / name);
      all += std::string(std::istreambuf_iterator<char>(file), {}) + ",";
    }
    return all;
  };
  using host::Answer;
  const struct {
    Answer usual, newer;
    const char* contents;
  } cases[] = {{Answer::No, Answer::No, ",older,newer,"},
               {Answer::Yes, Answer::No, "backup,backup,newer,"}};
  for (const auto& c : cases) {
    answer(Answer::No, Answer::No);
    desk.host.expect("1 tanesi burada yok, 1 tanesi burada daha eski", c.usual);
    desk.host.expect("1 dosya yedeklendikten sonra burada değişmiş; biri: Image/c", c.newer);
    main.mnugeriyukle.press();
    EXPECT_EQ(contents(), c.contents);
    EXPECT_EQ(desk.host.asked.back().stake, host::Stake::Existing);
  }
  answer(Answer::No, Answer::No);
  desk.host.expect("Image/c", Answer::Yes);
  main.mnugeriyukle.press();
  EXPECT_EQ(contents(), "backup,backup,backup,");
  EXPECT_EQ(cards(), 2) << "the stores are open again";
}

TEST_F(Restore, NoAndNoReplaceTheSmokingStoreAlone) {
  answer(host::Answer::No, host::Answer::No);
  main.mnugeriyukle.press();
  EXPECT_EQ(cards(), 2);
  EXPECT_TRUE(smokingIsBack());
}

// All or nothing: a store that was replaced comes back when a later one cannot be.
TEST_F(Restore, ABackupThatCannotBeUsedChangesNothing) {
  fs::resize_file(folder / "Copies/Sanavel.mdb", 20'000);
  answer(host::Answer::Yes, host::Answer::Yes);
  desk.host.expect("Geri yükleme yapılmadı", host::Answer::Ok);
  main.mnugeriyukle.press();
  EXPECT_EQ(cards(), 2);
  EXPECT_FALSE(smokingIsBack());
  desk.host.expect("geri yüklenemez", host::Answer::Ok);
  main.mnuyedekdene.press();
}

TEST_F(Restore, FilesThatAreMissingAreNamedWithoutAQuestion) {
  for (const char* file : {"Personal.mdb", "Sanavel.mdb", "Smoke.mdb"})
    fs::remove(fs::path(folder / "Copies") / file);
  for (const auto& entry : {&main.mnugeriyukle, &main.mnuyedekdene}) {
    desk.host.expect("Personal.mdb\n dosyası bulunamadı.", host::Answer::Ok);
    desk.host.expect("Sanavel.mdb\n dosyası bulunamadı.", host::Answer::Ok);
    entry->press();
  }
  EXPECT_EQ(cards(), 2);
}

TEST_F(Restore, TheDrillTakesTheStoresThemselvesForNoBackup) {
  desk.station.ayarYaz("BackUp", folder / "Data");
  desk.host.expect("Personal.mdb\n dosyası bulunamadı.", host::Answer::Ok);
  desk.host.expect("Sanavel.mdb\n dosyası bulunamadı.", host::Answer::Ok);
  main.mnuyedekdene.press();
}

TEST_F(Restore, TheDrillTellsWhatWouldComeBackAndWhatIsDamaged) {
  desk.host.expect("1 hasta, 0 kayıt; son muayene: yok", host::Answer::Ok);
  main.mnuyedekdene.press();
  EXPECT_EQ(cards(), 2);
  fs::create_directories(folder / "Copies/Files/Image");
  std::ofstream(folder / "Copies/Files/Image/a.jpg") << "broken";
  std::ofstream(folder / "Copies/Files/checksums.txt")
      << "00000000000000aa 6 0 Image/a.jpg\n00000000000000aa 6 0 Image/b.jpg\n";
  desk.host.expect("Resim ve belge: 1; bunların 1 tanesi bozuk, ayrıca 1 tanesi eksik",
                   host::Answer::Ok);
  main.mnuyedekdene.press();
  answer(host::Answer::No, host::Answer::No);
  desk.host.expect("1 tanesi burada yok", host::Answer::Yes);
  desk.host.expect("1 resim veya belge geri getirilemedi. Bir dosya bozuk", host::Answer::Ok);
  main.mnugeriyukle.press();
  EXPECT_FALSE(fs::exists(folder / "Image/a.jpg"));
}

TEST_F(Restore, AnotherStationThatSavesKeepsEverythingAsItIs) {
  auto other = dao::OpenDatabase(folder / "Data/Personal.mdb");
  const auto saving = other->beginTransaction();
  desk.host.expect("başka bir istasyon", host::Answer::Ok);
  main.mnugeriyukle.press();
  EXPECT_EQ(cards(), 2);
}

TEST_F(Restore, AnotherStationThatIsOnlyOpenKeepsEverythingAsItIs) {
  support::Desk second(folder.path());
  registry::FrmMain idle(second.station);
  idle.Load();
  desk.host.expect("başka bir istasyon", host::Answer::Ok);
  main.mnugeriyukle.press();
  EXPECT_EQ(cards(), 2);
  idle.Unload();
}

}  // namespace

#include "shell/backup.h"

#include <filesystem>
#include <span>

#include "platform/files/folders.h"
#include "shell/background_work.h"
#include "shell/fault_words.h"
#include "shell/file_words.h"
#include "shell/text_lookup.h"
#include "stores/backup.h"
#include "stores/practice_files.h"

namespace shell {

namespace {

using Kinds = std::span<const stores::StoreKind>;

BackgroundResult yedekAl(Station& istasyon, const std::string& folder, Kinds kinds) {
  const auto others = istasyon.sicil.hasCompany() ? dao::Others::GoOn : dao::Others::Wait;
  return arkadaYap(istasyon, metinbul(istasyon, "Yedekle"),
                   [&, program = istasyon.UygYolu](const stores::Progress& progress) {
                     return stores::backUp(program, folder, kinds, progress, others);
                   });
}

// The pictures and papers, once the stores are safe.
struct FilesResult {
  BackgroundResult work;
  stores::FileCopies copies;
  std::int64_t elsewhere = 0;
};
FilesResult dosyalariAl(Station& istasyon, const std::string& folder) {
  FilesResult result;
  result.work =
      arkadaYap(istasyon, phrase(istasyon, Phrase::FilesBackup),
                [&result, folder, program = istasyon.UygYolu](const stores::Progress& progress) {
                  result.elsewhere = stores::picturesElsewhere(program).value_or(0);
                  return stores::backUpFiles(program, folder, result.copies, progress);
                });
  return result;
}

// Empty when every file is in the backup.
std::string eksikKalan(Station& istasyon, const FilesResult& result) {
  if (result.work.stopped) return phrase(istasyon, Phrase::FilesBackupStopped);
  if (!result.work.status)
    return phrase(istasyon, Phrase::FilesBackupFailed) + "\n" +
           nedeni(istasyon, result.work.status);
  if (result.copies.failed == 0) return {};
  return doldurulmus(istasyon, Phrase::FilesLeftOut,
                     {std::to_string(result.copies.failed), nedeni(istasyon, result.copies.fault)});
}

// Pictures that lie elsewhere are told only here: at the end nobody could do anything about them.
void dosyalariYedekle(Station& istasyon, const std::string& into) {
  const FilesResult result = dosyalariAl(istasyon, into);
  std::string told = eksikKalan(istasyon, result);
  if (result.elsewhere > 0) {
    if (!told.empty()) told += "\n\n";
    told += doldurulmus(istasyon, Phrase::PicturesElsewhere, {std::to_string(result.elsewhere)});
  }
  if (!told.empty()) istasyon.bilgi(told);
}

// Where to: the folder itself, or, where the user does not want its backup replaced by less, one of
// its own beside it.
std::string hedef(Station& istasyon, const std::string& folder, Kinds kinds) {
  const auto fewer = stores::fewerThanBackup(istasyon.UygYolu, folder, kinds);
  if (fewer.empty()) return folder;
  std::string question;
  for (const stores::FewerRecords& each : fewer)
    question += doldurulmus(istasyon, Phrase::FewerThanBackup,
                            {each.file, std::to_string(each.now), std::to_string(each.backup)}) +
                "\n";
  if (istasyon.confirmLoss(question + "\n" + phrase(istasyon, Phrase::ReplaceFuller)))
    return folder;
  return folder + dosyaDamgasi(istasyon.clock.now()) + "/";
}

std::string neOldu(Station& istasyon, const BackgroundResult& result) {
  if (result.stopped) return phrase(istasyon, Phrase::BackupStopped);
  return phrase(istasyon, Phrase::BackupFailed) + "\n" + nedeni(istasyon, result.status);
}

}  // namespace

std::string ayracla(std::string folder) {
  if (folder.empty() || folder.back() != '/') folder += '/';
  return folder;
}

std::string kendiYedekKlasoru(const Station& istasyon) {
  return istasyon.dosya("Backup/");
}

std::string yedekKlasoru(const Station& istasyon) {
  const std::string folder = istasyon.ayar(backupFolderSetting);
  return folder.empty() ? kendiYedekKlasoru(istasyon) : ayracla(folder);
}

std::string yazilacakYedekKlasoru(const Station& istasyon) {
  const std::string folder = istasyon.ayar(backupFolderSetting);
  std::error_code unreachable;
  const bool there = !folder.empty() && std::filesystem::is_directory(folder, unreachable);
  return there ? ayracla(folder) : kendiYedekKlasoru(istasyon);
}

std::string hazirYedekKlasoru(Station& istasyon) {
  const std::string folder = yazilacakYedekKlasoru(istasyon);
  // A folder that cannot be made is met again, with its reason, by the copying.
  files::createFolders(folder).ignore();
  istasyon.ayarYaz(backupFolderSetting, folder);
  return folder;
}

bool yedekle(Station& istasyon, const std::string& folder) {
  const Kinds kinds = Kinds(stores::storeKinds).first(2);
  const std::string into = hedef(istasyon, ayracla(folder), kinds);
  files::createFolders(into).ignore();
  const BackgroundResult result = yedekAl(istasyon, into, kinds);
  if (!result.status) {
    istasyon.mesaj(neOldu(istasyon, result), host::Buttons::Ok, host::Icon::Critical);
    return false;
  }
  istasyon.ayarYaz(backupFolderSetting, ayracla(folder));
  if (into != ayracla(folder)) istasyon.bilgi(doldurulmus(istasyon, Phrase::WrittenBeside, {into}));
  dosyalariYedekle(istasyon, ayracla(folder));
  return true;
}

bool cikistayedekle(Station& istasyon) {
  if (istasyon.ayar("closebackup", "0") == "0") return true;
  const std::string folder = hazirYedekKlasoru(istasyon);
  const std::string into = hedef(istasyon, folder, stores::storeKinds);
  files::createFolders(into).ignore();
  const BackgroundResult result = yedekAl(istasyon, into, stores::storeKinds);
  const std::string trouble = result.status ? eksikKalan(istasyon, dosyalariAl(istasyon, folder))
                                            : neOldu(istasyon, result);
  if (trouble.empty()) return true;
  const std::string question = trouble + "\n\n" + phrase(istasyon, Phrase::LeaveWithoutBackup);
  return istasyon.mesaj(question, host::Buttons::YesNo, host::Icon::Critical,
                        host::Stake::Existing) == host::Answer::Yes;
}

}  // namespace shell

#include "shell/restore.h"

#include <filesystem>
#include <vector>

#include "shell/background_work.h"
#include "shell/backup.h"
#include "shell/fault_words.h"
#include "shell/file_words.h"
#include "shell/station_register.h"
#include "shell/store_opening.h"
#include "shell/text_lookup.h"
#include "stores/backup.h"
#include "stores/practice_files.h"
#include "stores/restore.h"
#include "stores/restore_drill.h"

namespace shell {

namespace {

namespace fs = std::filesystem;

using stores::StoreKind;
using Kinds = std::vector<StoreKind>;
using Replaced = std::vector<stores::ReplacedStore>;

constexpr StoreKind asked[] = {stores::personalKind, stores::clinicalKind};

std::string satir(const std::optional<stores::FileState>& state) {
  return state ? tarihSaat(*state) + " (" + boyut(state->bytes) + ")" : "-";
}

// Its name, the date of the present file, that of the backup, and the question.
std::string soru(Station& istasyon, const StoreKind& kind, const stores::FileState& backup) {
  return "'" + std::string(kind.file) + "' \n" +
         satir(stores::stateOf(stores::dataFile(istasyon.UygYolu, kind))) + "\n" + satir(backup) +
         "\n" + metinbul(istasyon, "msgdosyadegis");
}

// A file that the backup lacks is not asked about.
Kinds istenenler(Station& istasyon, const fs::path& backup) {
  Kinds wanted;
  for (const StoreKind& kind : asked) {
    const auto state = stores::stateOf(backup / kind.file);
    if (state && istasyon.confirmLoss(soru(istasyon, kind, *state))) wanted.push_back(kind);
  }
  if (stores::stateOf(backup / stores::smokingKind.file)) wanted.push_back(stores::smokingKind);
  return wanted;
}

dao::Status hepsiniDegistir(const Kinds& wanted, const fs::path& program, const fs::path& backup,
                            const std::string& stamp, Replaced& replaced,
                            const stores::Progress& progress) {
  for (const StoreKind& kind : wanted) {
    auto store = stores::restoreStore(kind, program, backup, stamp, progress);
    if (!store) return store.error();
    replaced.push_back(std::move(*store));
  }
  return {};
}

// The old files come back as they were.
void geriAl(Station& istasyon, const Replaced& replaced) {
  for (const stores::ReplacedStore& store : replaced) {
    const dao::Status back = stores::putBack(store);
    if (!back) hataSoyle(istasyon, back);
  }
}

std::string neOldu(Station& istasyon, const BackgroundResult& result) {
  if (result.stopped) return phrase(istasyon, Phrase::RestoreStopped);
  return phrase(istasyon, Phrase::RestoreFailed) + "\n" + nedeni(istasyon, result.status);
}

// With the stores closed; they are open again at the end, the restored or the old ones.
BackgroundResult degistir(Station& istasyon, const Kinds& wanted, const fs::path& backup) {
  Replaced replaced;
  const std::string stamp = dosyaDamgasi(istasyon.clock.now());
  const auto work = [&, program = istasyon.UygYolu](const stores::Progress& progress) {
    return hepsiniDegistir(wanted, program, backup, stamp, replaced, progress);
  };
  BackgroundResult result = arkadaYap(istasyon, metinbul(istasyon, "geriyukle"), work);
  if (result.status) result.status = stores::OpenStores(istasyon.stores);
  if (result.status) {
    for (const stores::ReplacedStore& store : replaced) stores::forget(store);
    return result;
  }
  stores::CloseStores(istasyon.stores);
  geriAl(istasyon, replaced);
  depolariAc(istasyon);
  return result;
}

void eksikleriSoyle(Station& istasyon, const fs::path& backup) {
  for (const StoreKind& kind : asked) {
    if (stores::stateOf(backup / kind.file)) continue;
    istasyon.bilgi(std::string(kind.file) + "\n" + metinbul(istasyon, "msgdosyayok"));
  }
}

// A station that has a store open goes on with the file that was replaced, and loses what it saves:
// as long as this lives, no other one is here or comes in. Where there is no register, stations
// that are reading or writing are seen at least.
class Alone {
 public:
  explicit Alone(Station& istasyon)
      : register_(istasyon.sicil),
        held_(register_.isOpen() && register_.tryAlone() == true),
        granted_((held_ || !register_.isOpen()) && stores::unusedNow(istasyon.UygYolu)) {}
  Alone(const Alone&) = delete;
  Alone& operator=(const Alone&) = delete;
  ~Alone() {
    if (held_) register_.letIn();
  }

  [[nodiscard]] bool granted() const { return granted_; }

 private:
  StationRegister& register_;
  bool held_;
  bool granted_;
};

void yalnizDegil(Station& istasyon) {
  istasyon.mesaj(phrase(istasyon, Phrase::RestoreWantsAlone), host::Buttons::Ok,
                 host::Icon::Critical);
}

using Files = std::vector<stores::PracticeFile>;

// What the user wants back; a file that is newer here than in the backup has a question of its own.
Files istenenDosyalar(Station& istasyon, const fs::path& kept) {
  auto found = stores::compareFiles(stores::practiceFiles(kept), istasyon.UygYolu);
  const std::size_t missing = found.missing.size();
  const std::size_t older = found.older.size();
  Files wanted;
  if (missing + older > 0 &&
      istasyon.confirmLoss(doldurulmus(istasyon, Phrase::RestoreFiles,
                                       {std::to_string(missing), std::to_string(older)}))) {
    wanted = std::move(found.missing);
    wanted.insert(wanted.end(), found.older.begin(), found.older.end());
  }
  if (found.newer.empty()) return wanted;
  const std::string count = std::to_string(found.newer.size());
  const std::string first = found.newer.front().name.string();
  if (istasyon.confirmLoss(doldurulmus(istasyon, Phrase::RestoreNewerFiles, {count, first})))
    wanted.insert(wanted.end(), found.newer.begin(), found.newer.end());
  return wanted;
}

// One of them may be the file of font records, which is open as the stores are. True when they were
// closed for it.
bool dosyalariGeriYukle(Station& istasyon, const fs::path& backup) {
  const Files wanted = istenenDosyalar(istasyon, backup / stores::backupFilesFolder);
  if (wanted.empty()) return false;
  stores::CloseStores(istasyon.stores);
  stores::FileCopies copies;
  const auto work = [&, program = istasyon.UygYolu](const stores::Progress& progress) {
    return stores::restoreFiles(backup, program, wanted, copies, progress);
  };
  const BackgroundResult result = arkadaYap(istasyon, phrase(istasyon, Phrase::FilesBackup), work);
  depolariAc(istasyon);
  if (!result.status || copies.failed > 0) {
    const std::string left =
        std::to_string(wanted.size() - static_cast<std::size_t>(copies.copied));
    const dao::Status& fault = result.status ? copies.fault : result.status;
    istasyon.bilgi(doldurulmus(istasyon, Phrase::FilesNotRestored,
                               {left, result.stopped ? "" : nedeni(istasyon, fault)}));
  }
  return true;
}

bool eksiksiz(const stores::FileCheck& files) {
  return files.damaged == 0 && files.missing == 0;
}

std::string denemeSonucu(Station& istasyon, const stores::DrillReport& report,
                         const std::string& date) {
  const std::string last = report.lastExamination ? text::shortDate(*report.lastExamination)
                                                  : phrase(istasyon, Phrase::NothingFound);
  const stores::FileCheck& files = report.files;
  return doldurulmus(
      istasyon, eksiksiz(files) ? Phrase::DrillSound : Phrase::DrillFilesDamaged,
      {date, std::to_string(report.patients), std::to_string(report.records), last,
       std::to_string(files.files), std::to_string(files.damaged), std::to_string(files.missing)});
}

}  // namespace

bool mnugeriyukle_Click(Station& istasyon) {
  const fs::path backup = yedekKlasoru(istasyon);
  const Alone alone(istasyon);
  if (!alone.granted()) return yalnizDegil(istasyon), false;
  const Kinds wanted = istenenler(istasyon, backup);
  if (!wanted.empty()) {
    stores::CloseStores(istasyon.stores);
    const BackgroundResult result = degistir(istasyon, wanted, backup);
    if (!result.status)
      istasyon.mesaj(neOldu(istasyon, result), host::Buttons::Ok, host::Icon::Critical);
  }
  const bool files = dosyalariGeriYukle(istasyon, backup);
  eksikleriSoyle(istasyon, backup);
  return files || !wanted.empty();
}

void yedegiDene(Station& istasyon) {
  std::vector<fs::path> folders{yedekKlasoru(istasyon), kendiYedekKlasoru(istasyon)};
  // The stores themselves are no backup.
  if (stores::isDataFolder(istasyon.UygYolu, folders.front())) folders.erase(folders.begin());
  const auto backup = stores::newestBackup(folders);
  if (!backup) return eksikleriSoyle(istasyon, folders.front());
  const std::string date = tarihSaat(*stores::stateOf(*backup / stores::personalKind.file));
  stores::DrillReport report;
  const auto work = [&](const stores::Progress& progress) {
    std::error_code none;
    auto drilled = stores::restoreDrill(*backup, fs::temp_directory_path(none), progress);
    if (drilled) report = *drilled;
    return drilled ? dao::Status() : drilled.error();
  };
  const BackgroundResult result = arkadaYap(istasyon, phrase(istasyon, Phrase::RestoreDrill), work);
  if (result.stopped) return;
  if (result.status && eksiksiz(report.files))
    return istasyon.bilgi(denemeSonucu(istasyon, report, date));
  const std::string told = result.status ? denemeSonucu(istasyon, report, date)
                                         : doldurulmus(istasyon, Phrase::DrillFailed,
                                                       {date, nedeni(istasyon, result.status)});
  istasyon.mesaj(told, host::Buttons::Ok, host::Icon::Critical);
}

}  // namespace shell

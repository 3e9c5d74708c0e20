#include "shell/store_check.h"

#include <array>
#include <filesystem>
#include <string>
#include <vector>

#include "shell/background_work.h"
#include "shell/backup.h"
#include "shell/fault_words.h"
#include "shell/file_words.h"
#include "shell/text_lookup.h"
#include "stores/restore.h"
#include "stores/standing.h"

namespace shell {

namespace {

namespace fs = std::filesystem;
using stores::Finding;
using stores::Standing;

std::vector<fs::path> yedekler(const Station& istasyon) {
  std::vector<fs::path> folders = stores::withOlder(yedekKlasoru(istasyon));
  if (yedekKlasoru(istasyon) != kendiYedekKlasoru(istasyon)) {
    for (fs::path& folder : stores::withOlder(kendiYedekKlasoru(istasyon)))
      folders.push_back(std::move(folder));
  }
  return folders;
}

std::string neOlmus(Station& istasyon, const Finding& finding) {
  const std::string file(finding.kind.file);
  switch (finding.standing) {
    case Standing::Missing:
      return doldurulmus(istasyon, Phrase::StoreVanished, {file});
    case Standing::Useless:
      return doldurulmus(istasyon, Phrase::StoreEmptied, {file});
    case Standing::Damaged:
      return doldurulmus(istasyon, Phrase::StoreDamaged, {file});
    case Standing::Fewer:
      return doldurulmus(istasyon, Phrase::StoreShrunken,
                         {file, std::to_string(finding.rows), std::to_string(finding.backupRows)});
    case Standing::Good:
      break;
  }
  return {};
}

// An answer counts until something is different.
class Answered {
 public:
  Answered(Station& istasyon, const Finding& finding)
      : istasyon_(istasyon),
        key_("Fewer " + std::string(finding.kind.file)),
        value_(std::to_string(finding.backupRows) + " " + finding.backup.string()) {}

  [[nodiscard]] bool already() const { return istasyon_.ayar(key_) == value_; }
  void remember() { istasyon_.ayarYaz(key_, value_); }

 private:
  Station& istasyon_;
  std::string key_;
  std::string value_;
};

class Denetim {
 public:
  Denetim(Station& istasyon, Finding finding)
      : istasyon_(istasyon),
        finding_(std::move(finding)),
        said_(neOlmus(istasyon, finding_)),
        stamp_(dosyaDamgasi(istasyon.clock.now())) {}

  void run(bool alone) {
    if (!alone) return istasyon_.bilgi(said_ + "\n" + phrase(istasyon_, Phrase::StoresInUse));
    if (finding_.backup.empty()) return yedeksiz();
    Answered answered(istasyon_, finding_);
    const bool fewer = finding_.standing == Standing::Fewer;
    if (fewer && answered.already()) return;
    if (istenir(fewer)) return yedegiKoy();
    if (fewer) answered.remember();
    if (finding_.standing == Standing::Useless) istasyon_.bilgi(kenaraKoy());
  }

 private:
  bool istenir(bool fewer) {
    const std::string question =
        said_ + "\n\n" +
        doldurulmus(istasyon_, Phrase::OfferBackup,
                    {tarihSaat(*finding_.backupState), std::to_string(finding_.backupRows),
                     finding_.backup.string()});
    return istasyon_.mesaj(question, host::Buttons::YesNo, host::Icon::Critical,
                           fewer ? host::Stake::Existing : host::Stake::None) == host::Answer::Yes;
  }

  // What becomes of the file that is in the way.
  std::string kenaraKoy() {
    if (finding_.standing == Standing::Missing) return {};
    const auto name = stores::moveAside(istasyon_.UygYolu, finding_.kind, stamp_);
    if (!name) return nedeni(istasyon_, name.error());
    kept_ = *name;
    return doldurulmus(istasyon_, Phrase::StoreKeptAs, {kept_});
  }

  void yedeksiz() {
    if (finding_.standing == Standing::Damaged) return;  // opening tells why
    std::string told = said_ + "\n" + phrase(istasyon_, Phrase::NoBackupFound);
    if (const std::string kept = kenaraKoy(); !kept.empty()) told += "\n" + kept;
    istasyon_.mesaj(told, host::Buttons::Ok, host::Icon::Critical);
  }

  void yedegiKoy() {
    const std::string told = kenaraKoy();
    const auto work = [&, program = istasyon_.UygYolu](const stores::Progress& progress) {
      const auto restored =
          stores::restoreStore(finding_.kind, program, finding_.backup, stamp_, progress);
      return restored ? dao::Status() : restored.error();
    };
    const BackgroundResult result = arkadaYap(istasyon_, metinbul(istasyon_, "geriyukle"), work);
    if (result.status) return told.empty() ? void() : istasyon_.bilgi(told);
    if (!kept_.empty()) {
      std::error_code error;
      const fs::path store = stores::dataFile(istasyon_.UygYolu, finding_.kind);
      fs::rename(store.parent_path() / kept_, store, error);
    }
    istasyon_.mesaj(
        phrase(istasyon_, Phrase::RestoreFailed) + "\n" + nedeni(istasyon_, result.status),
        host::Buttons::Ok, host::Icon::Critical);
  }

  Station& istasyon_;
  Finding finding_;
  std::string said_;
  std::string stamp_;
  std::string kept_;
};

}  // namespace

void depolariDenetle(Station& istasyon, bool alone) {
  const std::vector<fs::path> backups = yedekler(istasyon);
  for (const stores::StoreKind& kind : {stores::personalKind, stores::clinicalKind}) {
    Finding finding = stores::findStore(istasyon.UygYolu, kind, backups);
    if (finding.standing != Standing::Good) Denetim(istasyon, std::move(finding)).run(alone);
  }
}

}  // namespace shell

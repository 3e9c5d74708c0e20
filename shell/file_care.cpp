#include "shell/file_care.h"

#include <filesystem>
#include <string_view>

#include "platform/text/number.h"
#include "shell/fault_words.h"
#include "shell/frm_care.h"
#include "shell/phrases.h"
#include "shell/store_opening.h"
#include "stores/store_care.h"
#include "stores/store_kinds.h"

namespace shell {

namespace {

using stores::StoreCare;

constexpr std::int64_t perStore = 1000 / static_cast<std::int64_t>(stores::storeKinds.size());

std::string kilobytes(std::uintmax_t bytes) {
  return std::to_string((bytes + 1023) / 1024) + " KB";
}

std::string line(Station& istasyon, const std::string& file, const StoreCare& care) {
  if (!care.status)
    return file + phrase(istasyon, Phrase::CareLeft) + kisaNedeni(istasyon, care.status);
  const Phrase found = care.wasDamaged ? Phrase::CareMended : Phrase::CareSound;
  const std::string kept = care.kept.empty() ? "" : " (" + care.kept + ")";
  return file + phrase(istasyon, found) + kilobytes(care.before) + " > " + kilobytes(care.after) +
         kept;
}

// One run: the stores in their order, and a line for each.
class Run {
 public:
  explicit Run(Station& istasyon) : istasyon_(istasyon) {}

  void work(FrmCare& window);
  [[nodiscard]] const std::string& report() const { return report_; }

 private:
  void care(FrmCare& window, const stores::StoreKind& kind);

  Station& istasyon_;
  std::int64_t done_ = 0;
  std::string report_;
};

void Run::work(FrmCare& window) {
  care(window, stores::personalKind);
  care(window, stores::clinicalKind);
  stores::OpenStores(istasyon_.stores).ignore();
  care(window, stores::smokingKind);
}

void Run::care(FrmCare& window, const stores::StoreKind& kind) {
  const std::string file(kind.file);
  const std::string path = stores::dataFile(istasyon_.UygYolu, kind).string();
  std::error_code unreachable;
  if (window.stopped() || !std::filesystem::exists(path, unreachable)) return;
  window.tell(file + phrase(istasyon_, Phrase::CareChecking));
  bool compacting = false;
  const auto care = stores::careForStore(path, [&](std::int64_t done, std::int64_t total) {
    if (!std::exchange(compacting, true))
      window.tell(file + phrase(istasyon_, Phrase::CareCompacting));
    return window.advance(done_ + perStore * done / std::max<std::int64_t>(1, total));
  });
  done_ += perStore;
  report_ += (report_.empty() ? "" : "\n") + line(istasyon_, file, care);
}

}  // namespace

void dosyabakimi(Station& istasyon) {
  const auto alone = istasyon.sicil.tryAlone();
  if (!alone)
    return istasyon.bilgi(phrase(istasyon, Phrase::CareUnsure) + nedeni(istasyon, alone.error()));
  if (!*alone) return istasyon.bilgi(phrase(istasyon, Phrase::CareNeedsAlone));
  stores::CloseStores(istasyon.stores);
  Run run(istasyon);
  FrmCare window(istasyon, [&](FrmCare& shown) { run.work(shown); });
  window.Load();
  istasyon.host.showModal(window);
  depolariAc(istasyon);
  istasyon.sicil.letIn();
  if (!run.report().empty()) istasyon.bilgi(run.report());
}

void removeLeftovers(Station& istasyon) {
  stores::removeUnfinishedCopies(istasyon.dosya("Data"));
}

}  // namespace shell

#include "stores/restore_drill.h"

#include <stdlib.h>

#include <array>
#include <string>

#include "platform/files/copy_file.h"
#include "stores/contents.h"
#include "stores/store_kinds.h"

namespace stores {

namespace {

namespace fs = std::filesystem;

// Readable for this user alone, and gone with its owner.
class ScratchFolder {
 public:
  explicit ScratchFolder(const fs::path& parent) {
    std::string pattern = (parent / "sanavel-drill-XXXXXX").string();
    if (::mkdtemp(pattern.data()) != nullptr) path_ = pattern;
  }
  ScratchFolder(const ScratchFolder&) = delete;
  ScratchFolder& operator=(const ScratchFolder&) = delete;
  ~ScratchFolder() {
    std::error_code ignored;
    if (!path_.empty()) fs::remove_all(path_, ignored);
  }
  [[nodiscard]] const fs::path& path() const { return path_; }

 private:
  fs::path path_;
};

dao::Status copyChecked(const fs::path& backup, const fs::path& scratch, const StoreKind& kind,
                        const Progress& progress) {
  if (const auto opened = dao::OpenDatabase(backup / kind.file, {.access = dao::Access::Still});
      !opened)
    return opened.error();
  const dao::Status copied = files::copyFile(backup / kind.file, scratch / kind.file, progress);
  return copied ? checkCopy(scratch / kind.file, kind) : copied;
}

// The first value of a select; an older store may lack the table.
dao::Result<std::string> answer(dao::Database& store, const std::string& select) {
  auto rows = store.OpenRecordset(select);
  if (rows) return rows->empty() ? "" : rows->Fields(0).text();
  if (rows.error().fault() == dao::Fault::Missing) return "";
  return std::unexpected(rows.error());
}

dao::Result<DrillReport> reportOn(const fs::path& folder) {
  auto personal = dao::OpenDatabase(folder / personalKind.file, {.access = dao::Access::ReadOnly});
  if (!personal) return std::unexpected(personal.error());
  auto clinical = dao::OpenDatabase(folder / clinicalKind.file, {.access = dao::Access::ReadOnly});
  if (!clinical) return std::unexpected(clinical.error());
  const auto patients = countRecords(*personal, personalKind);
  if (!patients) return std::unexpected(patients.error());
  const auto records = countRecords(*clinical, clinicalKind);
  if (!records) return std::unexpected(records.error());
  DrillReport report;
  report.patients = *patients;
  report.records = *records;
  const auto last = answer(*clinical, "SELECT max([Date]) FROM [Physical Exam]");
  if (!last) return std::unexpected(last.error());
  report.lastExamination = text::parseIso(*last);
  return report;
}

}  // namespace

dao::Result<DrillReport> restoreDrill(const fs::path& backup, const fs::path& scratch,
                                      const Progress& progress) {
  const ScratchFolder folder(scratch);
  if (folder.path().empty())
    return std::unexpected(
        dao::Status(dao::Fault::ReadOnly, scratch.string() + ": the folder cannot be written."));
  for (const StoreKind& kind : storeKinds) {
    const bool mayMiss = kind.file == smokingKind.file;
    if (mayMiss && !stateOf(backup / kind.file)) continue;
    const dao::Status good = copyChecked(backup, folder.path(), kind, progress);
    if (!good) return std::unexpected(good);
  }
  auto report = reportOn(folder.path());
  if (!report) return report;
  const auto checked = checkFiles(backup, progress);
  if (!checked) return std::unexpected(checked.error());
  report->files = *checked;
  return report;
}

std::optional<fs::path> newestBackup(std::span<const fs::path> folders) {
  std::optional<fs::path> newest;
  fs::file_time_type written = fs::file_time_type::min();
  for (const fs::path& folder : folders) {
    const auto state = stateOf(folder / personalKind.file);
    if (!state || state->written <= written) continue;
    written = state->written;
    newest = folder;
  }
  return newest;
}

}  // namespace stores

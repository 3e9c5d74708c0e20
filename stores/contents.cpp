#include "stores/contents.h"

#include <array>
#include <sstream>
#include <string_view>
#include <vector>

#include "platform/files/atomic_write.h"
#include "platform/files/read_file.h"
#include "stores/visit_ledger.h"

namespace stores {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t longestNote = 4096;
// A handful of records may well be deleted by hand.
constexpr std::int64_t handful = 10;

std::vector<std::string_view> countedTables(const StoreKind& kind) {
  if (kind.file != clinicalKind.file) return {kind.mainTable};
  std::vector<std::string_view> tables;
  for (const RecordKind* each :
       {&kind::examination, &kind::pathology, &kind::operation, &kind::growth, &kind::vaccination,
        &kind::pregnancy, &kind::pregnancyControl, &kind::lens, &kind::angiography,
        &kind::echocardiography, &kind::exerciseTest, &kind::laboratory})
    tables.push_back(each->table);
  return tables;
}

// None when the note does not tell of the file.
std::int64_t noted(const std::string& note, std::string_view file) {
  std::istringstream lines(note);
  std::string name;
  std::int64_t count = -1;
  while (lines >> name >> count) {
    if (name == file) return count;
  }
  return -1;
}

}  // namespace

dao::Result<std::int64_t> countRecords(dao::Database& store, const StoreKind& kind) {
  std::int64_t all = 0;
  for (const std::string_view table : countedTables(kind)) {
    auto rows = store.OpenRecordset("SELECT count(*) FROM [" + std::string(table) + "]");
    if (!rows && rows.error().fault() != dao::Fault::Missing) return std::unexpected(rows.error());
    if (rows && !rows->Eof())
      all += dao::Value(rows->Fields(0).text()).integer();  // an older store lacks some
  }
  return all;
}

bool clearlyFewer(std::int64_t now, std::int64_t before) {
  if (now == 0) return before > 0;
  return now < before / 2 && before - now >= handful;
}

Contents contentsOf(const fs::path& backup, Unnoted unnoted) {
  const std::string note = files::readFile(backup / contentsNote, longestNote).value_or("");
  Contents contents;
  for (const StoreKind& kind : storeKinds) {
    if (!stateOf(backup / kind.file)) continue;
    std::int64_t count = noted(note, kind.file);
    if (count < 0 && unnoted == Unnoted::Counted) {
      auto store = dao::OpenDatabase(backup / kind.file, {.access = dao::Access::Still});
      if (store) count = countRecords(*store, kind).value_or(-1);
    }
    if (count >= 0) contents.insert_or_assign(std::string(kind.file), count);
  }
  return contents;
}

dao::Status noteContents(const fs::path& backup, const Contents& contents) {
  std::string note;
  for (const auto& [file, count] : contents) note += file + ' ' + std::to_string(count) + '\n';
  return files::writeAtomically(backup / contentsNote, note);
}

}  // namespace stores

// The ledger made anew. The rows of one key lie scattered over the tables, so the ledger rows are
// gathered in memory and written at the end, in the order of their table: other stations can read
// as long as records are read, and wait for the writing only.
#include <algorithm>
#include <array>
#include <limits>
#include <unordered_map>

#include "platform/text/fold.h"
#include "platform/text/utf8.h"
#include "stores/visit_ledger.h"

namespace stores {

namespace {

constexpr std::int64_t rowsAtOnce = 4096;

// What a record does to a row that is there already.
enum class Existing { Grows, IsKept };

struct Source {
  const RecordKind& kind;
  std::string_view mark;
  Existing existing = Existing::Grows;
};

// The mark of a pregnancy control has always been written in lower case here, which is the same
// key. A vaccination is looked for under its own mark, where the rebuild never puts a row, and
// written under that of the operations: it counts there only as the first record of its patient,
// and every other one is refused for the key that exists.
const std::array<Source, 12> sources{{
    {kind::examination, kind::examination.mark},
    {kind::operation, kind::operation.mark},
    {kind::angiography, kind::angiography.mark},
    {kind::echocardiography, kind::echocardiography.mark},
    {kind::exerciseTest, kind::exerciseTest.mark},
    {kind::growth, kind::growth.mark},
    {kind::vaccination, kind::operation.mark, Existing::IsKept},
    {kind::pregnancyControl, "cont"},
    {kind::pregnancy, kind::pregnancy.mark},
    {kind::lens, kind::lens.mark},
    {kind::pathology, kind::pathology.mark},
    {kind::laboratory, kind::laboratory.mark},
}};

// Empty for a speciality that has no word here.
std::string_view wordOf(std::int64_t speciality) {
  constexpr std::array<std::string_view, 13> words{
      "",       "Internal Medicine", "Surgery",    "Pediatrics", "Gynecology", "Ophthalmology",
      "ENT",    "Orthopedics",       "Polyclinic", "Pathology",  "Cardiology", "Neurology",
      "Urology"};
  constexpr std::int64_t generalMedicine = 20;
  if (speciality == generalMedicine) return "GenMed";
  const bool known = speciality > 0 && speciality < static_cast<std::int64_t>(words.size());
  return known ? words[static_cast<std::size_t>(speciality)] : "";
}

struct Gathered {
  std::string key;
  std::string numbers;
  std::int64_t count = 0;
  std::optional<text::DateTime> lastVisit;
};

// How many characters a key has room for in this file; 0 for any number.
dao::Result<int> keyWidth(const dao::Database& database) {
  const auto fields = database.fields("Visit");
  if (!fields) return std::unexpected(fields.error());
  const auto found = std::ranges::find_if(*fields, [](const dao::FieldInfo& field) {
    return text::equalsNoCase(field.name, "spname");
  });
  return found == fields->end() ? 0 : found->size;
}

dao::Status add(dao::Recordset& visit, const Gathered& row) {
  dao::Status status = visit.AddNew();
  if (status) status = visit.Fields("Visit Numbers").Set(row.numbers);
  if (status) status = visit.Fields("spname").Set(row.key);
  if (status) status = visit.Fields("Visit Count").Set(row.count);
  if (status && row.lastVisit) status = visit.Fields("Last Visit Date").Set(*row.lastVisit);
  return status ? visit.Update() : status;
}

class Rebuild {
 public:
  Rebuild(ClinicalStore& clinical, const Progress& progress)
      : clinical_(clinical), progress_(progress) {}

  dao::Status run();

 private:
  // By the start of the key and the sort key of the name, which tells the same keys apart as the
  // engine does.
  using Rows = std::unordered_map<std::string, Gathered>;

  [[nodiscard]] dao::Status tell() const;
  void countRecords();
  dao::Status gatherTable(const Source& source);
  void gather(const Source& source, dao::Recordset& record);
  [[nodiscard]] Gathered* rowFor(const Source& source, dao::Recordset& record);
  [[nodiscard]] bool fits(std::string_view key) const;
  dao::Status replaceLedger();
  dao::Status write(dao::Recordset& visit);

  ClinicalStore& clinical_;
  const Progress& progress_;
  std::int64_t done_ = 0;
  std::int64_t total_ = 0;
  int keyWidth_ = 0;
  std::string_view word_;  // stays for a record whose speciality has none
  std::string slot_;
  Rows rows_;
};

dao::Status Rebuild::run() {
  auto transaction = clinical_.database.beginTransaction();
  if (!transaction) return transaction.error();
  const auto width = keyWidth(clinical_.database);
  if (!width) return width.error();
  keyWidth_ = *width;
  if (progress_) countRecords();
  for (const Source& source : sources) {
    if (dao::Status gathered = gatherTable(source); !gathered) return gathered;
  }
  const dao::Status replaced = replaceLedger();
  return replaced ? transaction->commit() : replaced;
}

dao::Status Rebuild::tell() const {
  if (!progress_ || progress_(done_, total_)) return {};
  return {dao::Fault::Other, "The visit ledger stays as it was: the work was stopped."};
}

void Rebuild::countRecords() {
  for (const Source& source : sources) total_ += (clinical_.*source.kind.recordset).RecordCount();
}

dao::Status Rebuild::gatherTable(const Source& source) {
  const std::string select =
      "SELECT [Count], [Date], [Speciality], [Name], order_key(coalesce([Name], '')) FROM [" +
      std::string(source.kind.table) + "] WHERE [Count] > ? ORDER BY [Count] LIMIT ?";
  std::int64_t last = std::numeric_limits<std::int64_t>::min();
  for (;;) {
    auto records = clinical_.database.OpenRecordset(select, {last, rowsAtOnce});
    if (!records) return records.error();
    if (records->empty()) return {};
    for (; !records->Eof(); records->MoveNext().ignore()) {
      gather(source, *records);
      last = records->Fields(0).Value().integer();
    }
    done_ += records->RecordCount();
    if (dao::Status told = tell(); !told) return told;
  }
}

void Rebuild::gather(const Source& source, dao::Recordset& record) {
  const std::string_view word = wordOf(record.Fields(2).Value().integer());
  if (!word.empty()) word_ = word;
  Gathered* const row = rowFor(source, record);
  if (row == nullptr) return;
  ++row->count;
  row->lastVisit = record.Fields(1).Value().date();
  row->numbers.append(record.Fields(0).text()) += ';';
}

// The row that a record counts in, spelled as this record spells it; null when there is none.
Gathered* Rebuild::rowFor(const Source& source, dao::Recordset& record) {
  std::string key(word_);
  key.append(source.mark) += '\\';
  slot_.assign(key).append(record.Fields(4).view());
  key += record.Fields(3).view();
  const auto found = rows_.find(slot_);
  const bool spelled = fits(key);
  if (found == rows_.end() ? !spelled : source.existing == Existing::IsKept) return nullptr;
  Gathered& row = found == rows_.end() ? rows_[slot_] : found->second;
  if (spelled) row.key = std::move(key);
  return &row;
}

bool Rebuild::fits(std::string_view key) const {
  const auto width = static_cast<std::size_t>(keyWidth_);
  return width == 0 || key.size() <= width || text::length(key) <= width;
}

dao::Status Rebuild::replaceLedger() {
  if (auto emptied = clinical_.database.Execute("DELETE FROM [Visit]"); !emptied)
    return emptied.error();
  auto visit = clinical_.database.OpenRecordset("Visit");
  return visit ? write(*visit) : visit.error();
}

dao::Status Rebuild::write(dao::Recordset& visit) {
  std::vector<const Rows::value_type*> ordered;
  ordered.reserve(rows_.size());
  for (const auto& row : rows_) ordered.push_back(&row);
  std::ranges::sort(ordered, {}, [](const auto* row) -> const std::string& { return row->first; });
  std::int64_t written = 0;
  for (const auto* const each : ordered) {
    if (written++ % rowsAtOnce == 0) {
      if (dao::Status told = tell(); !told) return told;
    }
    if (dao::Status added = add(visit, each->second); !added) return added;
  }
  return tell();
}

}  // namespace

dao::Status vizitolustur(ClinicalStore& clinical, const Progress& progress) {
  return Rebuild(clinical, progress).run();
}

}  // namespace stores

#include "stores/visit_ledger.h"

#include "platform/text/number.h"
#include "platform/text/utf8.h"

namespace stores {

namespace kind {
constexpr RecordKind examination{"", "Physical Exam", &ClinicalStore::PhysicalExam};
constexpr RecordKind pathology{"", "Pathology", &ClinicalStore::Pathology};
constexpr RecordKind operation{"Op", "Operation", &ClinicalStore::Operation};
constexpr RecordKind growth{"Per", "Persantil", &ClinicalStore::Persantil};
constexpr RecordKind vaccination{"Vac", "Vaccine", &ClinicalStore::Vaccine};
constexpr RecordKind pregnancy{"Grv", "Gravid", &ClinicalStore::Gravid};
constexpr RecordKind pregnancyControl{"Cont", "Gravid Control", &ClinicalStore::GravidControl};
constexpr RecordKind lens{"Lens", "Lens", &ClinicalStore::Lens};
constexpr RecordKind angiography{"Angio", "Angio", &ClinicalStore::Angio};
constexpr RecordKind echocardiography{"Echo", "Echo", &ClinicalStore::Echo};
constexpr RecordKind exerciseTest{"Efor", "Efor", &ClinicalStore::Efor};
constexpr RecordKind laboratory{"Test", "Analyze", &ClinicalStore::Analyze};
}  // namespace kind

namespace {

constexpr char numberEnd = ';';

// Whatever stands behind the last end mark was never finished; what is no number is passed over.
std::vector<std::int64_t> numbersIn(std::string_view text) {
  std::vector<std::int64_t> numbers;
  for (std::size_t end = text.find(numberEnd); end != text.npos; end = text.find(numberEnd)) {
    if (const auto number = text::wholeNumber(text.substr(0, end))) numbers.push_back(*number);
    text.remove_prefix(end + 1);
  }
  return numbers;
}

std::string textOf(std::span<const std::int64_t> numbers) {
  std::string text;
  for (const std::int64_t number : numbers) text.append(std::to_string(number)) += numberEnd;
  return text;
}

// The engine's list of values.
std::string jsonOf(std::span<const std::int64_t> numbers) {
  std::string text = "[";
  for (const std::int64_t number : numbers)
    text.append(text.size() > 1 ? "," : "").append(std::to_string(number));
  return text += ']';
}

dao::Status fill(dao::Recordset& visit, std::string_view key, const LedgerRow& row) {
  dao::Value lastVisit;
  if (row.lastVisit) lastVisit = *row.lastVisit;
  dao::Status status = visit.Fields("spname").Set(key);
  if (status) status = visit.Fields("Visit Count").Set(row.numbers.size());
  if (status) status = visit.Fields("Last Visit Date").Set(lastVisit);
  if (status) status = visit.Fields("Visit Numbers").Set(textOf(row.numbers));
  return status;
}

dao::Status store(dao::Recordset& visit, std::string_view key, const LedgerRow& row) {
  if (dao::Status open = visit.NoMatch() ? visit.AddNew() : visit.Edit(); !open) return open;
  dao::Status status = fill(visit, key, row);
  if (status) status = visit.Update();
  if (!status) visit.CancelUpdate();
  return status;
}

// The list shows whole days. A record without a date stands on day 0, before all others.
text::DateTime shownDate(const dao::Value& date) {
  const auto held = date.date();
  return held ? text::DateTime{held->day} : text::fromDayNumber(0);
}

std::vector<DatedRecord> recordsOf(dao::Recordset& rows) {
  std::vector<DatedRecord> records;
  records.reserve(static_cast<std::size_t>(rows.RecordCount()));
  for (; !rows.Eof(); rows.MoveNext().ignore())
    records.push_back({rows.Fields(0).Value().integer(), shownDate(rows.Fields(1).Value())});
  return records;
}

std::vector<DatedRecord> byDay(std::vector<DatedRecord> records) {
  std::ranges::stable_sort(records, {}, &DatedRecord::date);
  return records;
}

constexpr std::string_view datedColumns = "[Count], [Date]";

std::string select(std::string_view columns, const RecordKind& kind) {
  std::string text = "SELECT ";
  return text.append(columns).append(" FROM [").append(kind.table).append("] ");
}

}  // namespace

std::string ledgerKey(std::string_view specialityWord, const RecordKind& kind,
                      std::string_view patient) {
  std::string key(specialityWord);
  return key.append(kind.mark).append("\\").append(patient);
}

bool hasLedgerRow(dao::Recordset& visit, std::string_view key) {
  return visit.Seek("=", key) && !visit.NoMatch();
}

dao::Result<LedgerRow> readLedgerRow(dao::Recordset& visit, std::string_view key) {
  if (dao::Status sought = visit.Seek("=", key); !sought) return std::unexpected(sought);
  if (visit.NoMatch()) return LedgerRow();
  return LedgerRow{numbersIn(visit.Fields("Visit Numbers").view()),
                   visit.Fields("Last Visit Date").Value().date()};
}

dao::Status writeLedgerRow(dao::Recordset& visit, std::string_view key, const LedgerRow& row) {
  if (dao::Status sought = visit.Seek("=", key); !sought) return sought;
  if (!row.numbers.empty()) return store(visit, key, row);
  return visit.NoMatch() ? dao::Status() : visit.Delete();
}

dao::Result<dao::Recordset> openListed(dao::Database& clinical, const RecordKind& kind,
                                       std::string_view columns,
                                       std::span<const std::int64_t> numbers) {
  return clinical.OpenRecordset(
      select(columns, kind) + "WHERE [Count] IN (SELECT value FROM json_each(?)) ORDER BY [Count]",
      {jsonOf(numbers)});
}

dao::Result<std::vector<DatedRecord>> listedRecords(dao::Database& clinical, const RecordKind& kind,
                                                    std::span<const std::int64_t> numbers) {
  auto rows = openListed(clinical, kind, datedColumns, numbers);
  if (!rows) return std::unexpected(rows.error());
  return byDay(arrived(numbers, recordsOf(*rows)));
}

// Names in the tables may have blanks before them. The index puts those between the empty text and
// the first sign that is no blank.
dao::Result<std::vector<DatedRecord>> patientRecords(dao::Database& clinical,
                                                     const RecordKind& kind,
                                                     std::string_view patient, int speciality) {
  auto rows = clinical.OpenRecordset(
      select(datedColumns, kind) +
          "WHERE ([Name] = ?1 OR ([Name] > '' AND [Name] < '_' AND "
          "order_key(trim([Name])) = order_key(?1))) AND [Speciality] = ?2 ORDER BY [Count]",
      {text::trimmed(patient), speciality});
  if (!rows) return std::unexpected(rows.error());
  return byDay(recordsOf(*rows));
}

}  // namespace stores

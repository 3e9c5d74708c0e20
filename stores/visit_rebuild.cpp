// The ledger made anew. The records of one key lie scattered over the tables, so the ledger rows
// are gathered in memory and written at the end, in the order of their table: other stations can
// read as long as records are read, and wait for the writing only.
#include <algorithm>
#include <array>
#include <limits>
#include <unordered_map>
#include <utility>

#include "platform/text/fold.h"
#include "platform/text/utf8.h"
#include "stores/patient_names.h"
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

// By code, as far as a speciality has a word here; the first is for no word yet.
constexpr std::array<std::string_view, 14> words{"",           "Internal Medicine",
                                                 "Surgery",    "Pediatrics",
                                                 "Gynecology", "Ophthalmology",
                                                 "ENT",        "Orthopedics",
                                                 "Polyclinic", "Pathology",
                                                 "Cardiology", "Neurology",
                                                 "Urology",    "GenMed"};

// The place of the speciality's word; none for 13, 14 and what is no speciality.
std::optional<std::uint32_t> wordOf(std::int64_t speciality) {
  constexpr std::int64_t generalMedicine = 20;
  constexpr std::uint32_t last = words.size() - 1;
  if (speciality == generalMedicine) return last;
  if (speciality < 1 || speciality >= last) return std::nullopt;
  return static_cast<std::uint32_t>(speciality);
}

// What stands before the patient's name in a key.
struct Prefix {
  std::uint32_t word = 0;
  std::uint32_t source = 0;  // the first one with the mark

  [[nodiscard]] std::string text() const {
    std::string text(words[word]);
    return text.append(sources[source].mark) += '\\';
  }
};

struct Gathered {
  Prefix prefix;
  std::uint32_t patient = 0;
  std::string_view name;
  std::string numbers;
  std::int64_t count = 0;
  std::optional<text::DateTime> lastVisit;
};

constexpr std::size_t prefixes = words.size() * sources.size();

std::size_t numberOf(const Prefix& prefix) {
  return prefix.word * sources.size() + prefix.source;
}

std::uint64_t packed(std::size_t prefix, std::uint32_t patient) {
  constexpr int patientBits = 32;
  return std::uint64_t{prefix} << patientBits | patient;
}

// By prefix: the place in the order of the store.
std::array<std::size_t, prefixes> prefixPlaces(const dao::Database& database) {
  std::vector<std::pair<std::string, std::size_t>> ordered;
  for (std::uint32_t word = 0; word < words.size(); ++word) {
    for (std::uint32_t source = 0; source < sources.size(); ++source) {
      const Prefix prefix{word, source};
      ordered.emplace_back(database.orderKey(prefix.text()), numberOf(prefix));
    }
  }
  std::ranges::sort(ordered);
  std::array<std::size_t, prefixes> places{};
  for (std::size_t place = 0; place < ordered.size(); ++place)
    places[ordered[place].second] = place;
  return places;
}

std::uint32_t firstWithMark(std::string_view mark) {
  const auto first = std::ranges::find(sources, mark, &Source::mark);
  return static_cast<std::uint32_t>(first - sources.begin());
}

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
  if (status) status = visit.Fields("spname").Set(row.prefix.text().append(row.name));
  if (status) status = visit.Fields("Visit Count").Set(row.count);
  if (status && row.lastVisit) status = visit.Fields("Last Visit Date").Set(*row.lastVisit);
  return status ? visit.Update() : status;
}

class Rebuild {
 public:
  Rebuild(ClinicalStore& clinical, const Progress& progress)
      : clinical_(clinical), progress_(progress), names_(clinical.database) {}

  dao::Status run();

 private:
  [[nodiscard]] dao::Status tell() const;
  void countRecords();
  dao::Status gatherTable(const Source& source);
  void gather(const Source& source, dao::Recordset& record);
  [[nodiscard]] Gathered* rowFor(const Source& source, std::string_view name);
  [[nodiscard]] bool fits(std::string_view name) const;
  [[nodiscard]] std::vector<const Gathered*> inOrder() const;
  dao::Status replaceLedger();
  dao::Status write(dao::Recordset& visit);

  ClinicalStore& clinical_;
  const Progress& progress_;
  std::int64_t done_ = 0;
  std::int64_t total_ = 0;
  int keyWidth_ = 0;
  Prefix prefix_;  // its word stays for a record whose speciality has none
  PatientNames names_;
  std::unordered_map<std::uint64_t, Gathered> rows_;
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
  const std::string select = "SELECT [Count], [Date], [Speciality], [Name] FROM [" +
                             std::string(source.kind.table) +
                             "] WHERE [Count] > ? ORDER BY [Count] LIMIT ?";
  prefix_.source = firstWithMark(source.mark);
  std::int64_t last = std::numeric_limits<std::int64_t>::min();
  for (;;) {
    auto records = clinical_.database.OpenRecordset(select, {last, rowsAtOnce});
    if (!records) return records.error();
    if (records->empty()) return {};
    for (; !records->Eof(); records->MoveNext().ignore()) gather(source, *records);
    if (dao::Status moved = records->MoveLast(); !moved) return moved;
    last = records->Fields(0).Value().integer();
    done_ += records->RecordCount();
    if (dao::Status told = tell(); !told) return told;
  }
}

void Rebuild::gather(const Source& source, dao::Recordset& record) {
  prefix_.word = wordOf(record.Fields(2).Value().integer()).value_or(prefix_.word);
  Gathered* const row = rowFor(source, record.Fields(3).view());
  if (row == nullptr) return;
  ++row->count;
  row->lastVisit = record.Fields(1).Value().date();
  row->numbers.append(record.Fields(0).text()) += ';';
}

// The row that a record counts in, spelled as this record spells it; null when there is none.
Gathered* Rebuild::rowFor(const Source& source, std::string_view name) {
  const auto [spelling, patient] = names_.named(name);
  const std::uint64_t key = packed(numberOf(prefix_), patient);
  const bool spelled = fits(spelling);
  auto found = rows_.find(key);
  const bool isNew = found == rows_.end();
  if (isNew ? !spelled : source.existing == Existing::IsKept) return nullptr;
  if (isNew) found = rows_.try_emplace(key, prefix_, patient).first;
  if (spelled) found->second.name = spelling;
  return &found->second;
}

bool Rebuild::fits(std::string_view name) const {
  const auto width = static_cast<std::size_t>(keyWidth_);
  const std::size_t before = words[prefix_.word].size() + sources[prefix_.source].mark.size() + 1;
  return width == 0 || before + name.size() <= width || before + text::length(name) <= width;
}

std::vector<const Gathered*> Rebuild::inOrder() const {
  const std::array before = prefixPlaces(clinical_.database);
  const std::vector<std::uint32_t> places = names_.places();
  std::vector<std::pair<std::uint64_t, const Gathered*>> ordered;
  ordered.reserve(rows_.size());
  for (const auto& [key, row] : rows_)
    ordered.emplace_back(packed(before[numberOf(row.prefix)], places[row.patient]), &row);
  std::ranges::sort(ordered);
  std::vector<const Gathered*> rows;
  rows.reserve(ordered.size());
  for (const auto& [place, row] : ordered) rows.push_back(row);
  return rows;
}

dao::Status Rebuild::replaceLedger() {
  if (auto emptied = clinical_.database.Execute("DELETE FROM [Visit]"); !emptied)
    return emptied.error();
  auto visit = clinical_.database.OpenRecordset("Visit");
  return visit ? write(*visit) : visit.error();
}

dao::Status Rebuild::write(dao::Recordset& visit) {
  std::int64_t written = 0;
  for (const Gathered* row : inOrder()) {
    if (written++ % rowsAtOnce == 0) {
      if (dao::Status told = tell(); !told) return told;
    }
    if (dao::Status added = add(visit, *row); !added) return added;
  }
  return tell();
}

}  // namespace

dao::Status vizitolustur(ClinicalStore& clinical, const Progress& progress) {
  return Rebuild(clinical, progress).run();
}

}  // namespace stores

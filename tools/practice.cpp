#include "tools/practice.h"

#include <algorithm>
#include <map>
#include <optional>
#include <set>
#include <span>

#include "platform/files/atomic_write.h"
#include "platform/files/folders.h"
#include "platform/richtext/document_builder.h"
#include "platform/richtext/rtf_writer.h"
#include "shell/letterhead.h"
#include "stores/value_list.h"
#include "tools/exam_maker.h"
#include "tools/lab_maker.h"
#include "tools/message_maker.h"
#include "tools/visit_maker.h"
#include "tools/word_lists.h"

namespace tools {

namespace {

using dao::Status;

constexpr std::size_t patientsOfTransaction = 5000;
constexpr std::uint64_t examSeed = 0x65786D;

Status addRow(dao::Recordset& rows, const Card& card) {
  if (Status added = rows.AddNew(); !added) return added;
  for (const Entry& entry : card) {
    if (Status set = rows.Fields(entry.column).Set(entry.value); !set) return set;
  }
  return rows.Update();
}

Card ledgerCard(const LedgerRow& row) {
  return {{"Visit Numbers", row.numbers()},
          {"spname", row.key},
          {"Visit Count", row.visits.size()},
          {"Last Visit Date", row.visits.back().date}};
}

// Runs the work inside one transaction of each store.
template <class Work>
Status inTransactions(stores::Stores& stores, Work work) {
  auto personal = stores.personal.database.beginTransaction();
  if (!personal) return personal.error();
  auto clinical = stores.clinical.database.beginTransaction();
  if (!clinical) return clinical.error();
  if (Status done = work(); !done) return done;
  if (Status committed = personal->commit(); !committed) return committed;
  return clinical->commit();
}

class Filler {
 public:
  Filler(stores::Stores& stores, const PracticeOptions& options)
      : stores_(stores),
        options_(options),
        visits_(~options.seed, options.reference),
        laboratory_(options.seed + 1, options.reference),
        exams_(options.seed ^ examSeed) {}

  Status fill(const Progress& progress) {
    Random random(options_.seed);
    const std::vector<NamedPerson> people = makeNames(random, options_.patients);
    for (std::size_t stored = 0; stored < people.size();) {
      const std::size_t size = std::min(patientsOfTransaction, people.size() - stored);
      const auto part = std::span(people).subspan(stored, size);
      if (Status added = inTransactions(stores_, [&] { return addAll(part); }); !added)
        return added;
      stored += size;
      if (progress) progress(stored);
    }
    return inTransactions(stores_, [&] { return addCatalogues(); });
  }

 private:
  Status addAll(std::span<const NamedPerson> people) {
    for (const NamedPerson& person : people) {
      if (Status added = add(makePatient(person, options_.seed, options_.reference)); !added)
        return added;
    }
    return {};
  }

  Status add(const Patient& patient) {
    if (Status added = addRow(stores_.personal.IDCard, patient.card); !added) return added;
    noteListValues(patient.card);
    for (const LedgerRow& row : visits_.make(patient)) {
      if (Status added = addVisits(patient, row); !added) return added;
    }
    if (Status added = addLabWork(laboratory_.make(patient)); !added) return added;
    return warn(patient);
  }

  Status addVisits(const Patient& patient, const LedgerRow& row) {
    for (const Visit& visit : row.visits) {
      const Card record = exams_.make(patient, visit);
      if (Status added = addRow(stores_.clinical.PhysicalExam, record); !added) return added;
    }
    return addRow(stores_.clinical.Visit, ledgerCard(row));
  }

  // Whoever is allergic is warned of.
  Status warn(const Patient& patient) {
    const auto notes = std::ranges::find(patient.card, "Notes", &Entry::column);
    if (notes == patient.card.end() || notes->value.text() != remarks().front()) return {};
    return addRow(stores_.clinical.tblWarn,
                  {{"name", patient.person.name}, {"warn", remarks().front()}});
  }

  Status addDoctors() {
    for (const std::string_view doctor : examiners()) {
      if (Status added = addRow(stores_.clinical.Doctors, {{"Doctor", doctor}}); !added)
        return added;
    }
    return {};
  }

  // What every patient's screens offer.
  Status addCatalogues() {
    if (Status added = addDoctors(); !added) return added;
    if (Status added = addTests(); !added) return added;
    return addListValues();
  }

  Status addLabWork(const LabWork& work) {
    if (work.values.empty()) return {};
    for (const Card& value : work.values) {
      if (Status added = addRow(stores_.clinical.Analyze, value); !added) return added;
    }
    return addRow(stores_.clinical.Visit, ledgerCard(work.ledger));
  }

  Status addTests() {
    for (const CatalogueTest& test : catalogueTests()) {
      const Card card{{"Test", test.name},
                      {"Unit", test.unit},
                      {"Min", test.min},
                      {"Max", test.max},
                      {"Information", test.information}};
      if (Status added = addRow(stores_.clinical.Tests, card); !added) return added;
    }
    return {};
  }

  // A save of the card adds the blank value of an empty field to its list, too.
  void noteListValues(const Card& card) {
    for (const ListedColumn& listed : listedColumns()) {
      const auto entry = std::ranges::find(card, listed.column, &Entry::column);
      listValues_[listed.list].insert(entry->value.text());
    }
  }

  Status addListValues() {
    for (const auto& [list, values] : listValues_) {
      for (const std::string& value : values) {
        if (Status added = stores::addValue(stores_.personal, list, value); !added) return added;
      }
    }
    return {};
  }

  stores::Stores& stores_;
  const PracticeOptions& options_;
  VisitMaker visits_;
  LabMaker laboratory_;
  ExamMaker exams_;
  std::map<std::string_view, std::set<std::string>> listValues_;
};

Status writeLetterhead(const std::string& folder) {
  struct Line {
    std::string_view text;
    int halfPoints;
  };
  constexpr Line lines[]{{"Dr. Işık Çağlayan", 36},
                         {"Genel Tıp Muayenehanesi", 24},
                         {"Cumhuriyet Mah. Gül Sok. No: 7, İzmir", 18}};
  const richtext::ParagraphFormat centred{.alignment = richtext::Alignment::Centre};
  richtext::DocumentBuilder builder;
  for (const Line& line : lines) {
    richtext::CharFormat format;
    format.halfPoints = line.halfPoints;
    builder.addText(line.text, format, centred);
    builder.endParagraph(format, centred);
  }
  return files::writeAtomically(files::programPath(folder, shell::letterhead::text),
                                richtext::writeRtf(builder.finish({})));
}

}  // namespace

Status makePractice(const std::string& folder, const PracticeOptions& options,
                    const Progress& progress) {
  if (Status made = files::createFolders(files::programPath(folder, "Data")); !made) return made;
  stores::Stores stores;
  stores.folder = folder.ends_with('/') ? folder : folder + "/";
  if (Status opened = stores::OpenStores(stores); !opened) return opened;
  if (!stores.personal.IDCard.empty())
    return {dao::Fault::Exists, folder + ": there are patients in this folder already."};
  if (Status filled = Filler(stores, options).fill(progress); !filled) return filled;
  if (Status written = writeMessages(stores.folder, options.reference); !written) return written;
  return writeLetterhead(stores.folder);
}

}  // namespace tools

#include "documents/patient_rows.h"

#include <span>
#include <utility>

#include "shell/fault_words.h"
#include "shell/record_screen.h"
#include "shell/text_lookup.h"

namespace documents {

namespace {

// Read in a few milliseconds.
constexpr std::size_t rowsOfSlice = 1024;

enum Place { NamePlace, KeyPlace, FirstAddress };
constexpr int addressLines = 4;

std::string selectText(bool first) {
  return std::string("SELECT [Name], [Key], [Address1], [Address2], [Address3], [Address4]") +
         " FROM [IDCard]" + (first ? "" : " WHERE [Name] > ?") + " ORDER BY [Name] LIMIT " +
         std::to_string(rowsOfSlice);
}

void write(dao::Recordset& card, forms::ListView::Row& row) {
  row.key = card.Fields(NamePlace).view();
  row.cells.resize(1 + addressLines);
  row.cells.front() = shell::RecordScreen::sisim(row.key);
  for (int line = 0; line < addressLines; ++line)
    row.cells[static_cast<std::size_t>(1 + line)] = card.Fields(FirstAddress + line).view();
}

}  // namespace

PatientRows::PatientRows(shell::Station& istasyon, forms::ListView& list)
    : istasyon_(istasyon), list_(list), slices_(istasyon.host), rows_(rowsOfSlice) {}

void PatientRows::start(std::function<void()> added) {
  std::vector<std::string> headings{shell::metinbul(istasyon_, "isim")};
  headings.resize(1 + addressLines, shell::metinbul(istasyon_, "Adres"));
  list_.setColumns(std::move(headings));
  list_.clearRows();
  last_.clear();
  slices_.start([this, added = std::move(added)] {
    const auto done = step();
    if (!done) shell::hataSoyle(istasyon_, done.error());
    if (added) added();
    return !done || *done;
  });
}

dao::Result<dao::Recordset> PatientRows::nextPage() {
  dao::Database& personal = istasyon_.stores.personal.database;
  if (last_.empty()) return personal.OpenForward(selectText(true));
  return personal.OpenForward(selectText(false), {dao::Value(last_)});
}

// No lock is held between two pages.
dao::Result<bool> PatientRows::step() {
  auto page = nextPage();
  if (!page) return std::unexpected(page.error());
  std::size_t read = 0;
  std::size_t kept = 0;
  while (!page->Eof()) {
    if (++read == rowsOfSlice) last_ = page->Fields(NamePlace).view();
    if (!istasyon_.gizliMi(page->Fields(KeyPlace).view())) write(*page, rows_[kept++]);
    if (dao::Status moved = page->MoveNext(); !moved) return std::unexpected(std::move(moved));
  }
  list_.appendRows(std::span(rows_).first(kept));
  return read < rowsOfSlice;
}

}  // namespace documents

#include "registry/name_search.h"

#include <algorithm>
#include <utility>

#include "platform/text/date.h"
#include "platform/text/utf8.h"
#include "shell/record_screen.h"

namespace registry {

platform::Status NameSearch::start(const dao::Database& personal, std::string_view typed,
                                   dao::Fold fold, HiddenPatients hidden) {
  stop();
  found_.clear();
  taken_ = 0;
  hidden_ = hidden;
  if (typed.empty()) return {};
  auto reader = dao::PrefixReader::open(personal, "IDCard", "Name", fold, typed);
  if (!reader) return reader.error();
  reader_ = std::move(*reader);
  return {};
}

bool NameSearch::step() {
  if (!reader_) return true;
  const auto done = reader_->step();
  for (const dao::PrefixRow& row : reader_->rows().subspan(taken_)) {
    ++taken_;
    if (hidden_ == HiddenPatients::PassedOver && text::trimmed(row.extra) == hiddenMark) continue;
    found_.emplace_back(row.name);
  }
  if (done && !*done) return false;
  stop();
  return true;
}

std::vector<std::string> NameSearch::take() {
  return std::exchange(found_, {});
}

namespace {

constexpr std::size_t namesakesSought = 4;

// The name without marks and with each number of them up to one more than its own.
std::vector<dao::Value> namesakesOf(const std::string& name) {
  const std::string bare = shell::RecordScreen::sisim(name);
  const std::size_t most = std::max(name.size() - bare.size() + 2, namesakesSought);
  std::vector<dao::Value> names;
  for (std::size_t marks = 0; marks < most; ++marks)
    names.emplace_back(bare + std::string(marks, '*'));
  return names;
}

std::string selectNamed(std::size_t names) {
  std::string places;
  for (std::size_t i = 0; i < names; ++i) places += i == 0 ? "?" : ", ?";
  return "SELECT [Name], [Key], [Date of Birth], [Year of Birth], [Option2] FROM [IDCard] "
         "WHERE [Name] IN (" +
         places + ")";
}

std::string noteOn(dao::Recordset& card) {
  const auto date = card.Fields("Date of Birth").Value().date();
  std::string note = date ? text::shortDate(*date).substr(6) : card.Fields("Year of Birth").text();
  const std::string file = text::trim(card.Fields("Option2").text());
  if (!note.empty() && !file.empty()) note += " · ";
  return note + file;
}

}  // namespace

const std::string& NamesakeNotes::of(dao::Database& personal, const std::string& name,
                                     HiddenPatients hidden) {
  const auto [known, fresh] = known_.try_emplace(name);
  if (!fresh) return known->second;
  const std::vector<dao::Value> names = namesakesOf(name);
  auto cards = personal.OpenRecordset(selectNamed(names.size()), names);
  if (!cards) return known->second;
  int seen = 0;
  std::string note;
  for (; !cards->Eof(); cards->MoveNext().ignore()) {
    const bool marked = text::trimmed(cards->Fields("Key").text()) == hiddenMark;
    if (marked && hidden == HiddenPatients::PassedOver) continue;
    ++seen;
    if (cards->Fields("Name").text() == name) note = noteOn(*cards);
  }
  if (seen > 1) known->second = note;
  return known->second;
}

}  // namespace registry

#include "search/card_scan.h"

#include <utility>

namespace search {

namespace {

constexpr std::size_t pageRows = 1024;
// Seeking one card costs about as much as reading the wanted columns of so many on the way.
constexpr std::size_t cardsPerSeek = 40;

enum Place { NamePlace, KeyPlace };

}  // namespace

CardScan::CardScan(dao::Database personal, std::span<const std::string_view> wanted, Calls calls)
    : personal_(std::move(personal)),
      wanted_(wanted.begin(), wanted.end()),
      calls_(std::move(calls)) {
  (void)tested_.place("Name");
  (void)tested_.place("Key");
}

void CardScan::require(Condition condition, const Columns& columns) {
  condition.readFrom(columns, tested_);
  conditions_.push_back(std::move(condition));
  reading_ = Reading::Conditions;
}

// Names are compared in the store's own order, by its own collation.
std::string CardScan::selectText() const {
  ColumnList columns = tested_;
  if (reading_ == Reading::Everything) {
    for (const std::string_view column : wanted_) (void)columns.place(column);
  }
  std::string names;
  for (const std::string_view name : columns.names())
    names.append(names.empty() ? "[" : ", [").append(name).append("]");
  return "SELECT " + names + " FROM [IDCard]" + (walked_ == 0 ? "" : " WHERE [Name] > ?") +
         " ORDER BY [Name] LIMIT " + std::to_string(pageRows);
}

dao::Result<dao::Recordset> CardScan::nextPage() {
  if (walked_ == 0) return personal_.OpenForward(selectText());
  return personal_.OpenForward(selectText(), {dao::Value(last_)});
}

dao::Result<bool> CardScan::step() {
  auto page = nextPage();
  if (!page) return std::unexpected(page.error());
  std::size_t rows = 0;
  std::size_t found = 0;
  while (!page->Eof()) {
    ++rows;
    if (rows == pageRows) last_ = page->Fields(NamePlace).view();
    dao::Status status;
    if (fits(*page)) {
      ++found;
      status = hand(*page);
    }
    if (status) status = page->MoveNext();
    if (!status) return std::unexpected(std::move(status));
  }
  walked_ += rows;
  if (!conditions_.empty()) {
    const bool many = found * cardsPerSeek > rows;
    reading_ = many ? Reading::Everything : Reading::Conditions;
  }
  return rows < pageRows;
}

bool CardScan::fits(dao::Recordset& card) {
  const std::string_view key = card.Fields(KeyPlace).view();
  if (!key.empty() && calls_.hidden(key)) return false;
  for (const Condition& condition : conditions_) {
    if (!condition.holds(card, room_)) return false;
  }
  return true;
}

// A card that another station has deleted since its page was read is no longer found.
dao::Status CardScan::hand(dao::Recordset& page) {
  if (reading_ == Reading::Everything) return calls_.found(page), dao::Status();
  if (!cards_.isOpen()) {
    auto opened = personal_.OpenRecordset("IDCard");
    if (!opened) return opened.error();
    cards_ = std::move(*opened);
  }
  const dao::Status sought = cards_.Seek("=", page.Fields(NamePlace).text());
  if (sought && !cards_.NoMatch()) calls_.found(cards_);
  return sought;
}

}  // namespace search

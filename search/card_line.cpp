#include "search/card_line.h"

#include "platform/text/date.h"
#include "platform/text/number.h"
#include "shell/record_screen.h"
#include "shell/text_lookup.h"

namespace search {

namespace {

constexpr std::array<std::string_view, 10> lineColumns{
    "Name",       "Date of Birth", "Year of Birth", "Sex",        "Place of Birth",
    "Profession", "email",         "Telephone1",    "Telephone2", "Notes"};
constexpr std::array headingKeys{"isim",   "dogumtarihi", "Cinsiyet", "dogumyeri",
                                 "Meslek", "e-mail",      "Telefon",  "Notlar"};

std::string birth(dao::Recordset& card) {
  const auto date = text::parseIso(card.Fields("Date of Birth").view());
  return date ? text::shortDate(*date) : std::string(card.Fields("Year of Birth").view());
}

std::string_view telephone(dao::Recordset& card) {
  const std::string_view first = card.Fields("Telephone1").view();
  return first.empty() ? card.Fields("Telephone2").view() : first;
}

}  // namespace

CardLine::CardLine(shell::Station& istasyon)
    : sexes_{metinbul(istasyon, "kadin"), metinbul(istasyon, "Erkek")} {}

std::span<const std::string_view> CardLine::columns() {
  return lineColumns;
}

std::vector<std::string> CardLine::headings(shell::Station& istasyon) {
  std::vector<std::string> words;
  for (const char* key : headingKeys) words.push_back(metinbul(istasyon, key));
  return words;
}

void CardLine::write(dao::Recordset& card, forms::ListView::Row& row) const {
  row.cells.resize(headingKeys.size());
  row.key = card.Fields("Name").view();
  const auto sex = text::wholeNumber(card.Fields("Sex").view());
  const bool known = sex && *sex >= 0 && std::cmp_less(*sex, sexes_.size());
  auto cell = row.cells.begin();
  *cell++ = shell::RecordScreen::sisim(row.key);
  *cell++ = birth(card);
  *cell++ = known ? std::string_view(sexes_[static_cast<std::size_t>(*sex)]) : "";
  *cell++ = card.Fields("Place of Birth").view();
  *cell++ = card.Fields("Profession").view();
  *cell++ = card.Fields("email").view();
  *cell++ = telephone(card);
  *cell++ = card.Fields("Notes").view();
}

}  // namespace search

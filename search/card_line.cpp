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
                                 "Meslek", "email",       "Telefon",  "Notlar"};

std::string birth(dao::Recordset& card) {
  const auto date = text::parseIso(card.Fields("Date of Birth").view());
  return date ? text::shortDate(*date) : card.Fields("Year of Birth").text();
}

std::string telephone(dao::Recordset& card) {
  std::string first = card.Fields("Telephone1").text();
  return first.empty() ? card.Fields("Telephone2").text() : first;
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

forms::ListView::Row CardLine::of(dao::Recordset& card) const {
  std::string name = card.Fields("Name").text();
  const auto sex = text::wholeNumber(card.Fields("Sex").view());
  const bool known = sex && *sex >= 0 && std::cmp_less(*sex, sexes_.size());
  return {.cells = {shell::RecordScreen::sisim(name), birth(card),
                    known ? sexes_[static_cast<std::size_t>(*sex)] : std::string(),
                    card.Fields("Place of Birth").text(), card.Fields("Profession").text(),
                    card.Fields("email").text(), telephone(card), card.Fields("Notes").text()},
          .key = std::move(name)};
}

}  // namespace search

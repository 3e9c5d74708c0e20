#include "search/card_conditions.h"

#include <algorithm>

#include "platform/text/date.h"
#include "platform/text/fold.h"
#include "platform/text/number.h"
#include "platform/text/utf8.h"

namespace search {

namespace {

bool isFolded(Test test) {
  return test == Test::ContainsFolded || test == Test::GivenName || test == Test::Surname;
}

void foldInto(std::string& folded, std::string_view text, dao::Fold fold) {
  fold == dao::Fold::Turkish ? text::upperTurkishInto(folded, text) : text::upperInto(folded, text);
}

std::string_view givenName(std::string_view name) {
  return name.substr(0, name.find(' '));
}

// Empty for a name without a blank.
std::string_view surname(std::string_view name) {
  const std::size_t blank = name.find(' ');
  return blank == name.npos ? std::string_view() : name.substr(blank + 1);
}

std::optional<long> partOfDate(std::string_view content, Test part) {
  const auto date = text::parseIso(content);
  if (!date) return part == Test::Year ? text::wholeNumber(content) : std::nullopt;
  if (part == Test::Day) return static_cast<long>(date->dayOfMonth());
  if (part == Test::Month) return static_cast<long>(date->month());
  return date->year();
}

}  // namespace

int ColumnList::place(std::string_view column) {
  const auto found = std::ranges::find(names_, column);
  const auto place = found - names_.begin();
  if (found == names_.end()) names_.push_back(column);
  return static_cast<int>(place);
}

Condition::Condition(Test test, std::string_view typed, dao::Fold fold)
    : test_(test), fold_(fold), wanted_(typed), number_(text::wholeNumber(typed)) {
  if (isFolded(test)) foldInto(wanted_, typed, fold);
}

void Condition::readFrom(const Columns& columns, ColumnList& list) {
  for (const std::string_view column : columns) {
    if (!column.empty()) places_.push_back(list.place(column));
  }
}

bool Condition::holds(dao::Recordset& card, std::string& room) const {
  const auto holdsAt = [&](int place) { return holdsFor(card.Fields(place).view(), room); };
  if (test_ != Test::Year) return std::ranges::any_of(places_, holdsAt);
  const auto filled =
      std::ranges::find_if(places_, [&](int place) { return !card.Fields(place).view().empty(); });
  return filled != places_.end() && holdsAt(*filled);
}

bool Condition::holdsFor(std::string_view content, std::string& room) const {
  switch (test_) {
    case Test::Contains:
      return content.contains(wanted_);
    case Test::ContainsFolded:
      return foundFolded(content, room);
    case Test::GivenName:
      return foundFolded(givenName(content), room);
    case Test::Surname:
      return foundFolded(surname(content), room);
    case Test::Equal:
      return text::equalsNoCase(text::trimmed(content), text::trimmed(wanted_));
    case Test::ListIndex:
      return numberIs(text::wholeNumber(content));
    case Test::Day:
    case Test::Month:
    case Test::Year:
      return numberIs(partOfDate(content, test_));
  }
  return false;
}

bool Condition::foundFolded(std::string_view content, std::string& room) const {
  if (content.empty()) return false;
  foldInto(room, content, fold_);
  return room.contains(wanted_);
}

}  // namespace search

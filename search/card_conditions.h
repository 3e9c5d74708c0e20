// What a filled filter asks of a card.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/dao/prefix_search.h"
#include "platform/dao/recordset.h"

namespace search {

enum class Test {
  Contains,
  ContainsFolded,  // without regard to case
  Equal,           // without regard to case
  ListIndex,       // the stored number is the row of the filter's list
  GivenName,       // the name up to its first blank contains it, folded
  Surname,         // the rest of the name contains it, folded
  Day,             // of the date of birth
  Month,
  Year  // of the date of birth, or the year of birth of a card with the year only
};

// Up to four columns of the card; the test holds when it holds for one of them, a year's for the
// first that is filled.
using Columns = std::array<std::string_view, 4>;

// The columns that a scan reads, each once.
class ColumnList {
 public:
  // The place of the column, which is added when it is not there yet.
  int place(std::string_view column);
  [[nodiscard]] const std::vector<std::string_view>& names() const { return names_; }

 private:
  std::vector<std::string_view> names_;
};

// A filter made ready for many cards: its own text is folded once.
class Condition {
 public:
  // `typed` is what stands in the filter; the row of its list for Test::ListIndex.
  Condition(Test test, std::string_view typed, dao::Fold fold);

  // Where the condition finds its columns in the records that holds() is given.
  void readFrom(const Columns& columns, ColumnList& list);
  // `room` is memory that the conditions of a scan share.
  [[nodiscard]] bool holds(dao::Recordset& card, std::string& room) const;

 private:
  [[nodiscard]] bool holdsFor(std::string_view content, std::string& room) const;
  [[nodiscard]] bool foundFolded(std::string_view content, std::string& room) const;
  [[nodiscard]] bool numberIs(std::optional<long> number) const {
    return number && number == number_;
  }

  Test test_;
  dao::Fold fold_;
  std::string wanted_;
  std::optional<long> number_;
  std::vector<int> places_;
};

}  // namespace search

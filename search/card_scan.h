// The walk over all cards of the Personal store, in the order of the table.
#pragma once

#include <cstddef>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/dao/database.h"
#include "search/card_conditions.h"

namespace search {

// No lock is held between pages, and each page sees what other stations have committed.
class CardScan {
 public:
  struct Calls {
    // Whether a card with that key mark is passed over.
    std::function<bool(std::string_view key)> hidden;
    // Gets every card that fits; the wanted columns can be read from it by their names.
    std::function<void(dao::Recordset& card)> found;
  };
  CardScan(dao::Database personal, std::span<const std::string_view> wanted, Calls calls);

  // Cards must fit all conditions; the first that a card does not fit rejects it.
  void require(Condition condition, const Columns& columns);

  // Works through one page of cards; true at the end of the table.
  [[nodiscard]] dao::Result<bool> step();
  // Cards walked over so far.
  [[nodiscard]] std::size_t walked() const { return walked_; }

 private:
  enum class Reading { Conditions, Everything };

  [[nodiscard]] dao::Result<dao::Recordset> nextPage();
  [[nodiscard]] std::string selectText() const;
  [[nodiscard]] bool fits(dao::Recordset& card);
  dao::Status hand(dao::Recordset& page);

  dao::Database personal_;
  std::vector<std::string_view> wanted_;
  Calls calls_;
  ColumnList tested_;
  std::vector<Condition> conditions_;
  Reading reading_ = Reading::Everything;
  dao::Recordset cards_;  // for single cards
  std::string last_;      // the name of the last card of the page before
  std::string room_;
  std::size_t walked_ = 0;
};

}  // namespace search

// The list under a search box: all rows whose name begins with what was typed, in the order of the
// table.
#pragma once

#include <chrono>
#include <memory>
#include <span>
#include <string>
#include <string_view>

#include "platform/dao/database.h"

namespace dao {

// How names and the typed text are made alike: root upper case, or first i to dotted capital and
// dotless to I.
enum class Fold { General, Turkish };

[[nodiscard]] std::string folded(std::string_view text, Fold fold);

struct PrefixRow {
  std::string_view name;
  std::string_view extra;  // the extra field of the helper index, "" for Null
};

// Finds the rows of a table whose first L characters, folded, equal the folded typed text of L
// characters. It needs the table's helper index of that fold. Work is done in slices and no lock is
// held between them.
class PrefixReader {
 public:
  // Missing when the table has no helper index for that field and fold.
  static Result<PrefixReader> open(const Database& database, std::string_view table,
                                   std::string_view field, Fold fold, std::string_view typed);
  PrefixReader(PrefixReader&&) noexcept;
  PrefixReader& operator=(PrefixReader&&) noexcept;
  ~PrefixReader();

  // Works for about that long. True when the list is complete.
  [[nodiscard]] Result<bool> step(std::chrono::microseconds budget = std::chrono::milliseconds(4));

  // The rows in table order as far as they are known: once all are found, this grows with each
  // step. The texts live as long as the reader; the span until the next step.
  [[nodiscard]] std::span<const PrefixRow> rows() const;

 private:
  struct State;
  explicit PrefixReader(std::unique_ptr<State> state);
  std::unique_ptr<State> state_;
};

}  // namespace dao
